#pragma once
// The filter dictionary as the "Prefs" tab shows it: its text box is the working copy, which
// the list in memory is rebuilt from and shown back in.

#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

// Puts a dictionary file's words into the box, after `textToAppendTo`; a missing or unreadable
// file changes nothing.
void Load_Word_Filter_Dictionary(AppState& s, const std::string& path,
                                 const std::string& textToAppendTo);
void Save_Word_Filter_Dictionary(AppState& s, const std::string& path);
void Resort_And_Removed_Doubles_From_Filter_Dictionary(AppState& s);
void Build_Filter_Word_Dictionary(AppState& s);
void Load_Default_Word_Filters(AppState& s, const std::string& path);
void SetWordFilter_TextBoxes(AppState& s);

}  // namespace zentrel::commands
