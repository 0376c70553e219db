#pragma once
// The preferences file "Zentrel_Pref.txt" in the program folder: settings, the default filter
// dictionary and the recent pages, read at start-up and written when the program ends.

#include <string>
#include <utility>

namespace zentrel {
struct AppState;
}

namespace zentrel::app {

inline constexpr const char* kPreferencesFileName = "Zentrel_Pref.txt";

std::string Preferences_Path(const AppState& s);
void SavePreferencesFile(AppState& s);
void LoadPreferencesFile(AppState& s);
void LoadPreferencesFile(AppState& s, const std::string& path);
// Key (with its ":") and value; both empty when the line has fewer than 2 characters.
std::pair<std::string, std::string> SplitPreferenceLine(const std::string& line);

}  // namespace zentrel::app
