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
  explicit ShadedSpanList(Span *spans) : begin_(spans), end_(spans) {}

  void Add(int64_t y, int64_t left, int64_t right, const ColourValues &l, const ColourValues &r) {
    if (right <= left) return;
    end_->Place(y, left, right);
    end_->leftColour = l.Colour();
    end_->rightColour = r.Colour();
    ++end_;
  }

  // Cuts the row to the view; the colours move along to where the cuts are.
  void AddClipped(const Viewport &view, int64_t y, const Side &l, const Side &r) {
    int64_t left = l.x / 65536;
    int64_t right = r.x / 65536;
    if (left >= view.right || right < view.left || right <= left) return;
    ColourValues leftColour = l.values;
    ColourValues rightColour = r.values;
    const int64_t leftCut = std::max<int64_t>(view.left - left, 0);
    const int64_t rightCut = std::max<int64_t>(right - view.right, 0);
    CutColours(leftColour, rightColour, right - left, leftCut, rightCut);
    Add(y, left + leftCut, right - rightCut, leftColour, rightColour);
  }

  const Span *Begin() const { return begin_; }
  int64_t Count() const { return end_ - begin_; }

 private:
  Span *begin_;
  Span *end_;
};

}  // namespace

void DrawGouraudPoly(const Canvas &canvas, SpanBuffer &spanBuffer, const VertexList &list,
                     int count, int32_t drawMode) {
  const Viewport &view = canvas.viewport;
  const Polygon polygon(list, count);
  if (!polygon.Shows(view)) return;
  Span *const memory = spanBuffer.Get(polygon.MaxRows(view));
  if (memory == nullptr) return;
  ShadedSpanList spans(memory);
  if (polygon.CrossesSides(view)) {
    WalkEdges<ColourValues>(polygon, view, [&](int64_t y, const Side &l, const Side &r) {
      spans.AddClipped(view, y, l, r);
    });
  } else {
    WalkEdges<ColourValues>(polygon, view, [&](int64_t y, const Side &l, const Side &r) {
      spans.Add(y, l.x >> 16, r.x >> 16, l.values, r.values);
    });
  }
  DrawGouraudSpanList(canvas, spans.Begin(), spans.Count(), ModeOfFlags(drawMode));
}

}  // namespace brisal
