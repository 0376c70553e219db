#include "analysis/analysis_driver.h"

#include <algorithm>
#include <vector>

#include "analysis/keyword_list.h"
#include "analysis/keyword_matching.h"
#include "analysis/page_report.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "decode/decoder.h"
#include "decode/meta_tag_table.h"
#include "state/app_state.h"
#include "words/filter_dictionary.h"
#include "words/word_count.h"

namespace zentrel::analysis {

namespace {

using text::SignedNumber;

void Blank(AppState& s) {
  Report(s, "");
}

size_t LongestOf(const std::vector<std::string>& lines) {
  size_t longest = 0;
  for (const std::string& line : lines)
    longest = std::max(longest, line.size());
  return longest;
}

void ResetForScan(AppState& s) {
  static_cast<state::AnalysisResultFields&>(s) = {};
  s.StrippedText.clear();
  Reset_Report(s);
  Reset_Keyword_List(s);
  decode::Init_MetaTag_Table(s);
  s.TitleText.clear();
  s.TitleStart = 0;
  s.TitleEnd = 0;
  // A "View Body" not joined yet keeps the words it shows, should this analysis end early.
  if (s.BodyViewPending && !s.BodyViewWords)
    s.BodyViewWords = std::move(s.DocumentWords);
  words::Init_Document_Word_List(s);
  words::Build_Filter_Words_Text(s);
}

void ReportHead(AppState& s) {
  Report_Center(s, "Title: " + s.TitleText);
  Blank(s);
  Report_Center(s, "Title Character Length:" +
                       SignedNumber(static_cast<int64_t>(s.TitleText.size())) + " Characters");
  Blank(s);
  Report_Center(s, " File: " + s.CurrentFileName);
  Blank(s);
  Report_Center(s, " Size:" + SignedNumber(s.DocumentLength) + " Bytes");
  Blank(s);
}

void ReportDoubles(AppState& s) {
  if (Check_Keywords_For_Doubles(s) != 1)
    return;
  Blank(s);
  Report_Center(s, "Keyword-Error-Repeated String");
  Report_Center(s, std::move(s.KeywordDoublesText));  // the report keeps the one copy
  if (s.KeywordsRemoveDoubles == 1) {
    Report_Center(s, "**** Keyword-Doubles-Removed *****");
    Remove_Keyword_Doubles(s);
  }
}

// The title section pads each title line to the width of the body line of the keyword that
// last widened it, not to its own; a title line longer than that width ends the analysis.
void ReportTitleMatches(AppState& s, int16_t titleHits, const std::vector<std::string>& lines) {
  Blank(s);
  Blank(s);
  Report_Title(s, "KeyWord To TITLE Matches");
  Blank(s);
  const std::string head = "Title Matches:" + SignedNumber(titleHits);
  if (titleHits < 1) {
    Report_Center(s, head + " **** WARNING NO MATCHES *****");
    Blank(s);
    return;
  }
  Report_Center(s, head);
  Blank(s);
  std::vector<std::string> titleLines;
  size_t width = 0;
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    const int16_t hits = At(s.KeywordTitleMatches, i);
    if (hits <= 0)
      continue;
    titleLines.push_back(SignedNumber(hits) + " - " + At(s.KeywordList, i));
    if (titleLines.back().size() > width)
      width = At(lines, i).size();
  }
  for (const std::string& line : titleLines) {
    if (line.size() > width)
      RaiseInvalidProcedureCall();
    Report_Center(s, text::PadRight(line, width));
  }
}

void ReportPadded(AppState& s, const std::vector<std::string>& lines) {
  const size_t width = LongestOf(lines);
  for (const std::string& line : lines)
    Report_Center(s, text::PadRight(line, width));
}

void ReportDensity(AppState& s) {
  std::string box;
  if (s.KeywordSplitCount > 0) {
    std::vector<std::string> lines;
    for (int16_t i = 0; i < s.KeywordCount; ++i) {
      lines.push_back(Keyword_Density_Text(s, i) + "% - " + At(s.KeywordList, i));
      box += " " + lines.back() + std::string(text::kCrLf);
    }
    Blank(s);
    Blank(s);
    Blank(s);
    Report_Title(s, "-= KeyWord Density =-");
    Blank(s);
    ReportPadded(s, lines);
  }
  s.DensityText = std::move(box);
}

void ReportWordCount(AppState& s) {
  std::vector<std::string> lines;
  std::string box;
  for (int32_t j = 0; j < s.UniqueWordCount; ++j) {
    lines.push_back(SignedNumber(At(s.UniqueWordCounts, j)) + " - " + At(s.UniqueWords, j));
    box += lines.back();
    box += text::kCrLf;
  }
  s.WordCountText = std::move(box);
  if (s.ReportExportWordCount != 1)
    return;
  Blank(s);
  Blank(s);
  Blank(s);
  Report_Section_Break(s, "Documents Word Counted Body");
  Blank(s);
  Blank(s);
  Report_Title(s, "-= Unique Words In Document" + SignedNumber(s.UniqueWordCount) + " =-");
  Blank(s);
  ReportPadded(s, lines);
}

// "View Body" shows the words counted (joined when shown), unless it is to show the raw body,
// which the decoder has then left in StrippedText (it decodes no empty page).
void RawBodyView(AppState& s) {
  if (s.ViewBodyShowRaw == 1 && s.DocumentLength >= 1)
    s.BodyViewText = s.StrippedText;
}

void WordsBodyView(AppState& s) {
  if (s.ViewBodyShowRaw == 1)
    return;
  const int32_t count = s.DocumentWordCount;
  if (count > 0)
    CheckIndex(count - 1, 0, static_cast<int64_t>(s.DocumentWords.size()) - 1);
  s.BodyViewWordsDue = true;
}

}  // namespace

