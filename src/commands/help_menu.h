#pragma once
// The "&Help" menu: the help page and the about box.

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

void mnu_Help_Docs_Click(AppState& s);
void mnu_Help_About_Click(AppState& s);

}  // namespace zentrel::commands
