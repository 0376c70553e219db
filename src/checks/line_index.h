#pragma once
// 1-based lines and columns of byte offsets in a page. A line ends at LF, CR LF or a lone CR,
// as browsers count them; columns count characters (UTF-8 decoded when the page is valid UTF-8,
// one per byte otherwise), so they match what an editor shows.

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/codec.h"

namespace zentrel::checks {

struct Position {
  int64_t line = 1;
  int64_t column = 1;
};

class LineIndex {
 public:
  LineIndex(std::string_view page, codec::Codec codec);
  Position At(size_t offset) const;

 private:
  void ScanTo(size_t end) const;

  std::string_view page_;
  bool utf8_;
  mutable std::vector<size_t> starts_;  // the offset of each line's first byte, so far
  mutable size_t scanned_ = 0;          // the bytes before it have been scanned
  mutable size_t lastStart_ = SIZE_MAX, lastOffset_ = 0;
  mutable int64_t lastColumn_ = 1;
};

}  // namespace zentrel::checks
