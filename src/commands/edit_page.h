#pragma once
// The "Edit Page" tab: search in the page source, "Find First" and "Find Next".

#include <cstdint>

namespace zentrel {
struct AppState;
}

namespace zentrel::commands {

int32_t HtmlEdit_Search_For_String(AppState& s, int32_t start);
void Html_Document_Editor_Find_Click(AppState& s);
void Html_Document_Editor_DOFindNext_Click(AppState& s);

}  // namespace zentrel::commands
