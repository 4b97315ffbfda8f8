#include "pixel/format.h"
#include "pixel/mode.h"
#include "poly/edge_walker.h"
#include "poly/fill.h"
#include "raster/spans.h"

namespace brisal {
namespace {

using Side = Chain<NoValues>;

// Rows that cross the view's sides are cut one by one.
void DrawCut(const Canvas &canvas, SpanBuffer &spanBuffer, const Polygon &polygon, uint32_t packed,
             int32_t mode) {
  const Viewport &view = canvas.viewport;
  FlatSpan *const spans = spanBuffer.Get<FlatSpan>(polygon.MaxRows(view));
  if (spans == nullptr) return;
  FlatSpan *end = spans;
  WalkEdges<NoValues>(polygon, view, [&](int64_t, const Side &l, const Side &r) {
    *end++ = {static_cast<int32_t>(std::max<int64_t>(l.x / 65536, view.left)),
              static_cast<int32_t>(std::min<int64_t>(r.x / 65536, view.right))};
  });
  const int64_t top = std::max(polygon.bounds.minY, view.top);
  DrawSpanList(canvas, top, spans, end - spans, packed, mode);
}

void DrawWhole(const Canvas &canvas, const Polygon &polygon, uint32_t packed, int32_t mode) {
  const TrapezoidPen pen(canvas, packed, mode);
  if (!pen.Draws()) return;
  WalkSegments<NoValues>(polygon, canvas.viewport, [&](int64_t y, int64_t rows, Side &l, Side &r) {
    pen.Draw(y, rows, l.x, l.Step(), r.x, r.Step());
    l.Advance(rows);
    r.Advance(rows);
  });
}

}  // namespace

void DrawFlatPoly(const Canvas &canvas, SpanBuffer &spanBuffer, const VertexList &list, int count,
                  uint32_t colour, int32_t drawMode) {
  const Polygon polygon(list, count);
  if (!polygon.Shows(canvas.viewport)) return;
  const uint32_t packed = PackColour(colour, canvas.target.format);
  const int32_t mode = ModeOfFlags(drawMode);
  if (polygon.CrossesSides(canvas.viewport)) {
    DrawCut(canvas, spanBuffer, polygon, packed, mode);
  } else {
    DrawWhole(canvas, polygon, packed, mode);
  }
}

}  // namespace brisal
