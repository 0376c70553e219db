#include "app/control_table.h"

#include <algorithm>
#include <new>

#include "analysis/analysis_driver.h"
#include "analysis/report_export.h"
#include "app/page_loading.h"
#include "app/page_saving.h"
#include "app/source_search.h"
#include "base/file_io.h"
#include "base/run_time_error.h"
#include "metatags/choice_lists.h"
#include "metatags/meta_tag_panel.h"
#include "metatags/page_encoder.h"
#include "state/app_state.h"
#include "words/dictionary_commands.h"

namespace zentrel::app {

namespace {

using analysis::Command2_Click;

std::vector<Control> Build_Control_Table() {
  std::vector<Control> t = {
      // "Scan Keywords"
      {"Command1", Command1_Click},
      {"Command2", Command2_Click},
      {"Users_METATAGS_Clear_Command", analysis::Users_METATAGS_Clear_Command_Click},
      {"KeyWords_SortList", words::KeyWords_SortList_Click},
      {"KeyWords_RemoveDoubleKeyWordListings", words::KeyWords_RemoveDoubleKeyWordListings_Click},
      {"KeyWords_ForceSameCaseMatching", words::KeyWords_ForceSameCaseMatching_Click},
      {"KeyWords_MinKeyWordMatches_Option", words::KeyWords_MinKeyWordMatches_Option_Click},
      {"KeyWords_MatchScanType_CheckBOx", words::KeyWords_MatchScanType_CheckBOx_Click},
      {"KeyWordMatch_Disable_Part_Keyword_Matches",
       words::KeyWordMatch_Disable_Part_Keyword_Matches_Click},
      {"WordMatch_ForceCase", words::WordMatch_ForceCase_Click},
      {"WordMatch_IgnoreAlphaNumericWords", words::WordMatch_IgnoreAlphaNumericWords_Click},
      // "Edit Meta Tags"
      {"MetaTagFunctions_ReThreadDocument", metatags::MetaTagFunctions_ReThreadDocument_Click},
      {"MetaTagFunctions_MArk_ALL_Checkboxes",
       metatags::MetaTagFunctions_MArk_ALL_Checkboxes_Click},
      {"MetaTagFunctions_UnMArk_ALL_Checkboxes",
       metatags::MetaTagFunctions_UnMArk_ALL_Checkboxes_Click},
      {"MetaTagFunctions_LoadMarked", metatags::MetaTagFunctions_LoadMarked_Click},
      {"MetaTagFunctions_SaveMarked", metatags::MetaTagFunctions_SaveMarked_Click},
      {"MetaTagFunctions_ClearALL", metatags::MetaTagFunctions_ClearALL_Click},
      {"MetaTagFunctions_ClearMarked", metatags::MetaTagFunctions_ClearMarked_Click},
      {"MetaTagFunctions_CopyMarkedToClip", metatags::MetaTagFunctions_CopyMarkedToClip_Click},
      {"MetaTagFunctions_PasteClipToMarked", metatags::MetaTagFunctions_PasteClipToMarked_Click},
      {"PageMetaTags_Rating_DropDown", metatags::PageMetaTags_Rating_DropDown_Click},
      {"PageMetaTags_Robots_DropDown", metatags::PageMetaTags_Robots_DropDown_Click},
      {"PageMetaTags_Distribution_DropDown", metatags::PageMetaTags_Distribution_DropDown_Click},
      {"PageMetaTags_RevisitAfter_DropDown", metatags::PageMetaTags_RevisitAfter_DropDown_Click},
      {"PageMetaTags_Expires_SetDate", metatags::PageMetaTags_Expires_SetDate_Click},
      {"Picture2", Picture2_Click},
      // "View Body" and "Page Report"
      {"ViewBody_SaveAs", analysis::ViewBody_SaveAs_Click},
      {"ViewBody_ShowRAWBODY_CHeckBox", analysis::ViewBody_ShowRAWBODY_CHeckBox_Click},
      {"PageReport_SAVEAS", analysis::PageReport_SAVEAS_Click},
      {"PageReport_Export_WordCount_CheckBox",
       analysis::PageReport_Export_WordCount_CheckBox_Click},
      // "Edit Page"
      {"Html_Document_Editor_Find", Html_Document_Editor_Find_Click},
      {"Html_Document_Editor_DOFindNext", Html_Document_Editor_DOFindNext_Click},
      // "Prefs"
      {"EditWordFilters_ClearDictionary", words::EditWordFilters_ClearDictionary_Click},
      {"EditWordFilters_MergeDictionary", words::EditWordFilters_MergeDictionary_Click},
      {"EditWordFilters_ResortUpdateFilters", words::EditWordFilters_ResortUpdateFilters_Click},
      {"EditWordFilters_SAVE", words::EditWordFilters_SAVE_Click},
      {"Command9", words::Command9_Click},
      {"EditWordFilters_LoadDictionary", words::EditWordFilters_LoadDictionary_Click},
      {"EditWordFilters_SAVEAS", words::EditWordFilters_SAVEAS_Click},
      {"WordFiltersPage_SelectDefaultWordDictionary_Button",
       words::WordFiltersPage_SelectDefaultWordDictionary_Button_Click},
      {"WordFiltersPage_ResetDefaultWordDictionary_Button",
       words::WordFiltersPage_ResetDefaultWordDictionary_Button_Click},
      {"Defaults_Users_FileExtend_DropDown", words::Defaults_Users_FileExtend_DropDown_Click},
      {"HtmlDecodePref_IncludeTitleWithBody_CheckBox",
       words::HtmlDecodePref_IncludeTitleWithBody_CheckBox_Click},
      {"HtmlDecodePref_IncludeALTTEXT_CheckBox",
       words::HtmlDecodePref_IncludeALTTEXT_CheckBox_Click},
      {"HtmlDecodePref_IncludeBODYTEXT_CheckBox",
       words::HtmlDecodePref_IncludeBODYTEXT_CheckBox_Click},
      {"HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox",
       words::HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox_Click},
      {"HtmlDecodePref_WordDecodeStopCHR_Button",
       words::HtmlDecodePref_WordDecodeStopCHR_Button_Click},
      {"MetaTagEncodePref_SwapContentAndNameOrder_CheckBox",
       metatags::MetaTagEncodePref_SwapContentAndNameOrder_CheckBox_Click},
      {"MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox",
       metatags::MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox_Click},
      {"TagsOption_USE_META_TITLE", metatags::TagsOption_USE_META_TITLE_Click},
      {"Check2", metatags::Check2_Click},
      // "&File" menu
      {"Mnu_File_new", control37_Click},
      {"mnu_file_Load", mnu_file_Load_Click},
      {"mnu_File_SAVE", mnu_File_SAVE_Click},
      {"mnu_File_SAVESA", mnu_File_SAVESA_Click},
      {"mnu_File_Quit", mnu_File_Quit_Click},
  };
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

}  // namespace zentrel::app
