#include "checks/glyph_widths.h"

#include <algorithm>
#include <cmath>

namespace zentrel::checks {

namespace {

// East Asian wide ranges that Liberation Sans lacks and a fallback font draws a full em wide.
bool IsWide(char32_t c) {
  return (c >= 0x1100 && c <= 0x115F) || (c >= 0x2E80 && c <= 0xA4CF) ||
         (c >= 0xAC00 && c <= 0xD7A3) || (c >= 0xF900 && c <= 0xFAFF) ||
         (c >= 0xFE30 && c <= 0xFE4F) || (c >= 0xFF00 && c <= 0xFF60) ||
         (c >= 0xFFE0 && c <= 0xFFE6) || (c >= 0x20000 && c <= 0x3FFFD);
}

}  // namespace

int GlyphAdvance(char32_t c) {
  const auto& blocks = glyphs::kBlocks;
  // The last block that starts at or before c.
  auto it = std::upper_bound(blocks.begin(), blocks.end(), c,
                             [](char32_t v, const glyphs::Block& b) { return v < b.first; });
  if (it != blocks.begin()) {
    const glyphs::Block& b = *(it - 1);
    if (c - b.first < b.count)
      return glyphs::kAdvances[b.offset + (c - b.first)];
  }
  return IsWide(c) ? glyphs::kUnitsPerEm : glyphs::kMissingGlyphAdvance;
}

int64_t TextWidthPixels(std::u32string_view text, int fontPixels) {
  int64_t units = 0;
  for (char32_t c : text)
    units += GlyphAdvance(c);
  return std::llround(static_cast<double>(units) * fontPixels / glyphs::kUnitsPerEm);
}

}  // namespace zentrel::checks
