#include "raster/boxes.h"

#include <algorithm>

#include "brisal/brisal.h"
#include "core/reciprocal.h"
#include "pixel/format.h"
#include "pixel/mode.h"
#include "raster/pixels.h"
#include "raster/spans.h"

namespace brisal {
namespace {

struct Rectangle {
  Rectangle(int32_t x1, int32_t y1, int32_t x2, int32_t y2)
      : left(std::min(x1, x2)),
        top(std::min(y1, y2)),
        right(std::max(x1, x2)),
        bottom(std::max(y1, y2)) {}

  int32_t left;
  int32_t top;
  int32_t right;
  int32_t bottom;
};

// The border, its right column and bottom row included: rows by the strip's choice of modes,
// columns by the one-pixel rule. Neither inlined nor given a rectangle, since filled boxes would save its
// registers, or put the rectangle together in memory.
[[gnu::noinline]] void OutlineBox(const Canvas &canvas, int32_t x1, int32_t y1, int32_t x2,
                                  int32_t y2, uint32_t packed, int32_t mode) {
  const Rectangle box(x1, y1, x2, y2);
  const Viewport &view = canvas.viewport;
  const int64_t left = std::max(box.left, view.left);
  const int64_t right = std::min<int64_t>(int64_t{box.right} + 1, view.right);
  for (const int32_t y : {box.top, box.bottom}) {
    if (view.ContainsRow(y)) DrawStrip(canvas, y, left, right, packed, mode);
  }
  const int64_t top = std::max<int64_t>(int64_t{box.top} + 1, view.top);
  const int64_t bottom = std::min<int64_t>(int64_t{box.bottom} - 1, int64_t{view.bottom} - 1);
  const PixelPen pen(canvas, packed, mode);
  if (!pen.Draws()) return;
  for (const int64_t x : {box.left, box.right}) {
    if (!view.ContainsColumn(x)) continue;
    for (int64_t y = top; y <= bottom; ++y) pen.Plot(x, y);
  }
}

void FillBox(const Canvas &canvas, const Rectangle &box, uint32_t packed, int32_t mode) {
  const Viewport &view = canvas.viewport;
  DrawRectangle(canvas,
                {std::max(box.left, view.left), std::max(box.top, view.top),
                 std::min(box.right, view.right), std::min(box.bottom, view.bottom)},
                packed, mode);
}

}  // namespace

void DrawBox(const Canvas &canvas, int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour,
             int32_t flags) {
  const uint32_t packed = PackColour(colour, canvas.target.format);
  const int32_t mode = ModeOfFlags(flags);
  if ((flags & BRSL_OUTLINE) != 0) return OutlineBox(canvas, x1, y1, x2, y2, packed, mode);
  if ((flags & BRSL_FILLED) != 0) FillBox(canvas, {x1, y1, x2, y2}, packed, mode);
}

void DrawShadeBox(const Canvas &canvas, SpanBuffer &spanBuffer, int32_t x1, int32_t y1, int32_t x2,
                  int32_t y2, const uint32_t (&corners)[4], int32_t flags) {
  const Rectangle box(x1, y1, x2, y2);
  const Viewport &view = canvas.viewport;
  const int64_t left = std::max(box.left, view.left);
  const int64_t right = std::min(box.right, view.right);
  const int64_t top = std::max(box.top, view.top);
  const int64_t bottom = std::min(box.bottom, view.bottom);
  if (left >= right || top >= bottom) return;

  const Reciprocal perRow(int64_t{box.bottom} - box.top);
  const Reciprocal perPixel(int64_t{box.right} - box.left);
  FixedColour leftEdge = Fixed(corners[0]);
  FixedColour rightEdge = Fixed(corners[1]);
  const FixedColour leftStep = StepBetween(leftEdge, Fixed(corners[3]), perRow);
  const FixedColour rightStep = StepBetween(rightEdge, Fixed(corners[2]), perRow);
  leftEdge += Times(leftStep, top - box.top);
  rightEdge += Times(rightStep, top - box.top);

  ShadedSpan *const spans = spanBuffer.Get<ShadedSpan>(bottom - top);
  if (spans == nullptr) return;
  ShadedSpan *span = spans;
  for (int64_t y = top; y < bottom; ++y, ++span) {
    const FixedColour across = StepBetween(leftEdge, rightEdge, perPixel);
    *span = {leftEdge + Times(across, left - box.left), leftEdge + Times(across, right - box.left),
             static_cast<int32_t>(y), static_cast<int32_t>(left), static_cast<int32_t>(right)};
    leftEdge += leftStep;
    rightEdge += rightStep;
  }
  DrawGouraudSpanList(canvas, spans, bottom - top, ModeOfFlags(flags));
}

}  // namespace brisal
