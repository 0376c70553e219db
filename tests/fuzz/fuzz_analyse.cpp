// Arbitrary bytes analysed as a page under changing settings. Run-time errors are defined
// outcomes; the properties: the word-count box adds up to the word count (with no filter
// words), and every counted word occurs in the word text.

#include <cstdlib>

#include "base/run_time_error.h"
#include "base/text.h"
#include "commands/scan_keywords.h"
#include "commands/word_filters.h"
#include "fuzz_session.h"

using namespace zentrel;

namespace {

void Apply_Settings(AppState& s, uint8_t bits) {
  s.KeywordsMatchScanType = bits & 1;
  s.KeywordsForceSameCase = (bits >> 1) & 1;
  s.WordMatchForceCase = (bits >> 2) & 1;
  s.WordMatchIgnoreAlphaNumeric = (bits >> 3) & 1;
  s.DecodeIncludeAltText = (bits >> 4) & 1;
  s.DecodeIncludeTitleWithBody = (bits >> 5) & 1;
  s.DecodeIncludeMetaDescriptionWithBody = (bits >> 6) & 1;
  s.ReportExportWordCount = (bits >> 7) & 1;
}

void Check_Word_Counts(const AppState& s) {
  long total = 0;
  const std::string& box = s.Form.ScanKeyWords_DocumentWordCount_TextBox;
  for (size_t pos = 0; pos < box.size();) {
    total += std::strtol(box.c_str() + pos, nullptr, 10);
    size_t end = box.find("\r\n", pos);
    pos = end == std::string::npos ? box.size() : end + 2;
  }
  fuzz::Require(total == s.DocumentWordCount, "word-count box adds up to the word count");
  const std::string text = s.WordMatchForceCase ? text::LCase(s.StrippedText) : s.StrippedText;
  for (int i = 0; i < s.UniqueWordCount; ++i) {
    fuzz::Require(text.find(s.UniqueWords[static_cast<size_t>(i)]) != std::string::npos,
                  "every counted word occurs in the word text");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Input in(data, size);
  AppState& s = fuzz::Started_State();
  const uint8_t bits = in.Byte();
  const bool noFilter = in.Byte() & 1;
  Apply_Settings(s, bits);
  if (noFilter) {
    s.Form.WordFiltersPage_WordDictionary.clear();
    commands::Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
  }
  s.UsersKeywordsText = in.Piece(64);
  fuzz::Put_Page(s, in.Rest());
  try {
    commands::Meta_Tag_KeyWord_Scan(s, "fuzz.html");
  } catch (const RunTimeError&) {
    return 0;  // a defined outcome
  }
  if (noFilter) {
    Check_Word_Counts(s);
  }
  return 0;
}
