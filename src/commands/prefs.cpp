#include "commands/prefs.h"

#include "base/text.h"
#include "commands/page_loading.h"
#include "commands/page_saving.h"
#include "commands/setting_boxes.h"
#include "commands/startup.h"
#include "commands/word_filters.h"
#include "state/app_state.h"
#include "words/filter_dictionary.h"

namespace zentrel::commands {

namespace {

constexpr const char* kWarningTitle = "WARNING";
constexpr const char* kDictionaryFilter = "(*.txt)|*.txt|";
constexpr const char* kDictionaryExt = ".txt";
constexpr const char* kOverwriteStandard =
    "WARNING - Overwrite Zentrel Default Filter Dictionary ? Are you sure ?";

std::string Choose_Dictionary_To_Load(AppState& s) {
  return Do_Select_Load_File(s, kDictionaryFilter, 1, kDictionaryExt);
}

bool Is_Standard_Dictionary(const AppState& s, const std::string& path) {
  return text::LCase(path) == text::LCase(words::Standard_Dictionary_Path(s));
}

bool Confirm(AppState& s, const std::string& question) {
  return s.platform->AskYesNo(kWarningTitle, question);
}

}  // namespace

void EditWordFilters_ClearDictionary_Click(AppState& s) {
  if (!Confirm(s, "WARNING - Clear Filters ? Are you sure ?"))
    return;
  s.Form.WordFiltersPage_WordDictionary.clear();
  Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
}

void EditWordFilters_MergeDictionary_Click(AppState& s) {
  std::string path = Choose_Dictionary_To_Load(s);
  if (path.empty())
    return;
  Load_Word_Filter_Dictionary(s, path, s.Form.WordFiltersPage_WordDictionary + "\r\n");
  Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
}

void EditWordFilters_ResortUpdateFilters_Click(AppState& s) {
  Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
}

// Always writes the standard dictionary, whichever file is current; only overwriting the one
// shown as current needs a confirmation.
void EditWordFilters_SAVE_Click(AppState& s) {
  if (Is_Standard_Dictionary(s, s.Form.WordFiltersPage_CurrentWordDictionary_Text) &&
      !Confirm(s, kOverwriteStandard))
    return;
  Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
  Save_Word_Filter_Dictionary(s, words::Standard_Dictionary_Path(s));
}

void Command9_Click(AppState& s) {
  if (!Confirm(s, "WARNING - Restore Filter Dictionary ? Are you sure ?"))
    return;
  Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
  Build_Filter_Word_Dictionary(s);
}

void EditWordFilters_LoadDictionary_Click(AppState& s) {
  std::string path = Choose_Dictionary_To_Load(s);
  if (path.empty())
    return;
  s.Form.WordFiltersPage_CurrentWordDictionary_Text = path;
  Load_Word_Filter_Dictionary(s, path, "");
  Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
}

void EditWordFilters_SAVEAS_Click(AppState& s) {
  std::string path = Do_Select_Save_File(s, "", kDictionaryFilter, 1, kDictionaryExt);
  if (path.empty())
    return;
  if (Is_Standard_Dictionary(s, path) && !Confirm(s, kOverwriteStandard))
    return;
  Resort_And_Removed_Doubles_From_Filter_Dictionary(s);
  Save_Word_Filter_Dictionary(s, path);
  s.Form.WordFiltersPage_CurrentWordDictionary_Text = path;
}

void WordFiltersPage_SelectDefaultWordDictionary_Button_Click(AppState& s) {
  std::string path = Choose_Dictionary_To_Load(s);
  if (path.empty())
    return;
  Load_Default_Word_Filters(s, path);
  s.Form.WordFiltersPage_CurrentWordDictionary_Text = path;
}

// The words in use stay until the next start-up loads the standard dictionary.
void WordFiltersPage_ResetDefaultWordDictionary_Button_Click(AppState& s) {
  s.FilterDictionaryFile.clear();
  s.Form.WordFiltersPage_SelectDefaultWordDictionary_Text.clear();
}

void Defaults_Users_FileExtend_DropDown_Click(AppState& s) {
  const std::string& choice = s.Form.Defaults_Users_FileExtend_DropDown.Text;
  int32_t index = 0;
  if (choice == ".html")
    index = 1;
  else if (choice == ".htm")
    index = 2;
  else if (choice == ".txt")
    index = 3;
  else
    return;
  s.DefaultFileExtension = choice;
  s.DefaultFileTypeIndex = index;
}

// Each box sets its flag only; the next analysis reads it.
void HtmlDecodePref_IncludeTitleWithBody_CheckBox_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::HtmlDecodePref_IncludeTitleWithBody_CheckBox);
}

void HtmlDecodePref_IncludeALTTEXT_CheckBox_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::HtmlDecodePref_IncludeALTTEXT_CheckBox);
}

void HtmlDecodePref_IncludeBODYTEXT_CheckBox_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::HtmlDecodePref_IncludeBODYTEXT_CheckBox);
}

void HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox);
}

void MetaTagEncodePref_SwapContentAndNameOrder_CheckBox_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::MetaTagEncodePref_SwapContentAndNameOrder_CheckBox);
}

void MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox_Click(AppState& s) {
  Setting_Box_Click(s, &state::FormModel::MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox);
}

// The encoder reads this box itself at each run.
void TagsOption_USE_META_TITLE_Click(AppState&) {}

// "Replace Known META TAGS" is shown only: the encoder always replaces the known tags.
void Check2_Click(AppState&) {}

void Set_HtmlDecodePref_WordDecodeStopCHR_TextBox(AppState& s, const std::string& text) {
  s.Form.HtmlDecodePref_WordDecodeStopCHR_TextBox = text;
  HtmlDecodePref_WordDecodeStopCHR_TextBox_Change(s);
}

// The word-break table follows at the next decode.
void HtmlDecodePref_WordDecodeStopCHR_TextBox_Change(AppState& s) {
  Setting_Text_Box_Change(s, &state::FormModel::HtmlDecodePref_WordDecodeStopCHR_TextBox);
}

void HtmlDecodePref_WordDecodeStopCHR_Button_Click(AppState& s) {
  Reset_Default_Html_Word_Delimiter(s);
  Set_HtmlDecodePref_WordDecodeStopCHR_TextBox(s, s.WordDelimiterChars);
}

}  // namespace zentrel::commands
