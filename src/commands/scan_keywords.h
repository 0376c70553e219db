#pragma once
// The "Scan Keywords" tab: loading and rescanning the page, the analysis shown in the result
// boxes, the additional keywords box, and the keyword and word matching check boxes.

#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

void Command1_Click(AppState& s);  // "Load Page"
void Command2_Click(AppState& s);  // "Rescan"
void ReScanPage(AppState& s);
// Analyses the loaded page and shows the results: the report, the result boxes, "View Body",
// the META tag fields and the filter list. An analysis that an error ends shows what it
// produced before the error, and the error goes on to the caller.
void Meta_Tag_KeyWord_Scan(AppState& s, const std::string& fileName);

// Writes the additional keywords box and runs its change handler.
void Set_Users_METATAGS_TextBox(AppState& s, const std::string& text);
void Users_METATAGS_TextBox_Change(AppState& s);
void Users_METATAGS_Clear_Command_Click(AppState& s);

void KeyWords_SortList_Click(AppState& s);
void KeyWords_RemoveDoubleKeyWordListings_Click(AppState& s);
void KeyWords_ForceSameCaseMatching_Click(AppState& s);
void KeyWords_MinKeyWordMatches_Option_Click(AppState& s);
// Keeps the minimum picked beside "Remove Keywords With Less Than" as the setting, so the
// preferences file remembers it.
void KeyWords_MinKeyWordMatches_DropDown_Click(AppState& s);
void KeyWords_MatchScanType_CheckBOx_Click(AppState& s);
void KeyWordMatch_Disable_Part_Keyword_Matches_Click(AppState& s);
void WordMatch_ForceCase_Click(AppState& s);
void WordMatch_IgnoreAlphaNumericWords_Click(AppState& s);

}  // namespace zentrel::commands
