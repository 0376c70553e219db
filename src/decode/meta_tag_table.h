#pragma once
// The fixed table of known META tag names, their values as decoded or typed, and where the
// decoder found them. A name's row number is the meta tag index shared by the whole program.

#include <array>
#include <cstdint>
#include <string>

namespace zentrel {
struct AppState;
}

namespace zentrel::decode {

void Init_MetaTag_Table(AppState& s);
void Set_MetaTag_Entry(AppState& s, int16_t index, const std::string& name, int16_t isMeta);
void Clear_MetaTag_Values(AppState& s);
int16_t Find_MetaTag_Index(const AppState& s, const std::string& name);
void Set_MetaTag_Value(AppState& s, const std::string& name, const std::string& value);
std::string Get_MetaTag_Value(const AppState& s, const std::string& name);

}  // namespace zentrel::decode
