#pragma once
// Page text as a reader sees it: characters in the page's codec, character references decoded,
// and runs of white space folded as browsers fold a title; then counted and measured.

#include <cstdint>
#include <string>
#include <string_view>

#include "base/codec.h"

namespace zentrel::checks {

// The characters of raw page text: decoded in the page's codec; the numeric character
// references (decimal and hexadecimal) and the common named ones (the Latin-1 set, the five
// of XML and HTML's typographic punctuation) replaced by their characters; white space (space,
// tab, line feed, form feed, carriage return) folded to single spaces and trimmed.
std::u32string ReaderText(std::string_view raw, codec::Codec codec);

// A title or description as measured: its text in UTF-8, its characters and its width.
struct MeasuredText {
  std::string text;
  int64_t chars = 0;
  int64_t pixels = 0;
};

MeasuredText Measure(std::string_view raw, codec::Codec codec, int fontPixels);

// A short quotation of a text for a message, in UTF-8: at most `limit` characters, cut with
// "...".
std::string Excerpt(std::u32string_view text, size_t limit = 60);
// The same of raw page text, read as ReaderText reads it.
std::string RawExcerpt(std::string_view raw, codec::Codec codec, size_t limit = 60);

}  // namespace zentrel::checks
