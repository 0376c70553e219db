#pragma once
// Inputs built to be heavy for the keyword tallies, the report and the preferences reader,
// each inside the system's limits, so each must end in a normal report: near-miss keywords
// against a long title and page, 1001 keywords on big pages in both scans, long phrases
// over a page of one filter word, one keyword listed 1001 times with duplicates kept, and a
// 4 MB preferences line. Loaded by the hostile-input tests and timed by bench/heavy.sh.

#include <functional>
#include <string>
#include <vector>

namespace zentrel::bench {

struct Heavy_Input {
  const char* name;                    // also the file name of the page and its preferences
  std::function<std::string()> page;   // the page's bytes
  std::function<std::string()> prefs;  // a preferences file; empty for every default
  bool bigReport;                      // its report alone is larger than the memory ceiling
};

const std::vector<Heavy_Input>& Heavy_Inputs();

// The piece `times` times over.
std::string Repeat(const std::string& piece, size_t times);

}  // namespace zentrel::bench
