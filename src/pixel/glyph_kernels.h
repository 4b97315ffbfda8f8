#pragma once

#include <cstddef>
#include <cstdint>

#include "core/cpu.h"
#include "pixel/glyph_block.h"

namespace brisal {

// The part of a glyph that is inside the viewport, and where it goes. Rows are those of the glyph's
// tables, columns are counted from the glyph's left edge.
struct GlyphPart {
  GlyphBlock glyph;
  int32_t firstRow;
  int32_t endRow;
  int32_t left;
  int32_t right;
  uint8_t *target;  // the pixel of column `left` in the first row
  ptrdiff_t pitch;
};

// The colour that glyphs are drawn with or that their own colours are tinted with; what is under them
// where that is not the target; and the 256ths of a glyph's intensity, or alpha, that count.
struct GlyphInk {
  uint32_t colour;
  uint32_t backdrop;
  uint32_t opacity;
};

// What the pixels of a glyph are: none, as all that its runs cover is of full intensity; intensities; or
// colours with alpha.
enum class GlyphPixels { kSolid, kSoft, kColours };

// How they are written: blended with the backdrop or with the target, or, colours, as they are.
enum class GlyphRule { kOnBackdrop, kOnTarget, kReplace };

using GlyphKernel = void (*)(const GlyphPart &part, const GlyphInk &ink);

// Null for codes that are no format.
GlyphKernel FindGlyphKernel(Isa isa, int32_t format, GlyphPixels pixels, GlyphRule rule);

}  // namespace brisal
