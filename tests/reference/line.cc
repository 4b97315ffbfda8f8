#include <algorithm>
#include <cstdlib>
#include <utility>

#include "brisal/brisal.h"
#include "reference/reference.h"

namespace reference {

void Reference::WriteLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour,
                          int32_t flags) {
  if (flags & 0xFFF0) return WriteDrawModeLine(x1, y1, x2, y2, Pack(colour), flags & 0xFFF0);
  if (y1 == y2) {
    return DrawStrip(y1, std::min(x1, x2), std::max(x1, x2) + 1, Pack(colour), DRAW_SOLID);
  }
  Line(x1, y1, x2, y2, Pack(colour), DRAW_SOLID, 16);
}

void Reference::WriteDrawModeLine(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t packed,
                                  int32_t mode) {
  if (y1 == y2) return DrawStrip(y1, std::min(x1, x2), std::max(x1, x2), packed, mode);
  Line(x1, y1, x2, y2, packed, mode, 14);
}

// A line that is not horizontal, from its left end on; the minor coordinate starts half a pixel in.
void Reference::Line(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t packed, int32_t mode,
                     int fractionBits) {
  if (x1 >= x2) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  const int64_t one = int64_t{1} << fractionBits;
  const int64_t dx = int64_t{x2} - x1, dy = int64_t{y2} - y1, rows = std::abs(dy);
  if (rows >= dx) {
    for (int64_t r = 0; r <= rows; r++) {
      const int64_t x = x1 * one + one / 2 + r * (dx * one / rows);
      Plot(x >> fractionBits, dy < 0 ? y1 - r : y1 + r, packed, mode);
    }
    return;
  }
  for (int64_t c = 0; c <= dx; c++) {
    const int64_t y = y1 * one + one / 2 + c * (dy * one / dx);
    Plot(x1 + c, y >> fractionBits, packed, mode);
  }
}

void Reference::WriteLine32Bit(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour,
                               int32_t /*reserved*/) {
  if (x1 == x2 && y1 == y2) return Dot(x1, y1, colour, DRAW_NORMAL);
  if (format != 4 && format != 5) return;
  if (x1 == x2 && (x1 < viewport.left || x1 >= viewport.right)) return;
  Plot(x1, y1, colour, DRAW_SOLID);
  Plot(x2, y2, colour, DRAW_SOLID);
  const int64_t dx = int64_t{x2} - x1, dy = int64_t{y2} - y1;
  const bool steep = std::abs(dx) <= std::abs(dy);
  if (steep ? dy < 0 : dx < 0) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  const int64_t length = std::max(std::abs(dx), std::abs(dy));
  for (int64_t i = 1; i < length; i++) {
    if (steep) {
      const int64_t step = (int64_t{x2} - x1) * 65536 / length;
      Plot((x1 * int64_t{65536} + i * step) >> 16, y1 + i, colour, DRAW_SOLID);
    } else {
      const int64_t step = (int64_t{y2} - y1) * 65536 / length;
      Plot(x1 + i, (y1 * int64_t{65536} + i * step) >> 16, colour, DRAW_SOLID);
    }
  }
}

}  // namespace reference
