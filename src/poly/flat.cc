#include "pixel/format.h"
#include "pixel/mode.h"
#include "poly/edge_walker.h"
#include "poly/fill.h"
#include "raster/spans.h"

namespace brisal {

void DrawFlatPoly(const Canvas &canvas, SpanBuffer &spanBuffer, const VertexList &list, int count,
                  uint32_t colour, int32_t drawMode) {
  const Viewport &view = canvas.viewport;
  const Polygon polygon(list, count);
  if (!polygon.Shows(view)) return;
  Span *const spans = spanBuffer.Get<Span>(polygon.MaxRows(view));
  if (spans == nullptr) return;
  Span *end = spans;
  using Side = Chain<NoValues>;
  if (polygon.CrossesSides(view)) {
    WalkEdges<NoValues>(polygon, view, [&](int64_t y, const Side &l, const Side &r) {
      const int64_t left = std::max<int64_t>(l.x / 65536, view.left);
      const int64_t right = std::min<int64_t>(r.x / 65536, view.right);
      if (left < right) (end++)->Place(y, left, right);
    });
  } else {
    WalkEdges<NoValues>(polygon, view, [&](int64_t y, const Side &l, const Side &r) {
      (end++)->Place(y, l.x >> 16, r.x >> 16);
    });
  }
  DrawSpanList(canvas, spans, end - spans, PackColour(colour, canvas.target.format),
               ModeOfFlags(drawMode));
}

}  // namespace brisal
