#include "commands/startup.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "commands/checks.h"
#include "commands/choice_lists.h"
#include "commands/control_table.h"
#include "commands/page_loading.h"
#include "commands/preferences.h"
#include "commands/setting_boxes.h"
#include "commands/word_filters.h"
#include "decode/meta_tag_table.h"
#include "document/tag_scanner.h"
#include "state/app_state.h"
#include "words/word_extraction.h"

namespace zentrel::commands {

namespace {

// The settings take their defaults. The first read of the preferences file is overwritten
// by them, its recent pages included, so that the second read alone stands.
void Set_Defaults(AppState& s) {
  state::Set_Setting_Defaults(s);
  s.RecentFiles = {};
  s.RecentFileCount = 0;
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
      Set_Defaults(s);
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
    Init_Checks,
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
  s.WordDelimiterChars = state::kDefaultWordDelimiters;
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
