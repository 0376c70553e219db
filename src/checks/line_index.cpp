#include "checks/line_index.h"

#include <algorithm>

namespace zentrel::checks {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

LineIndex::LineIndex(std::string_view page, codec::Codec codec)
    : page_(page), utf8_(codec == codec::Codec::Utf8), starts_{0} {
  for (size_t i = 0; i < page.size(); ++i) {
    const char c = page[i];
    if (c == '\n' || (c == '\r' && (i + 1 == page.size() || page[i + 1] != '\n')))
      starts_.push_back(i + 1);
  }
}

Position LineIndex::At(size_t offset) const {
  offset = std::min(offset, page_.size());
  const auto next = std::upper_bound(starts_.begin(), starts_.end(), offset);
  size_t start = *(next - 1);
  // The byte order mark is no character of the first line.
  if (start == 0 && utf8_ && page_.substr(0, kByteOrderMark.size()) == kByteOrderMark)
    start = std::min(offset, kByteOrderMark.size());
  int64_t column = 1;
  // Offsets mostly come in page order: go on from the last one on the same line.
  if (lastStart_ == start && lastOffset_ <= offset)
    start = lastOffset_, column = lastColumn_;
  for (size_t i = start; i < offset; ++i) {
    // In UTF-8 only the first byte of a character counts.
    if (!utf8_ || (static_cast<unsigned char>(page_[i]) & 0xC0) != 0x80)
      ++column;
  }
  lastStart_ = *(next - 1), lastOffset_ = offset, lastColumn_ = column;
  return {static_cast<int64_t>(next - starts_.begin()), column};
}

}  // namespace zentrel::checks
