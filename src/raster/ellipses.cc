#include "raster/ellipses.h"

#include <algorithm>

#include "brisal/brisal.h"
#include "core/ints.h"
#include "pixel/format.h"
#include "pixel/mode.h"
#include "raster/pixels.h"
#include "raster/spans.h"

namespace brisal {
namespace {

// The half-width at height n of a quarter circle of radius r, scaled to s.
int64_t HalfWidth(const QuarterCircle &quarter, int64_t n, int64_t r, int64_t s) {
  return quarter.HalfWidth(Divide(n * QuarterCircle::kRadius, r), s);
}

struct Range {
  int64_t first;
  int64_t last;

  int64_t Count() const { return std::max<int64_t>(last - first + 1, 0); }
};

// The i in the range for which low <= centre + sign * i < high.
Range Within(Range i, int64_t centre, int sign, int64_t low, int64_t high) {
  if (sign > 0) return {std::max(i.first, low - centre), std::min(i.last, high - 1 - centre)};
  return {std::max(i.first, centre - high + 1), std::min(i.last, centre - low)};
}

Span FlatSpan(int64_t y, int64_t left, int64_t right) {
  Span span = {};
  span.y = static_cast<int32_t>(y);
  span.left = static_cast<int32_t>(left);
  span.right = static_cast<int32_t>(right);
  return span;
}

// Calls plot for every point of the outline that may lie in the view, as often as it occurs. The
// order does not matter: every point gets the same colour in the same mode.
template <class Plot>
void VisitOutline(const QuarterCircle &quarter, const Ellipse &e, const Viewport *view, Plot plot) {
  for (const int sign : {-1, 1}) {
    Range rows = {0, e.ry - 1};
    Range columns = {0, e.rx - 1};
    if (view != nullptr) {
      rows = Within(rows, e.cy, sign, view->top, view->bottom);
      columns = Within(columns, e.cx, sign, view->left, view->right);
    }
    for (int64_t i = rows.first; i <= rows.last; ++i) {
      const int64_t h = HalfWidth(quarter, i, e.ry, e.rx);
      plot(e.cx - h, e.cy + sign * i);
      plot(e.cx + h, e.cy + sign * i);
    }
    for (int64_t j = columns.first; j <= columns.last; ++j) {
      const int64_t h = HalfWidth(quarter, j, e.rx, e.ry);
      plot(e.cx + sign * j, e.cy - h);
      plot(e.cx + sign * j, e.cy + h);
    }
  }
}

}  // namespace

Extent ClassifyEllipse(const Viewport &view, const Ellipse &e) {
  if (e.cx + e.rx < view.left || e.cx - e.rx > view.right || e.cy + e.ry < view.top ||
      e.cy - e.ry > view.bottom) {
    return Extent::kOutside;
  }
  const bool inside = e.cx - e.rx >= view.left && e.cx + e.rx < view.right &&
                      e.cy - e.ry >= view.top && e.cy + e.ry < view.bottom;
  return inside ? Extent::kInside : Extent::kPartly;
}

void DrawEllipse(const Canvas &canvas, const QuarterCircle &quarter, SpanBuffer &spanBuffer,
                 const Ellipse &e, uint32_t colour, int32_t flags) {
  if ((flags & BRSL_OUTLINE) != 0) return DrawOpenEllipse(canvas, quarter, e, colour, flags);
  const uint32_t packed = PackColour(colour, canvas.target.format);
  switch (ClassifyEllipse(canvas.viewport, e)) {
    case Extent::kOutside: return;
    case Extent::kPartly: return FillEllipseClipped(canvas, quarter, spanBuffer, e, packed, flags);
    case Extent::kInside:
      return FillEllipseUnclipped(canvas, quarter, spanBuffer, e, packed, flags);
  }
}

void DrawOpenEllipse(const Canvas &canvas, const QuarterCircle &quarter, const Ellipse &e,
                     uint32_t colour, int32_t flags) {
  const Extent extent = ClassifyEllipse(canvas.viewport, e);
  if (extent == Extent::kOutside) return;
  DrawOutline(canvas, quarter, e, PackColour(colour, canvas.target.format), ModeOfFlags(flags),
              extent == Extent::kPartly);
}

void DrawOutline(const Canvas &canvas, const QuarterCircle &quarter, const Ellipse &e,
                 uint32_t packed, int32_t mode, bool clip) {
  const PixelPen pen(canvas, packed, mode);
  if (!pen.Draws()) return;
  const Viewport &view = canvas.viewport;
  if (!clip) {
    VisitOutline(quarter, e, nullptr, [&](int64_t x, int64_t y) { pen.Plot(x, y); });
    return;
  }
  VisitOutline(quarter, e, &view, [&](int64_t x, int64_t y) {
    if (view.Contains(x, y)) pen.Plot(x, y);
  });
}

void FillEllipseClipped(const Canvas &canvas, const QuarterCircle &quarter, SpanBuffer &spanBuffer,
                        const Ellipse &e, uint32_t packed, int32_t flags) {
  if (e.rx < 1 || e.ry < 2) return;
  const Viewport &view = canvas.viewport;
  const Range heights = {1, e.ry - 1};
  // Height i lies on row cy + i, and on row cy + 1 - i.
  const Range lower = Within(heights, e.cy, 1, view.top, view.bottom);
  const Range upper = Within(heights, e.cy + 1, -1, view.top, view.bottom);
  Span *const spans = spanBuffer.Get(lower.Count() + upper.Count());
  if (spans == nullptr) return;
  Span *end = spans;
  const auto add = [&](int64_t i, int64_t y) {
    const int64_t h = HalfWidth(quarter, i, e.ry, e.rx);
    const int64_t left = std::max<int64_t>(e.cx - h, view.left);
    const int64_t right = std::min<int64_t>(e.cx + h, view.right);
    if (left < right) *end++ = FlatSpan(y, left, right);
  };
  for (int64_t i = upper.last; i >= upper.first; --i) add(i, e.cy + 1 - i);
  for (int64_t i = lower.first; i <= lower.last; ++i) add(i, e.cy + i);
  DrawSpanList(canvas, spans, end - spans, packed, ModeOfFlags(flags));
}

void FillEllipseUnclipped(const Canvas &canvas, const QuarterCircle &quarter,
                          SpanBuffer &spanBuffer, const Ellipse &e, uint32_t packed,
                          int32_t flags) {
  if (e.rx < 1 || e.ry < 1) return;
  const int64_t rows = e.ry - 1;  // above the middle, and as many below it
  Span *const spans = spanBuffer.Get(2 * rows);
  if (spans == nullptr) return;
  for (int64_t k = 1; k <= rows; ++k) {
    const int64_t h = HalfWidth(quarter, k, e.ry, e.rx);
    spans[rows - k] = FlatSpan(e.cy - k, e.cx - h, e.cx + h);
    spans[rows + k - 1] = FlatSpan(e.cy + k - 1, e.cx - h, e.cx + h);
  }
  DrawSpanList(canvas, spans, 2 * rows, packed, ModeOfFlags(flags));
}

}  // namespace brisal
