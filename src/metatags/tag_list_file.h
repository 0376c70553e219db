#pragma once
// META tag list files (".tag"): the marked fields saved apart from any page, one
// "name:value" line each with its commas encoded, and read back.

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zentrel {
struct AppState;
}

namespace zentrel::metatags {

inline constexpr const char* kTagListFilter = "(*.tag)|*.tag|(*.*)|*.*|";
inline constexpr const char* kTagListExtension = ".tag";

// The file's text for the marked, non-empty fields.
std::string MetaTag_List_Text(const AppState& s);
// The entries of a file's text whose name the META tag table knows, in file order: the
// name's index and the value with its commas decoded.
std::vector<std::pair<int16_t, std::string>> Read_MetaTag_List(const AppState& s,
                                                               std::string_view content);

}  // namespace zentrel::metatags
