#pragma once
// The fields of the page in memory (document/): the document cache, the shared scan cursor,
// and the special tag table with the closing-tag searches of one decode walk.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zentrel::state {

inline constexpr int kTagListSize = 501;

struct DocumentCacheFields {
  // Indexes 0..DocumentLength; the element past the page is always 0 (4 spare after a reload).
  std::vector<uint8_t> DocumentBytes = std::vector<uint8_t>(1, 0);
  int32_t DocumentLength = 0;
  std::string DocumentText;
  int32_t ScanPosition = 0;
};

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
  std::array<std::string, kTagListSize> TagKindList;
  int16_t TagListCount = 0;

  // Used only while ClosingTagMemoActive (set by the decoder for the length of one walk).
  std::vector<ClosingTagMemo> ClosingTagMemos;
  bool ClosingTagMemoActive = false;
};

}  // namespace zentrel::state
