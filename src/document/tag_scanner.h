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

// The last search made for one closing text during a decode walk. The bytes do not change
// during a walk, so a failed search from `from` also fails from any later start, and a hit at
// `result` is also the hit from any start in (from, result].
struct ClosingTagMemo {
  std::string closing;
  int32_t from = 0;
  int32_t result = -1;
  int32_t end = 0;     // ScanEndPosition of the search
  int32_t length = 0;  // DocumentLength of the search
};

struct TagScannerFields {
  int32_t ScanEndPosition = 0;
  std::array<std::string, kTagListSize> TagOpenList;
  std::array<std::string, kTagListSize> TagCloseList;
  std::array<std::string, kTagListSize> TagKindList;
  int16_t TagListCount = 0;
  std::vector<std::string> OriginalTagList;
  int32_t OriginalTagListCount = 0;
  int32_t OriginalTagListCapacity = 0;

  // Used only while ClosingTagMemoActive (set by the decoder for the length of one walk).
  std::vector<ClosingTagMemo> ClosingTagMemos;
  bool ClosingTagMemoActive = false;
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

// Starts remembering closing-tag searches for one decode walk; forgets them when it goes.
class ClosingTagMemoScope {
 public:
  explicit ClosingTagMemoScope(TagScannerFields& fields);
  ~ClosingTagMemoScope();
  ClosingTagMemoScope(const ClosingTagMemoScope&) = delete;
  ClosingTagMemoScope& operator=(const ClosingTagMemoScope&) = delete;

 private:
  TagScannerFields& fields_;
};

}  // namespace zentrel::document
