#pragma once
// One analysed page as a line of JSON for `zentrel-cli analyse`.

#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace zentrel {
struct AppState;
}

namespace zentrel::cli {

// A JSON string of UTF-8 text.
void Write_Json_String(std::ostream& out, std::string_view utf8);
// A JSON string of a text that is not the page's own (a path, an error) in its own codec, so a
// file name in another encoding than the page still gives valid UTF-8.
void Write_Json_String_Own_Codec(std::ostream& out, std::string_view bytes);

// Writes the page's JSON object and a newline; texts decoded as the window shows them.
void Write_Analysis_Json(std::ostream& out, const AppState& s, const std::string& page,
                         const std::optional<std::string>& error);

}  // namespace zentrel::cli
