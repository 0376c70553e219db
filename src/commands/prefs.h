#pragma once
// The "Prefs" tab: the filter dictionary buttons, the decoder and encoder check boxes, the word
// delimiter box, and the default file extension.

#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

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
void MetaTagEncodePref_SwapContentAndNameOrder_CheckBox_Click(AppState& s);
void MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox_Click(AppState& s);
void TagsOption_USE_META_TITLE_Click(AppState& s);
void Check2_Click(AppState& s);

// Writes the delimiter box and runs its change handler (the delimiter string follows it).
void Set_HtmlDecodePref_WordDecodeStopCHR_TextBox(AppState& s, const std::string& text);
void HtmlDecodePref_WordDecodeStopCHR_TextBox_Change(AppState& s);
void HtmlDecodePref_WordDecodeStopCHR_Button_Click(AppState& s);

}  // namespace zentrel::commands
