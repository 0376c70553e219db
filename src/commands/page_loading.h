#pragma once
// Opening pages ("Load Page", the "&File" menu, a dropped file), the five recent pages, and
// clearing the document.

#include <cstdint>
#include <optional>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

inline constexpr const char* kPageFilter = "(*.html)|*.html|(*.htm)|*.htm|(*.txt)|*.txt|(*.*)|*.*|";

// The one entry point for reading a page; a read error is shown in a message box and 0
// returned, and the page in hand stays current (its name and caption too).
int32_t Load_File_To_Cache(AppState& s, const std::string& path, int16_t skipRecentList);
void Add_Recent_File(AppState& s, const std::string& path);
// The open or save dialog for pages, started from the current file with the default type and
// extension, which it writes back; the chosen name ("" when none), nothing when cancelled.
std::optional<std::string> Choose_Page_File(AppState& s, bool save);
void Do_Load_File(AppState& s, const std::string& path, int16_t flag);
// Loads and analyses a page the user chose (in the open dialog, or dropped on the window): a
// name that is not there does nothing; one that cannot be a page (a folder, device, FIFO or a
// file over the read ceiling) is reported and the page loaded before stays. Unsaved edits of
// the page in hand are settled first (Save, Discard or Cancel), as for a recent entry.
void Load_Chosen_Page(AppState& s, const std::string& path);
std::string Do_Select_Load_File(AppState& s, const std::string& filter, int16_t filterIndex,
                                const std::string& defaultExt);
void Load_File_QuickLoadMenu(AppState& s, int16_t index);
void Show_Quick_Load_File_MNU_Listings(AppState& s);
std::string Clip_FileName(const std::string& path, const std::string& label, int16_t maxLength);
void Clear_Document(AppState& s);

}  // namespace zentrel::commands
