#pragma once
// The preferences file "Zentrel_Pref.txt" in the program folder: settings, the default filter
// dictionary and the recent pages, read at start-up and written when the program ends.

#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

inline constexpr const char* kPreferencesFileName = "Zentrel_Pref.txt";

std::string Preferences_Path(const AppState& s);
void SavePreferencesFile(AppState& s);
void LoadPreferencesFile(AppState& s);
void LoadPreferencesFile(AppState& s, const std::string& path);

}  // namespace zentrel::commands
