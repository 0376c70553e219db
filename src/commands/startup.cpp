#include "commands/startup.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "commands/choice_lists.h"
#include "commands/control_table.h"
#include "commands/page_loading.h"
#include "commands/preferences.h"
#include "commands/prefs.h"
#include "commands/word_filters.h"
#include "decode/meta_tag_table.h"
#include "document/tag_scanner.h"
#include "state/app_state.h"
#include "words/word_extraction.h"

namespace zentrel::commands {

namespace {

constexpr int kMaxMinMatches = 99;

void Set_Setting_Defaults(AppState& s) {
  s.DefaultFileExtension = ".htm";
  s.DefaultFileTypeIndex = 2;
  s.WordMatchIgnoreAlphaNumeric = 1;
  s.KeywordsDisablePartMatches = 1;
  s.KeywordsSortList = 1;
  s.KeywordsRemoveDoubles = 1;
  s.KeywordsForceSameCase = 1;
  s.KeywordsUseMinMatches = 0;
  s.KeywordsMinMatches = 1;
  s.KeywordsMatchScanType = 1;
  s.DecodeIncludeBodyText = 1;
  s.DecodeIncludeAltText = 1;
  s.DecodeIncludeTitleWithBody = 1;
  s.DecodeIncludeMetaDescriptionWithBody = 0;
  s.EncodeSwapContentAndNameOrder = 0;
  s.EncodeComaSpaceBetweenKeywords = 1;
  s.ReportExportWordCount = 0;
  s.ViewBodyShowRaw = 0;
  // The first read of the preferences file is overwritten by the defaults, its recent pages
  // included, so that the second read alone stands.
  s.RecentFiles = {};
  s.RecentFileCount = 0;
}

void Fill_Min_Matches_DropDown(AppState& s) {
  state::DropDown& box = s.Form.KeyWords_MinKeyWordMatches_DropDown;
  box.List.clear();
  box.Text.clear();
  for (int n = 1; n <= kMaxMinMatches; ++n) {
    box.List.push_back(text::SignedNumber(n) + (n == 1 ? " Match" : " Matches"));
    if (n == s.KeywordsMinMatches)
      box.Text = box.List.back();
  }
}

void Build_Letter_Table(AppState& s) {
  for (int c = 'a'; c <= 'z'; ++c)
    At(s.LetterTable, c) = 1;
  for (int c = 'A'; c <= 'Z'; ++c)
    At(s.LetterTable, c) = 1;
}

using Step = void (*)(AppState&);

// Start-up in its order. Each step runs guarded: a run-time error (a filter dictionary too
// large for its 16-bit count, say) is shown and ends that step only, so the later steps still
// build the tables and the program comes up usable.
constexpr Step kStartupSteps[] = {
    [](AppState& s) {
      s.Form.Left = s.Form.ScreenWidth / 2 - s.Form.Width / 2;
      s.Form.Top = s.Form.ScreenHeight / 2 - s.Form.Height / 2;
      SET_PROGRAM_TITLE(s, "");
      s.ProgramFolder = Program_Folder(s.platform->ExecutableFolder());
    },
    [](AppState& s) { LoadPreferencesFile(s); },
    [](AppState& s) {
      s.UsersKeywordsText.clear();
      s.FilterDictionaryFile.clear();
    },
    decode::Init_MetaTag_Table,
    document::Build_Tag_list,
    Build_Filter_Word_Dictionary,
    [](AppState& s) {
      Set_Setting_Defaults(s);
      Reset_Default_Html_Word_Delimiter(s);
    },
    SET_CHeck_boxes,
    Build_Letter_Table,
    [](AppState& s) {
      words::Init_Get_word_string_Chr_table(s);
      s.Form.SelectedTab = 0;
      s.EditorFindText.clear();
      s.EditorFindPreviousText.clear();
      s.EditorFindPosition = 1;
    },
    [](AppState& s) { LoadPreferencesFile(s); },
    Show_Quick_Load_File_MNU_Listings,
    [](AppState& s) {
      SET_CHeck_boxes(s);
      SET_PROGRAM_TITLE(s, "");
    },
    Set_Drop_Downs,
    [](AppState& s) { Load_Default_Word_Filters(s, s.FilterDictionaryFile); },
};

}  // namespace

bool Form_Load(AppState& s) {
  return Init_Programs_Defaults(s);
}

bool Init_Programs_Defaults(AppState& s) {
  bool completed = true;
  for (Step step : kStartupSteps)
    completed = !Run_Guarded(s, step) && completed;
  return completed;
}

void SET_PROGRAM_TITLE(AppState& s, const std::string& suffix) {
  s.Form.Caption = suffix + "   " + kProgramName + " " + kProgramVersion;
}

void Reset_Default_Html_Word_Delimiter(AppState& s) {
  s.WordDelimiterChars = "\"#=<>^()[]{}/.,;:+-_*&!?@%";
}

void SET_CHeck_boxes(AppState& s) {
  state::FormModel& f = s.Form;
  f.WordMatch_ForceCase = s.WordMatchForceCase;
  f.WordMatch_IgnoreAlphaNumericWords = s.WordMatchIgnoreAlphaNumeric;
  f.KeyWordMatch_Disable_Part_Keyword_Matches = s.KeywordsDisablePartMatches;
  f.KeyWords_SortList = s.KeywordsSortList;
  f.KeyWords_RemoveDoubleKeyWordListings = s.KeywordsRemoveDoubles;
  f.KeyWords_ForceSameCaseMatching = s.KeywordsForceSameCase;
  f.KeyWords_MinKeyWordMatches_Option = s.KeywordsUseMinMatches;
  Fill_Min_Matches_DropDown(s);
  f.KeyWords_MatchScanType_CheckBOx = s.KeywordsMatchScanType;
  f.HtmlDecodePref_IncludeBODYTEXT_CheckBox = s.DecodeIncludeBodyText;
  f.HtmlDecodePref_IncludeALTTEXT_CheckBox = s.DecodeIncludeAltText;
  f.HtmlDecodePref_IncludeTitleWithBody_CheckBox = s.DecodeIncludeTitleWithBody;
  f.HtmlDecodePref_IncludeMetaDizzyWithBody_CheckBox = s.DecodeIncludeMetaDescriptionWithBody;
  f.MetaTagEncodePref_SwapContentAndNameOrder_CheckBox = s.EncodeSwapContentAndNameOrder;
  f.MetaTagEncodePref_UseComaSpaceBetweenKeyWords_CheckBox = s.EncodeComaSpaceBetweenKeywords;
  f.PageReport_Export_WordCount_CheckBox = s.ReportExportWordCount;
  f.ViewBody_ShowRAWBODY_CHeckBox = s.ViewBodyShowRaw;
  Set_HtmlDecodePref_WordDecodeStopCHR_TextBox(s, s.WordDelimiterChars);
}

std::string Program_Folder(const std::string& executableFolder) {
  std::string folder = executableFolder;
  if (!folder.empty() && folder.back() == '/')
    folder.pop_back();
  return folder;
}

void Form_Unload(AppState& s) {
  ProgramEnded(s);
}

void ProgramEnded(AppState& s) {
  // A preferences file that cannot be written must not keep the program from closing; the
  // atomic writer has left the old file as it was.
  Run_Guarded(s, SavePreferencesFile);
  s.Form.ProgramHasEnded = true;
}

}  // namespace zentrel::commands
