#pragma once
// The analysis of the loaded page: decode, count, match and report, in one fixed order.

#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::analysis {

void Meta_Tag_KeyWord_Scan(AppState& s, const std::string& fileName);
void ReScanPage(AppState& s);
void Command2_Click(AppState& s);  // "Rescan"

}  // namespace zentrel::analysis
