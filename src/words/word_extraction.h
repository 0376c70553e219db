#pragma once
// Cutting text into words with the word-break table, splitting comma lists, and the small
// trimming routines the word and keyword code rests on.

#include <array>
#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::words {

void Init_Get_word_string_Chr_table(AppState& s);
// The word that starts at 1-based position start of StrippedText.
std::string Get_Word_String(const AppState& s, int32_t start);
int16_t Split_String(AppState& s, const std::string& text);
std::string Trim_Spaces_String(const std::string& text);
std::string MakeStringSingleSpaced(const std::string& text);

}  // namespace zentrel::words
