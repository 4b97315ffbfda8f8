#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "brisal/brisal.h"
#include "reference/reference.h"

namespace reference {
namespace {

// The half-width of a quarter circle of radius 16384 one unit above height k.
int64_t Quarter(int64_t k) {
  if (k >= 16384) return 0;
  return static_cast<int64_t>(std::sqrt(static_cast<double>(16384 * 16384 - (k + 1) * (k + 1))));
}

bool Outside(const Rect &v, int64_t cx, int64_t cy, int64_t rx, int64_t ry) {
  return cx + rx < v.left || cx - rx > v.right || cy + ry < v.top || cy - ry > v.bottom;
}

bool WhollyInside(const Rect &v, int64_t cx, int64_t cy, int64_t rx, int64_t ry) {
  return cx - rx >= v.left && cx + rx < v.right && cy - ry >= v.top && cy + ry < v.bottom;
}

}  // namespace

int64_t HalfWidth(int64_t n, int64_t r, int64_t scale) {
  return (Quarter(n * 16384 / r) * scale) >> 14;
}

void Reference::Circle(int32_t cx, int32_t cy, int32_t r, uint32_t colour, int32_t flags) {
  Ellipse(cx, cy, r, r, colour, flags);
}

void Reference::Ellipse(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t colour,
                        int32_t flags) {
  if (flags & BRSL_OUTLINE) return OpenEllipse(cx, cy, rx, ry, colour, flags);
  if (Outside(viewport, cx, cy, rx, ry)) return;
  if (WhollyInside(viewport, cx, cy, rx, ry)) {
    return FilledEllipseNc(cx, cy, rx, ry, Pack(colour), flags);
  }
  FilledEllipse(cx, cy, rx, ry, Pack(colour), flags);
}

void Reference::OpenCircle(int32_t cx, int32_t cy, int32_t r, uint32_t colour, int32_t flags) {
  OpenEllipse(cx, cy, r, r, colour, flags);
}

void Reference::OpenEllipse(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t colour,
                            int32_t flags) {
  if (Outside(viewport, cx, cy, rx, ry)) return;
  ClippedOutline(cx, cy, rx, ry, Pack(colour), ShapeMode(flags));
}

void Reference::OpenEllipseFx(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t colour,
                              int32_t flags, int32_t inside) {
  const int32_t mode = flags & 0xFFF0;
  if (!inside) return ClippedOutline(cx, cy, rx, ry, Pack(colour), mode);
  for (int32_t i = 0; i < ry; i++) {
    const int64_t h = HalfWidth(i, ry, rx);
    for (int64_t y : {cy - i, cy + i}) {
      Plot(cx - h, y, Pack(colour), mode);
      Plot(cx + h, y, Pack(colour), mode);
    }
  }
  for (int32_t j = 0; j < rx; j++) {
    const int64_t h = HalfWidth(j, rx, ry);
    for (int64_t x : {cx - j, cx + j}) {
      Plot(x, cy - h, Pack(colour), mode);
      Plot(x, cy + h, Pack(colour), mode);
    }
  }
}

// The same points, found from the rows and columns of the viewport: a point is drawn as often as
// the loops above reach it, and their order shows nowhere.
void Reference::ClippedOutline(int64_t cx, int64_t cy, int64_t rx, int64_t ry, uint32_t packed,
                               int32_t mode) {
  const auto dot = [&](int64_t x, int64_t y, int times) {
    while (times-- > 0) {
      if (Inside(x, y)) Plot(x, y, packed, mode);
    }
  };
  for (int64_t y = viewport.top; y < viewport.bottom; y++) {
    const int64_t i = std::abs(y - cy);
    if (i >= ry) continue;
    const int64_t h = HalfWidth(i, ry, rx);
    dot(cx - h, y, i == 0 ? 2 : 1);
    dot(cx + h, y, i == 0 ? 2 : 1);
  }
  for (int64_t x = viewport.left; x < viewport.right; x++) {
    const int64_t j = std::abs(x - cx);
    if (j >= rx) continue;
    const int64_t h = HalfWidth(j, rx, ry);
    dot(x, cy - h, j == 0 ? 2 : 1);
    dot(x, cy + h, j == 0 ? 2 : 1);
  }
}

// Row y shares its half-width with its mirror image in the line below row cy.
void Reference::FilledEllipse(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t packed,
                              int32_t flags) {
  if (rx < 1 || ry < 2) return;
  for (int64_t y = viewport.top; y < viewport.bottom; y++) {
    const int64_t i = y > cy ? y - cy : cy - y + 1;
    if (i >= ry) continue;
    const int64_t h = HalfWidth(i, ry, rx);
    Span(y, std::max<int64_t>(cx - h, viewport.left), std::min<int64_t>(cx + h, viewport.right),
         packed, ShapeMode(flags));
  }
}

void Reference::FilledEllipseNc(int32_t cx, int32_t cy, int32_t rx, int32_t ry, uint32_t packed,
                                int32_t flags) {
  if (rx < 1 || ry < 1) return;
  for (int64_t k = 1; k < ry; k++) {
    const int64_t h = HalfWidth(k, ry, rx);
    Span(cy - k, cx - h, cx + h, packed, ShapeMode(flags));
    Span(cy + k - 1, cx - h, cx + h, packed, ShapeMode(flags));
  }
}

}  // namespace reference
