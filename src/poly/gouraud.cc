#include "pixel/mode.h"
#include "poly/colour_values.h"
#include "poly/edge_walker.h"
#include "poly/fill.h"
#include "raster/spans.h"

namespace brisal {
namespace {

using Side = Chain<ColourValues>;

class ShadedSpanList {
 public:
  explicit ShadedSpanList(ShadedSpan *spans) : begin_(spans), end_(spans) {}

  void Add(int64_t y, int64_t left, int64_t right, FixedColour l, FixedColour r) {
    if (right <= left) return;
    *end_++ = {l, r, static_cast<int32_t>(y), static_cast<int32_t>(left),
               static_cast<int32_t>(right)};
  }

  // Cuts the row to the view; the colours move along to where the cuts are.
  void AddClipped(const Viewport &view, int64_t y, const Side &l, const Side &r) {
    int64_t left = l.x / 65536;
    int64_t right = r.x / 65536;
    if (left >= view.right || right < view.left || right <= left) return;
    FixedColour leftColour = l.values.colour;
    FixedColour rightColour = r.values.colour;
    const int64_t leftCut = std::max<int64_t>(view.left - left, 0);
    const int64_t rightCut = std::max<int64_t>(right - view.right, 0);
    CutColours(leftColour, rightColour, right - left, leftCut, rightCut);
    Add(y, left + leftCut, right - rightCut, leftColour, rightColour);
  }

  const ShadedSpan *Begin() const { return begin_; }
  int64_t Count() const { return end_ - begin_; }

 private:
  ShadedSpan *begin_;
  ShadedSpan *end_;
};

}  // namespace

void DrawGouraudPoly(const Canvas &canvas, SpanBuffer &spanBuffer, const VertexList &list,
                     int count, int32_t drawMode) {
  const Viewport &view = canvas.viewport;
  const Polygon polygon(list, count);
  if (!polygon.Shows(view)) return;
  ShadedSpan *const memory = spanBuffer.Get<ShadedSpan>(polygon.MaxRows(view));
  if (memory == nullptr) return;
  ShadedSpanList spans(memory);
  if (polygon.CrossesSides(view)) {
    WalkEdges<ColourValues>(polygon, view, [&](int64_t y, const Side &l, const Side &r) {
      spans.AddClipped(view, y, l, r);
    });
  } else {
    WalkEdges<ColourValues>(polygon, view, [&](int64_t y, const Side &l, const Side &r) {
      spans.Add(y, l.x >> 16, r.x >> 16, l.values.colour, r.values.colour);
    });
  }
  DrawGouraudSpanList(canvas, spans.Begin(), spans.Count(), ModeOfFlags(drawMode));
}

}  // namespace brisal
