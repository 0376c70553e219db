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

inline constexpr int kMetaTagTableSize = 21;

struct MetaTagRow {
  std::string MetaTagName;
  std::string MetaTagQuotedForm;  // name="x"
  std::string MetaTagPlainForm;   // name=x
  std::string MetaTagValue;
  std::string MetaTagStart = "-1";
  std::string MetaTagEnd = "-1";
  std::string MetaTagIsMeta;  // " 1" or " 0"
};

struct MetaTagTableFields {
  std::array<MetaTagRow, kMetaTagTableSize> MetaTags;
  int16_t MetaTagCount = 0;          // rows in use (15)
  int16_t EditableMetaTagCount = 0;  // rows with an editing field (13)
};

void Init_MetaTag_Table(AppState& s);
void Set_MetaTag_Entry(AppState& s, int16_t index, const std::string& name, int16_t isMeta);
void Clear_MetaTag_Values(AppState& s);
int16_t Find_MetaTag_Index(const AppState& s, const std::string& name);
void Set_MetaTag_Value(AppState& s, const std::string& name, const std::string& value);
std::string Get_MetaTag_Value(const AppState& s, const std::string& name);

}  // namespace zentrel::decode
