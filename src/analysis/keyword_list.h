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
