#pragma once
// The keyword list of one analysis: the page's own META keywords and the user's additional
// keywords, cleaned of duplicates and low counts and sorted by body matches.

#include <cstdint>
#include <string>
#include <vector>

namespace zentrel {
struct AppState;
}

namespace zentrel::analysis {

inline constexpr int16_t kKeywordListStart = 500;
inline constexpr int16_t kKeywordListStep = 200;
inline constexpr int kKeywordSortTally = 5001;  // body matches 0..5000

struct KeywordListFields {
  // Five per-keyword arrays with indexes 0..KeywordCapacity.
  std::vector<std::string> KeywordList;
  std::vector<int16_t> KeywordBodyMatches;
  std::vector<int16_t> KeywordTitleMatches;
  std::vector<int16_t> KeywordFirstChr;
  std::vector<std::string> KeywordPhrase;
  // KeywordWords[keyword index 0..KeywordCapacity][word index 0..KeywordLastWordIndex]: each
  // keyword keeps only its own words, so one long phrase does not widen every keyword's row.
  // KeywordWordsSize still records the highest word bound reached.
  std::vector<std::vector<std::string>> KeywordWords;
  std::vector<int16_t> KeywordLastWordIndex;
  int16_t KeywordWordsSize = 1;
  int16_t KeywordCount = 0;
  int16_t KeywordCapacity = 0;
  // The duplicates found by the last check, each with CR LF. The analysis hands the text over
  // to its report line, so after an analysis it is empty.
  std::string KeywordDoublesText;
  std::string CurrentKeyword;
  int16_t KeywordSplitCount = 0;  // parts of the last keyword split (page's or user's)
};

// The reset the analysis performs before it fills the list.
void Reset_Keyword_List(AppState& s);
void Add_Word_To_KeyWord_buffer(AppState& s, const std::string& word);
void Add_Pages_MetaTag_keywords(AppState& s);
void Add_Users_Hand_Selected_Keywords_to_Pages_keywords(AppState& s);
int16_t Check_Keywords_For_Doubles(AppState& s);
void Remove_Keyword_Doubles(AppState& s);
void Remove_Keyword_With_Low_Match_Counts(AppState& s);
void Sort_Page_KeyWord_Strings(AppState& s);

}  // namespace zentrel::analysis
