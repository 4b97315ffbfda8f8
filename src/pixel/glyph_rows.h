#pragma once

#include <algorithm>
#include <cstdint>

#include "core/ints.h"
#include "pixel/glyph_kernels.h"

namespace brisal {

// Calls draw(runs, pixels, to) for the rows that hold anything, where `to` is the target's pixel of the
// first column to draw. Solid glyphs have no pixels.
template <GlyphPixels kPixels, class Draw>
BRISAL_INLINE void ForGlyphRows(const GlyphPart &part, Draw draw) {
  constexpr bool kHasPixels = kPixels != GlyphPixels::kSolid;
  const GlyphBlock glyph = part.glyph;
  for (int32_t row = part.firstRow; row < part.endRow; ++row) {
    const int64_t runs = glyph.Place(glyph.RunTable(), row);
    const int64_t pixels = kHasPixels ? glyph.Place(glyph.PixelTable(), row) : runs;
    if (runs == 0 || pixels == 0) continue;
    uint8_t *const to = part.target + ByteOffset(row - part.firstRow, part.pitch);
    draw(RunList{glyph.Bytes() + runs}, glyph.Bytes() + pixels, to);
  }
}

// Calls draw(column, n, pixel) for what the columns to draw hold of each run: the first column, counted
// from theirs, how many it covers, and the index of the row's pixel there.
template <class Draw>
BRISAL_INLINE void ForRunsInside(const GlyphPart &part, const RunList &runs, Draw draw) {
  int32_t pixel = 0;
  const int32_t count = runs.Count();
  for (int32_t i = 0; i < count; ++i) {
    const int32_t start = runs.Start(i);
    if (start >= part.right) return;
    const int32_t length = std::max(runs.Length(i), 0);
    const int32_t from = std::max(start, part.left);
    const int32_t end = std::min(start + length, part.right);
    if (from < end) draw(from - part.left, end - from, pixel + from - start);
    pixel += length;
  }
}

}  // namespace brisal
