#include "commands/file_menu.h"

#include "commands/page_loading.h"
#include "commands/page_saving.h"
#include "commands/startup.h"
#include "commands/unsaved_edits.h"
#include "state/app_state.h"

namespace zentrel::commands {

void control37_Click(AppState& s) {
  if (!Settle_Unsaved_Edits(s))
    return;
  Clear_Document(s);
  Mark_Page_Saved(s);
}

void mnu_file_Load_Click(AppState& s) {
  Do_Load_File(s, s.CurrentFileName, 0);
}

// The encoder returns at once for an empty name, so this entry writes nothing; the status bar
// says where saving is.
void mnu_File_SAVE_Click(AppState& s) {
  HTML_ENCODE_Document(s, "", 0);
  s.Form.StatusBar_Text = kSavePageWritesNothing;
}

void mnu_File_SAVESA_Click(AppState& s) {
  Do_save(s);
}

void mnu_file_QuickLoadFile_Click(AppState& s, int16_t index) {
  Load_File_QuickLoadMenu(s, index);
}

void mnu_File_Quit_Click(AppState& s) {
  if (Settle_Unsaved_Edits(s))
    ProgramEnded(s);
}

}  // namespace zentrel::commands
