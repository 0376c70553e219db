#pragma once
// The "&File" menu.

#include <cstdint>

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

void control37_Click(AppState& s);  // "&New"
void mnu_file_Load_Click(AppState& s);
void mnu_File_SAVE_Click(AppState& s);
void mnu_File_SAVESA_Click(AppState& s);
void mnu_file_QuickLoadFile_Click(AppState& s, int16_t index);  // entries 1..5 as 0..4
void mnu_File_Quit_Click(AppState& s);

}  // namespace zentrel::commands
