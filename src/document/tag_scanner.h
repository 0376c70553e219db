#pragma once
// The special tag table and the routines that read tag names and attribute values, skip to
// the end of a tag and find a tag's closing counterpart in the document cache.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "state/document_fields.h"

namespace zentrel {
struct AppState;
}

namespace zentrel::document {

void Add_Tag_Ignore(AppState& s, const std::string& openText, int16_t kind);
void Build_Tag_list(AppState& s);
int16_t Scan_Tag_List(const AppState& s, const std::string& tagText);
std::string Get_Open_Html_String(const AppState& s);
std::string Get_This_MetaTags_Variables(const AppState& s, const std::string& keyword);
void Find_Close_Of_This_Html_Tag(AppState& s, const std::string& tagText);
int32_t Find_Closing_Html_Tag(AppState& s, const std::string& openText);

// Starts remembering closing-tag searches for one decode walk; forgets them when it goes.
class ClosingTagMemoScope {
 public:
  explicit ClosingTagMemoScope(state::TagScannerFields& fields);
  ~ClosingTagMemoScope();
  ClosingTagMemoScope(const ClosingTagMemoScope&) = delete;
  ClosingTagMemoScope& operator=(const ClosingTagMemoScope&) = delete;

 private:
  state::TagScannerFields& fields_;
};

}  // namespace zentrel::document
