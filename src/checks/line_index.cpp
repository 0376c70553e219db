#include "checks/line_index.h"

#include <algorithm>
#include <cstring>

namespace zentrel::checks {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Whether any of the eight bytes is a CR or an LF: a byte equal to b makes the xor zero, which
// the classic has-zero-byte test finds.
bool HasLineEnd(uint64_t word) {
  constexpr uint64_t kOnes = 0x0101010101010101u, kHighs = 0x8080808080808080u;
  const auto hasZero = [](uint64_t v) { return ((v - kOnes) & ~v & kHighs) != 0; };
  return hasZero(word ^ (kOnes * '\n')) || hasZero(word ^ (kOnes * '\r'));
}

}  // namespace

LineIndex::LineIndex(std::string_view page, codec::Codec codec)
    : page_(page), utf8_(codec == codec::Codec::Utf8), starts_{0} {}

// Finds the line starts up to `end`, going on from where the last call stopped: most findings
// stand in the head, so most of a page is never scanned.
void LineIndex::ScanTo(size_t end) const {
  size_t i = scanned_;
  for (; i < end; ++i) {
    // Skip eight bytes at a time while none of them is a CR or LF.
    uint64_t word;
    while (i + sizeof word <= end &&
           (std::memcpy(&word, page_.data() + i, sizeof word), !HasLineEnd(word)))
      i += sizeof word;
    if (i == end)
      break;
    const char c = page_[i];
    if (c == '\n' || (c == '\r' && (i + 1 == page_.size() || page_[i + 1] != '\n')))
      starts_.push_back(i + 1);
  }
  scanned_ = std::max(scanned_, end);
}

Position LineIndex::At(size_t offset) const {
  offset = std::min(offset, page_.size());
  ScanTo(offset);
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
