#pragma once
// The fields of META tag editing (metatags/): the rebuilt page and the private clip slots of
// the "Edit Meta Tags" fields.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zentrel::state {

inline constexpr int kClipSlotCount = 21;

struct PageEncoderFields {
  // The page as the encoder rebuilds it, cut to the bytes written.
  std::vector<uint8_t> RebuildBytes;
};

struct MetaTagPanelFields {
  std::array<std::string, kClipSlotCount> metaTagClipSlots;
};

}  // namespace zentrel::state