void Analyse_Page(AppState& s) {
  state::BusyCursor busy(*s.platform);
  s.platform->DoEvents();
  ResetForScan(s);
  s.WordCountText = "";
  Report_Section_Break(s, "Zentrel Page Report");
  Blank(s);
  Blank(s);
  decode::HTML_Decode_Document(s);
  RawBodyView(s);
  ReportHead(s);
  words::Word_Count_Stripped_Text(s);
  Add_Pages_MetaTag_keywords(s);
  Add_Users_Hand_Selected_Keywords_to_Pages_keywords(s);
  Blank(s);
  Blank(s);
  Report_Section_Break(s, "Keyword To Body Results");
  ReportDoubles(s);

  const int16_t titleHits = Tally_Current_TITLE_Keyword_Matches(s);
  Tally_Current_Documents_Keyword_Matches(s);
  WordsBodyView(s);
  Remove_Keyword_With_Low_Match_Counts(s);
  Sort_Page_KeyWord_Strings(s);

  std::vector<std::string> lines;
  std::string matchesBox;
  int64_t keywordLength = 0;
  for (int16_t i = 0; i < s.KeywordCount; ++i) {
    lines.push_back(SignedNumber(At(s.KeywordBodyMatches, i)) + " - " + At(s.KeywordList, i));
    keywordLength += static_cast<int64_t>(lines.back().size()) + 2;
    matchesBox += lines.back();
    matchesBox += text::kCrLf;
  }
  // The box is cut one character past the text, which leaves one space at its end.
  s.MatchesText = matchesBox + " ";
  keywordLength += 2 * (int64_t{s.KeywordCount} - 1);

  Blank(s);
  std::string count = "Number of KeyWords:" + SignedNumber(s.KeywordCount);
  if (s.KeywordCount == 0)
    count += " *** WARNING *** Document Has No Keywords";
  if (s.KeywordCount > 20)
    count += " *** WARNING *** Document Has OVER 20 Keywords";
  Report_Center(s, count);
  Blank(s);

  if (keywordLength < 0)
    keywordLength = 0;
  std::string length = "KeyWord Characters Length:" + SignedNumber(keywordLength) + " Characters";
  if (keywordLength >= 256)
    length += " *** WARNING *** KeyWORD total length exceed 256 Characters";
  Report_Center(s, length);
  Blank(s);
  Report_Center(s, "  Total Words in Document:" + SignedNumber(s.DocumentWordCount));
  Blank(s);

  if (s.KeywordCount > 0) {
    ReportTitleMatches(s, titleHits, lines);
    Blank(s);
    Blank(s);
    Report_Title(s, "-= KeyWord Count =-");
    Blank(s);
    ReportPadded(s, lines);
  }

  s.UniqueWordsLabel = "Unique Word Count=" + SignedNumber(s.UniqueWordCount);
  s.WordsLabel = "Word Count=" + SignedNumber(s.DocumentWordCount);
  ReportDensity(s);
  ReportWordCount(s);

  s.ResultFieldsDue = true;
  Blank(s);
  Blank(s);
  Report_Section_Break(s, "Process Done");
  s.ReportText = Report_Text(s);
}

}  // namespace zentrel::analysis
