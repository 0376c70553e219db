#pragma once
// The decoder: one walk over the page that finds the section positions, the title, the known
// META tag values and (for the full decode) the word text.

#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::decode {

void HTML_Decode_Document(AppState& s);
void HTML_ReScan_Document(AppState& s);
int16_t Html_Decode_TitleTag(AppState& s, const std::string& tagText, int16_t addToText);
int16_t Html_Decode_METATAG(AppState& s, const std::string& tagText, int16_t addToText);
void Reset_HTML_BODY_AND_HEADER_VALUES(AppState& s);
void Clear_HTML_BODY_AND_HEADER_VALUES(AppState& s);

}  // namespace zentrel::decode
