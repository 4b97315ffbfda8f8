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

// Half-widths of a quarter circle of radius r, scaled to s, at heights that grow by one: the place in
// the table, n * 16384 / r, is stepped instead of divided.
class HalfWidths {
 public:
  HalfWidths(const QuarterCircle &quarter, int64_t n, int64_t r, int64_t s)
      : quarter_(quarter),
        radius_(r),
        scale_(s),
        place_(Divide(n * QuarterCircle::kRadius, r)),
        rest_(n * QuarterCircle::kRadius - place_ * r),
        placeStep_(QuarterCircle::kRadius / r),
        restStep_(QuarterCircle::kRadius % r) {}

  int64_t Next() {
    const int64_t width = quarter_.HalfWidth(place_, scale_);
    place_ += placeStep_;
    rest_ += restStep_;
    if (rest_ >= radius_) {
      rest_ -= radius_;
      ++place_;
    }
    return width;
  }

 private:
  const QuarterCircle &quarter_;
  int64_t radius_;
  int64_t scale_;
  int64_t place_;
  int64_t rest_;
  int64_t placeStep_;
  int64_t restStep_;
};

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

// The points (c1 -+ h, c2 + sign * i) of an outline for the i in the range, h being the half-width at
// height i. Plots them by way of plot(coordinate 1, coordinate 2).
template <class Plot>
void VisitSide(const QuarterCircle &quarter, Range range, int64_t c1, int64_t c2, int64_t r1,
               int64_t r2, int sign, Plot plot) {
  if (range.Count() == 0) return;
  HalfWidths widths(quarter, range.first, r2, r1);
  for (int64_t i = range.first; i <= range.last; ++i) {
    const int64_t h = widths.Next();
    plot(c1 - h, c2 + sign * i);
    plot(c1 + h, c2 + sign * i);
  }
}

// Calls plot for every point of the outline that may lie in the view, or for all without one, as often
// as it occurs. The order does not matter: every point gets the same colour in the same mode.
template <class Plot>
void VisitOutline(const QuarterCircle &quarter, const Ellipse &e, const Viewport *view, Plot plot) {
  const auto plotTurned = [&](int64_t y, int64_t x) { plot(x, y); };
  for (const int sign : {-1, 1}) {
    Range rows = {0, e.ry - 1};
    Range columns = {0, e.rx - 1};
    if (view != nullptr) {
      rows = Within(rows, e.cy, sign, view->top, view->bottom);
      columns = Within(columns, e.cx, sign, view->left, view->right);
    }
    VisitSide(quarter, rows, e.cx, e.cy, e.rx, e.ry, sign, plot);
    VisitSide(quarter, columns, e.cy, e.cx, e.ry, e.rx, sign, plotTurned);
  }
}

}  // namespace

Extent ClassifyEllipse(const Viewport &view, const Ellipse &e) {
  if (e.cx + e.rx < view.left || e.cx - e.rx > view.right || e.cy + e.ry < view.top ||
      e.cy - e.ry > view.bottom) {
    return Extent::kOutside;
  }
  // With a radius below 0 the bounds change sides, and say nothing of the points of an outline.
  const bool inside = e.rx >= 0 && e.ry >= 0 && e.cx - e.rx >= view.left &&
                      e.cx + e.rx < view.right && e.cy - e.ry >= view.top &&
                      e.cy + e.ry < view.bottom;
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
  const Viewport &view = canvas.viewport;
  const auto visit = [&](auto plot) {
    if (!clip) return VisitOutline(quarter, e, nullptr, plot);
    VisitOutline(quarter, e, &view, [&](int64_t x, int64_t y) {
      if (view.Contains(x, y)) plot(x, y);
    });
  };
  if (mode != DRAW_SOLID) {
    const PixelPen pen(canvas, packed, mode);
    if (pen.Draws()) visit([&](int64_t x, int64_t y) { pen.Plot(x, y); });
    return;
  }
  // By far the commonest, and so short a job that a call for each pixel would double it.
  const Buffer target = canvas.target;
  WithFormat(target.format, 0, [&](auto f) {
    visit([&](int64_t x, int64_t y) { f.Store(target.Row(y) + ByteOffset(x, f.kBytes), packed); });
    return 0;
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
  // Either half is missing where the view cuts the middle rows off, so that the rows are consecutive.
  const int64_t rows = upper.Count() + lower.Count();
  const int64_t top = upper.Count() > 0 ? e.cy + 1 - upper.last : e.cy + lower.first;
  FlatSpan *const spans = spanBuffer.Get<FlatSpan>(rows);
  if (spans == nullptr || rows == 0) return;
  const auto put = [&](int64_t h, int64_t y) {
    spans[y - top] = {static_cast<int32_t>(std::max<int64_t>(e.cx - h, view.left)),
                      static_cast<int32_t>(std::min<int64_t>(e.cx + h, view.right))};
  };
  HalfWidths upperWidths(quarter, upper.first, e.ry, e.rx);
  for (int64_t i = upper.first; i <= upper.last; ++i) put(upperWidths.Next(), e.cy + 1 - i);
  HalfWidths lowerWidths(quarter, lower.first, e.ry, e.rx);
  for (int64_t i = lower.first; i <= lower.last; ++i) put(lowerWidths.Next(), e.cy + i);
  DrawSpanList(canvas, top, spans, rows, packed, ModeOfFlags(flags));
}

void FillEllipseUnclipped(const Canvas &canvas, const QuarterCircle &quarter,
                          SpanBuffer &spanBuffer, const Ellipse &e, uint32_t packed,
                          int32_t flags) {
  if (e.rx < 1 || e.ry < 1) return;
  const int64_t rows = e.ry - 1;  // above the middle, and as many below it
  FlatSpan *const spans = spanBuffer.Get<FlatSpan>(2 * rows);
  if (spans == nullptr) return;
  HalfWidths widths(quarter, 1, e.ry, e.rx);
  for (int64_t k = 1; k <= rows; ++k) {
    const int64_t h = widths.Next();
    const FlatSpan span = {static_cast<int32_t>(e.cx - h), static_cast<int32_t>(e.cx + h)};
    spans[rows - k] = span;
    spans[rows + k - 1] = span;
  }
  DrawSpanList(canvas, e.cy - rows, spans, 2 * rows, packed, ModeOfFlags(flags));
}

}  // namespace brisal
