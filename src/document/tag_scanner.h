#pragma once
// The special tag table and the routines that read tag names and attribute values, skip to
// the end of a tag and find a tag's closing counterpart in the document cache.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zentrel {
struct AppState;
}

namespace zentrel::document {

inline constexpr int kTagListSize = 501;

struct TagScannerFields {
  int32_t ScanEndPosition = 0;
  std::array<std::string, kTagListSize> TagOpenList;
  std::array<std::string, kTagListSize> TagCloseList;
  std::array<std::string, kTagListSize> TagKindList;
  int16_t TagListCount = 0;
  std::vector<std::string> OriginalTagList;
  int32_t OriginalTagListCount = 0;
  int32_t OriginalTagListCapacity = 0;
};

void Add_Tag_Ignore(AppState& s, const std::string& openText, const std::string& closeText,
                    int16_t kind);
void Build_Tag_list(AppState& s);
int16_t Scan_Tag_List(const AppState& s, const std::string& tagText);
std::string Get_Open_Html_String(const AppState& s);
std::string Get_This_MetaTags_Variables(const AppState& s, const std::string& keyword);
void Find_Close_Of_This_Html_Tag(AppState& s, const std::string& tagText);
int32_t Find_Closing_Html_Tag(AppState& s, const std::string& openText);
std::string Get_Open_Html_String_NEW(const AppState& s, int32_t start);
std::string Get_This_Html_Variable_Tag2(AppState& s, int32_t start);
void Add_Tag_To_OriginalTagList(AppState& s, const std::string& text);

}  // namespace zentrel::document
