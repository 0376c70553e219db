#pragma once
// The "Prefs" tab's commands: the filter dictionary buttons, the decoder and matching check
// boxes, the word delimiter box, and the default file extension.

#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::words {

void EditWordFilters_ClearDictionary_Click(AppState& s);
void EditWordFilters_MergeDictionary_Click(AppState& s);
void EditWordFilters_ResortUpdateFilters_Click(AppState& s);
void EditWordFilters_SAVE_Click(AppState& s);
void Command9_Click(AppState& s);
void EditWordFilters_LoadDictionary_Click(AppState& s);
void EditWordFilters_SAVEAS_Click(AppState& s);
void WordFiltersPage_SelectDefaultWordDictionary_Button_Click(AppState& s);
void WordFiltersPage_ResetDefaultWordDictionary_Button_Click(AppState& s);

void Defaults_Users_FileExtend_DropDown_Click(AppState& s);

void HtmlDecodePref_IncludeTitleWithBody_CheckBox_Click(AppState& s);
void HtmlDecodePref_IncludeALTTEXT_CheckBox_Click(AppState& s);
void HtmlDecodePref_IncludeBODYTEXT_CheckBox_Click(AppState& s);
void HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox_Click(AppState& s);
void WordMatch_ForceCase_Click(AppState& s);
void WordMatch_IgnoreAlphaNumericWords_Click(AppState& s);
void KeyWords_ForceSameCaseMatching_Click(AppState& s);
void KeyWords_MatchScanType_CheckBOx_Click(AppState& s);
void KeyWordMatch_Disable_Part_Keyword_Matches_Click(AppState& s);
void KeyWords_RemoveDoubleKeyWordListings_Click(AppState& s);
void KeyWords_SortList_Click(AppState& s);
void KeyWords_MinKeyWordMatches_Option_Click(AppState& s);

// Writes the delimiter box and runs its change handler (the delimiter string follows it).
void Set_HtmlDecodePref_WordDecodeStopCHR_TextBox(AppState& s, const std::string& text);
void HtmlDecodePref_WordDecodeStopCHR_TextBox_Change(AppState& s);
void HtmlDecodePref_WordDecodeStopCHR_Button_Click(AppState& s);

}  // namespace zentrel::words
