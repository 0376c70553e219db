#pragma once
// The fields of the analysis (analysis/): the keyword list of one analysis, the page report
// buffer, and what the analysis produced for the window.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "state/word_list.h"

namespace zentrel::state {

struct KeywordListFields {
  // Per-keyword arrays with indexes 0..KeywordCapacity.
  std::vector<std::string> KeywordList;
  std::vector<int16_t> KeywordBodyMatches;
  std::vector<int16_t> KeywordTitleMatches;
  // KeywordWords[keyword index 0..KeywordCapacity]: the keyword's words, each keyword keeping
  // only its own, so one long phrase does not widen every keyword's row.
  std::vector<std::vector<std::string>> KeywordWords;
  int16_t KeywordCount = 0;
  int16_t KeywordCapacity = 0;
  // The duplicates found by the last check, each with CR LF. The analysis hands the text over
  // to its report line, so after an analysis it is empty.
  std::string KeywordDoublesText;
  int16_t KeywordSplitCount = 0;  // parts of the last keyword split (page's or user's)
};

struct PageReportFields {
  // The text written so far. The classic buffer is this text followed by spaces up to
  // ReportBufferSize; only the written part is stored, and the size is kept as bookkeeping.
  // The finished report is handed over to the "Page Report" box, not copied.
  std::string ReportBuffer;
  int32_t ReportBufferSize = 0;
  int32_t ReportWritePos = 1;  // 1-based
};

// The texts one analysis produced for the window's boxes. Each is set when the analysis gets
// that far, so an analysis that an error ends leaves the later ones unset; the command that
// ran it shows the ones set (and clears them), and the boxes stand as far as they were filled.
struct AnalysisResultFields {
  std::optional<std::string> WordCountText;     // "Body Word Count"
  std::optional<std::string> BodyViewText;      // "View Body", the raw body
  bool BodyViewWordsDue = false;                // "View Body", the document's words
  std::optional<std::string> MatchesText;       // "KeyWord Matches"
  std::optional<std::string> UniqueWordsLabel;  // "Unique Word Count= ..."
  std::optional<std::string> WordsLabel;        // "Word Count= ..."
  std::optional<std::string> DensityText;       // "KeyWord Density"
  std::optional<std::string> ReportText;        // "Page Report"
  bool ResultFieldsDue = false;  // the META fields and the filter list are to be shown
};

// "View Body" when it shows the document's words: the words joined are megabytes for a long
// page, so they are joined only when the box is shown or its text is asked for.
struct BodyViewFields {
  bool BodyViewPending = false;   // the box's text is still to be joined
  int32_t BodyViewWordCount = 0;  // from this many words
  // The words, once a later analysis has begun a new DocumentWords; until then they are
  // DocumentWords itself.
  std::optional<WordList> BodyViewWords;
};

}  // namespace zentrel::state
