#pragma once
// Opening pages (the "&File" menu and "Load Page"), the five recent pages, and "&New".

#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::app {

inline constexpr const char* kPageFilter = "(*.html)|*.html|(*.htm)|*.htm|(*.txt)|*.txt|(*.*)|*.*|";

// The one entry point for reading a page; a read error is shown in a message box and 0 returned.
int32_t Load_File_To_Cache(AppState& s, const std::string& path, int16_t skipRecentList);
void Add_Recent_File(AppState& s, const std::string& path);
void Do_Load_File(AppState& s, const std::string& path, int16_t flag);
// Loads and analyses a page the user chose (in the open dialog, or dropped on the window): a
// name that is not there does nothing; one that cannot be a page (a folder, device, FIFO or a
// file over the read ceiling) is reported and the page loaded before stays.
void Load_Chosen_Page(AppState& s, const std::string& path);
std::string Do_Select_Load_File(AppState& s, const std::string& filter, int16_t filterIndex,
                                const std::string& defaultExt);
void mnu_file_Load_Click(AppState& s);
void Command1_Click(AppState& s);  // "Load Page"
void Load_File_QuickLoadMenu(AppState& s, int16_t index);
void mnu_file_QuickLoadFile_Click(AppState& s, int16_t index);  // entries 1..5 as 0..4
void Show_Quick_Load_File_MNU_Listings(AppState& s);
std::string Clip_FileName(const std::string& path, const std::string& label, int16_t maxLength);
void Clear_Document(AppState& s);
void control37_Click(AppState& s);  // "&New"
void mnu_File_Quit_Click(AppState& s);

}  // namespace zentrel::app
