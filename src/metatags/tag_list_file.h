#pragma once
// META tag list files (".tag"): the marked fields saved apart from any page and loaded back.

#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::metatags {

void Save_MetaTag_List(AppState& s);
void Load_MetaTagList(AppState& s);
// The file's text for the marked, non-empty fields; and reading a file's text into the
// marked fields (the dialog-free halves, shared with the command line).
std::string MetaTag_List_Text(const AppState& s);
void Apply_MetaTag_List_Text(AppState& s, const std::string& content);

}  // namespace zentrel::metatags
