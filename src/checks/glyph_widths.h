#pragma once
// Text widths in pixels as a search results page lays titles and descriptions out: the advance
// widths of Liberation Sans (metric-compatible with Arial), from a generated table.

#include <cstdint>
#include <span>
#include <string_view>

namespace zentrel::checks {

namespace glyphs {

// A run of consecutive code points whose advances stand from kAdvances[offset] on.
struct Block {
  char32_t first;
  uint16_t count;
  uint16_t offset;
};

extern const int kUnitsPerEm;
extern const int kMissingGlyphAdvance;  // the font's missing-glyph box
extern const std::span<const Block> kBlocks;
extern const std::span<const uint16_t> kAdvances;

}  // namespace glyphs

// The advance of one character in font units; a character the font lacks counts as the
// missing-glyph box, or as a full em for the East Asian wide characters a fallback font draws.
int GlyphAdvance(char32_t c);

// The width of text at the given font size: the sum of the advances scaled to pixels, rounded
// to the nearest pixel at the end (no kerning, as the snippet measures commonly assume).
int64_t TextWidthPixels(std::u32string_view text, int fontPixels);

}  // namespace zentrel::checks
