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
  FlatSpan *const spans = spanBuffer.Get<FlatSpan>(polygon.MaxRows(view));
  if (spans == nullptr) return;
  FlatSpan *end = spans;
  using Side = Chain<NoValues>;
  if (polygon.CrossesSides(view)) {
    WalkEdges<NoValues>(polygon, view, [&](int64_t, const Side &l, const Side &r) {
      *end++ = {static_cast<int32_t>(std::max<int64_t>(l.x / 65536, view.left)),
                static_cast<int32_t>(std::min<int64_t>(r.x / 65536, view.right))};
    });
  } else {
    WalkEdges<NoValues>(polygon, view, [&](int64_t, const Side &l, const Side &r) {
      *end++ = {static_cast<int32_t>(l.x >> 16), static_cast<int32_t>(r.x >> 16)};
    });
  }
  const int64_t top = std::max(polygon.bounds.minY, view.top);
  DrawSpanList(canvas, top, spans, end - spans, PackColour(colour, canvas.target.format),
               ModeOfFlags(drawMode));
}

}  // namespace brisal
