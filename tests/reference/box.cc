#include <algorithm>

#include "brisal/brisal.h"
#include "reference/reference.h"

namespace reference {

void Reference::Box(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour,
                    int32_t flags) {
  const int32_t left = std::min(x1, x2), right = std::max(x1, x2);
  const int32_t top = std::min(y1, y2), bottom = std::max(y1, y2);
  if (flags & BRSL_OUTLINE) {
    return BoxOutline(left, top, right, bottom, Pack(colour), ShapeMode(flags));
  }
  if (!(flags & BRSL_FILLED)) return;
  for (int64_t y = std::max(top, viewport.top); y < std::min(bottom, viewport.bottom); y++) {
    Span(y, std::max(left, viewport.left), std::min(right, viewport.right), Pack(colour),
         ShapeMode(flags));
  }
}

// Horizontal edges follow the strip, vertical ones the single pixel. Only the corners belong to
// the horizontal edges; equal rows or columns are drawn twice.
void Reference::BoxOutline(int64_t left, int64_t top, int64_t right, int64_t bottom,
                           uint32_t packed, int32_t mode) {
  for (int64_t y : {top, bottom}) {
    for (int64_t x = std::max<int64_t>(left, viewport.left); x <= right && x < viewport.right;
         x++) {
      const auto px = static_cast<int32_t>(x);
      if (Inside(x, y)) DrawStrip(static_cast<int32_t>(y), px, px + 1, packed, mode);
    }
  }
  for (int64_t x : {left, right}) {
    for (int64_t y = std::max<int64_t>(top + 1, viewport.top); y < bottom && y < viewport.bottom;
         y++) {
      if (Inside(x, y)) Plot(x, y, packed, mode);
    }
  }
}

void Reference::ShadeBox(int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour1,
                         uint32_t colour2, uint32_t colour3, uint32_t colour4, int32_t flags) {
  const int64_t left = std::min(x1, x2), right = std::max(x1, x2);
  const int64_t top = std::min(y1, y2), bottom = std::max(y1, y2);
  const int64_t width = right - left, height = bottom - top;
  if (width < 1 || height < 1) return;
  const int64_t start = std::max<int64_t>(left, viewport.left);
  const int64_t end = std::min<int64_t>(right, viewport.right);
  for (int64_t y = std::max<int64_t>(top, viewport.top);
       y < std::min<int64_t>(bottom, viewport.bottom); y++) {
    uint32_t startColour = 0, endColour = 0;
    for (int c = 0; c < 3; c++) {
      const auto side = [&](uint32_t upper, uint32_t lower) {
        const int64_t from = Channel(upper, c) * 65536;
        return from + (y - top) * ((Channel(lower, c) * 65536 - from) / height);
      };
      const int64_t leftValue = side(colour1, colour4);
      const int64_t across = (side(colour2, colour3) - leftValue) / width;
      const auto at = [&](int64_t x) {
        return static_cast<uint32_t>((leftValue + across * (x - left)) >> 16 & 255) << 8 * c;
      };
      startColour |= at(start);
      endColour |= at(end);
    }
    if (start < end) GouraudSpan(y, start, end, startColour, endColour, ShapeMode(flags));
  }
}

}  // namespace reference
