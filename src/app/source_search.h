#pragma once
// Search in the page source on "Edit Page": "Find First" and "Find Next".

#include <cstdint>

namespace zentrel {
struct AppState;
}

namespace zentrel::app {

int32_t HtmlEdit_Search_For_String(AppState& s, int32_t start);
void Html_Document_Editor_Find_Click(AppState& s);
void Html_Document_Editor_DOFindNext_Click(AppState& s);

}  // namespace zentrel::app
