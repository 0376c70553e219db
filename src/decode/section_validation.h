#pragma once
// The check that the page's html, head and body sections stand in a sane order, the two
// insertion-point queries of the encoder and its copy primitive.

#include <cstdint>
#include <string>
#include <vector>

namespace zentrel {
struct AppState;
}

namespace zentrel::decode {

// The first problem found, in the program's own words, or "" when the sections are in order.
std::string HTML_VALIDATE_Document_Sections(const AppState& s);
int32_t Html_Get_Starting_HeaderByte_For_Tag_Encoding(const AppState& s);
int32_t Html_Get_Ending_HeaderByte_For_Tag_Encoding(const AppState& s);
int32_t Html_Copy_Section_To_Temp(AppState& s, int32_t from, int32_t to, int32_t destination);

}  // namespace zentrel::decode
