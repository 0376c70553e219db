#pragma once
// Start-up, the program title, the setting defaults shown in their boxes, and shut-down.

#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

inline constexpr const char* kProgramName = "Zentrel";
inline constexpr const char* kProgramVersion = "V1.62";

// Brings the program up; false when a step ended in an error (already shown, the other steps
// done).
bool Form_Load(AppState& s);
bool Init_Programs_Defaults(AppState& s);
void SET_PROGRAM_TITLE(AppState& s, const std::string& suffix);
void Reset_Default_Html_Word_Delimiter(AppState& s);
// The program folder rule: the executable's folder with one trailing separator dropped.
std::string Program_Folder(const std::string& executableFolder);
void Form_Unload(AppState& s);
void ProgramEnded(AppState& s);

}  // namespace zentrel::commands
