#include "commands/control_table.h"

#include <algorithm>
#include <new>

#include "base/file_io.h"
#include "base/run_time_error.h"
#include "commands/checks.h"
#include "commands/choice_lists.h"
#include "commands/edit_meta_tags.h"
#include "commands/edit_page.h"
#include "commands/file_menu.h"
#include "commands/help_menu.h"
#include "commands/prefs.h"
#include "commands/scan_keywords.h"
#include "commands/setting_boxes.h"
#include "commands/view_body_report.h"
#include "state/app_state.h"

namespace zentrel::commands {

namespace {

std::vector<Control> Build_Control_Table() {
  std::vector<Control> t = {
      // "Scan Keywords"
      {"Command1", Command1_Click},
      {"Command2", Command2_Click},
      {"Users_METATAGS_Clear_Command", Users_METATAGS_Clear_Command_Click},
      {"KeyWords_MinKeyWordMatches_DropDown", KeyWords_MinKeyWordMatches_DropDown_Click},
      // "Edit Meta Tags"
      {"MetaTagFunctions_ReThreadDocument", MetaTagFunctions_ReThreadDocument_Click},
      {"MetaTagFunctions_MArk_ALL_Checkboxes", MetaTagFunctions_MArk_ALL_Checkboxes_Click},
      {"MetaTagFunctions_UnMArk_ALL_Checkboxes", MetaTagFunctions_UnMArk_ALL_Checkboxes_Click},
      {"MetaTagFunctions_LoadMarked", MetaTagFunctions_LoadMarked_Click},
      {"MetaTagFunctions_SaveMarked", MetaTagFunctions_SaveMarked_Click},
      {"MetaTagFunctions_ClearALL", MetaTagFunctions_ClearALL_Click},
      {"MetaTagFunctions_ClearMarked", MetaTagFunctions_ClearMarked_Click},
      {"MetaTagFunctions_CopyMarkedToClip", MetaTagFunctions_CopyMarkedToClip_Click},
      {"MetaTagFunctions_PasteClipToMarked", MetaTagFunctions_PasteClipToMarked_Click},
      {"PageMetaTags_Rating_DropDown", PageMetaTags_Rating_DropDown_Click},
      {"PageMetaTags_Robots_DropDown", PageMetaTags_Robots_DropDown_Click},
      {"PageMetaTags_Distribution_DropDown", PageMetaTags_Distribution_DropDown_Click},
      {"PageMetaTags_RevisitAfter_DropDown", PageMetaTags_RevisitAfter_DropDown_Click},
      {"PageMetaTags_Expires_SetDate", PageMetaTags_Expires_SetDate_Click},
      {"Picture2", Picture2_Click},
      // "View Body" and "Page Report"
      {"ViewBody_SaveAs", ViewBody_SaveAs_Click},
      {"PageReport_SAVEAS", PageReport_SAVEAS_Click},
      // "Checks"
      {"Checks_ShowErrors_CheckBox", Checks_Severity_CheckBox_Click},
      {"Checks_ShowWarnings_CheckBox", Checks_Severity_CheckBox_Click},
      {"Checks_ShowNotices_CheckBox", Checks_Severity_CheckBox_Click},
      {"Checks_Findings_Table", Checks_Findings_Table_DblClick},
      // "Edit Page"
      {"Html_Document_Editor_Find", Html_Document_Editor_Find_Click},
      {"Html_Document_Editor_DOFindNext", Html_Document_Editor_DOFindNext_Click},
      // "Prefs"
      {"EditWordFilters_ClearDictionary", EditWordFilters_ClearDictionary_Click},
      {"EditWordFilters_MergeDictionary", EditWordFilters_MergeDictionary_Click},
      {"EditWordFilters_ResortUpdateFilters", EditWordFilters_ResortUpdateFilters_Click},
      {"EditWordFilters_SAVE", EditWordFilters_SAVE_Click},
      {"Command9", Command9_Click},
      {"EditWordFilters_LoadDictionary", EditWordFilters_LoadDictionary_Click},
      {"EditWordFilters_SAVEAS", EditWordFilters_SAVEAS_Click},
      {"WordFiltersPage_SelectDefaultWordDictionary_Button",
       WordFiltersPage_SelectDefaultWordDictionary_Button_Click},
      {"WordFiltersPage_ResetDefaultWordDictionary_Button",
       WordFiltersPage_ResetDefaultWordDictionary_Button_Click},
      {"Defaults_Users_FileExtend_DropDown", Defaults_Users_FileExtend_DropDown_Click},
      {"HtmlDecodePref_WordDecodeStopCHR_Button", HtmlDecodePref_WordDecodeStopCHR_Button_Click},
      {"TagsOption_USE_META_TITLE", TagsOption_USE_META_TITLE_Click},
      {"Check2", Check2_Click},
      // "&File" and "&Help" menus
      {"Mnu_File_new", control37_Click},
      {"mnu_file_Load", mnu_file_Load_Click},
      {"mnu_File_SAVE", mnu_File_SAVE_Click},
      {"mnu_File_SAVESA", mnu_File_SAVESA_Click},
      {"mnu_File_Quit", mnu_File_Quit_Click},
      {"mnu_Help_Docs", mnu_Help_Docs_Click},
      {"mnu_Help_About", mnu_Help_About_Click},
  };
  // The check boxes of the settings, from the settings table.
  for (const state::Setting& row : state::Settings()) {
    if (row.CheckBox)
      t.push_back({std::string(row.Control), [&row](AppState& s) { Setting_Box_Click(s, row); }});
  }
  for (int16_t i = 0; i < 5; ++i) {
    t.push_back({"mnu_file_QuickLoadFile" + std::to_string(i + 1),
                 [i](AppState& s) { mnu_file_QuickLoadFile_Click(s, i); }});
  }
  return t;
}

}  // namespace

const std::vector<Control>& Control_Table() {
  static const std::vector<Control> table = Build_Control_Table();
  return table;
}

bool Dispatch(AppState& s, std::string_view name) {
  const auto& table = Control_Table();
  auto it =
      std::find_if(table.begin(), table.end(), [&](const Control& c) { return c.Name == name; });
  if (it == table.end())
    return false;
  s.Form.StatusBar_Text.clear();
  Run_Guarded(s, it->Handler);
  return true;
}

std::optional<std::string> Run_Guarded(AppState& s, const std::function<void(AppState&)>& command) {
  std::string message;
  try {
    command(s);
    return std::nullopt;
  } catch (const RunTimeError& e) {
    message = e.what();
  } catch (const file_io::FileError& e) {
    message = e.what();
  } catch (const std::bad_alloc&) {
    message = RunTimeError(RunTimeError::kOutOfMemory, "Out of memory").Message();
  }
  s.platform->ShowMessage(message);
  return message;
}

}  // namespace zentrel::commands
