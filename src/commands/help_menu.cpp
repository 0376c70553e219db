#include "commands/help_menu.h"

#include "state/app_state.h"

namespace zentrel::commands {

void mnu_Help_Docs_Click(AppState& s) {
  s.platform->OpenDocument(s.ProgramFolder + "/docs/index.htm");
}

void mnu_Help_About_Click(AppState& s) {
  s.Form.AboutBoxRequested = true;
}

}  // namespace zentrel::commands
