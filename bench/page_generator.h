#pragma once
// A deterministic generator of realistic pages for the benchmarks: a head with a title and a
// dozen META tags, style and script blocks, a body of long paragraphs with links, lists,
// tables, images with ALT texts, comments and entities, mixed CR LF and LF line ends. Words
// come from a 20000-word vocabulary drawn with a Zipf-like law; no counted word occurs more
// than 900 times, so a page stays within the word count's limits at every size, and its
// keywords stay within the keyword limits in both scans.

#include <cstddef>
#include <string>

namespace zentrel::bench {

std::string Generate_Page(size_t targetBytes, unsigned seed = 1, int keywords = 20);

}  // namespace zentrel::bench
