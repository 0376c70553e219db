#pragma once
// One analysed page as a line of JSON for `zentrel-cli analyse`.

#include <optional>
#include <ostream>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::cli {

// Writes the page's JSON object and a newline; texts decoded as the window shows them.
void Write_Analysis_Json(std::ostream& out, const AppState& s, const std::string& page,
                         const std::optional<std::string>& error);

}  // namespace zentrel::cli
