#pragma once
// Counting each keyword in the page title and the body, and its density among the words.

#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::analysis {

int16_t Tally_Current_TITLE_Keyword_Matches(AppState& s);
void Tally_Current_Documents_Keyword_Matches(AppState& s);
std::string Check_Percentage_String(const std::string& text);
// The standard decimal text of a double: shortest form up to 15 significant digits, a leading
// space when not negative, no "0" before the point, exponent form for very small values.
std::string Double_To_Text(double value);
// The density display text of keyword i.
std::string Keyword_Density_Text(const AppState& s, int16_t i);

}  // namespace zentrel::analysis
