#pragma once
// The check that the page's html, head and body sections stand in a sane order, and the two
// insertion-point queries of the encoder.

#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::decode {

// The first problem found, in the program's own words, or "" when the sections are in order.
std::string HTML_VALIDATE_Document_Sections(const AppState& s);
int32_t Html_Get_Starting_HeaderByte_For_Tag_Encoding(const AppState& s);
int32_t Html_Get_Ending_HeaderByte_For_Tag_Encoding(const AppState& s);

}  // namespace zentrel::decode
