#pragma once
// The preferences file "Zentrel_Pref.txt" in the program folder: settings, the default filter
// dictionary and the recent pages, read at start-up and written when the program ends.

#include <string>
#include <string_view>
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
// Key (with its ":") and value, as views into the line; both empty when the line has fewer
// than 2 characters or no ":".
std::pair<std::string_view, std::string_view> SplitPreferenceLine(std::string_view line);

}  // namespace zentrel::app
