#include "poly/textured.h"

#include <algorithm>
#include <type_traits>

#include "poly/colour_values.h"
#include "poly/edge_walker.h"
#include "poly/texture_spans.h"

namespace brisal {
namespace {

// Textures are mapped corner to corner: a row's coordinates lead to its excluded right end.
struct TextureRules : EndAtVertex {
  static constexpr uint32_t kOffset = 0;
  static constexpr int64_t kLastPixel = 0;
};

// Sprites are mapped from the centre of the first texel to the centre of the last.
struct SpriteRules {
  static constexpr uint32_t kOffset = 0x8000;
  static constexpr int64_t kLastPixel = 1;

  // Where both edges end on one row with a width, that row is drawn too.
  template <class Values>
  static int64_t End(const Chain<Values> &left, const Chain<Values> &right) {
    if (left.End() != right.End()) return std::min(left.End(), right.End());
    return left.End() + (left.x != right.x ? 1 : 0);
  }
};

// Texel coordinates, and a colour where the pipeline asks for it, carried along an edge. At a
// vertex they carry on from the value reached.
template <class Rules, bool Shaded>
struct TexelValues {
  void Start(const VertexList &list, int vertex) {
    texel = Texel(list, vertex);
    colour.Start(list, vertex);
  }

  void AimAt(const VertexList &list, int vertex, const Reciprocal &perRow) {
    step = StepBetween(texel, Texel(list, vertex), perRow);
    colour.AimAt(list, vertex, perRow);
  }

  void Advance(int64_t rows) {
    texel += Times(step, rows);
    colour.Advance(rows);
  }

  static FixedTexel Texel(const VertexList &list, int vertex) {
    const FixedTexel whole = {static_cast<uint32_t>(list.u[vertex]),
                              static_cast<uint32_t>(list.v[vertex])};
    return (whole << 16) + Rules::kOffset;
  }

  FixedTexel texel = {};
  FixedTexel step = {};
  [[no_unique_address]] std::conditional_t<Shaded, ColourValues, NoValues> colour;
};

// One row between two edges, cut to the view where it may be wider. False where nothing of it is left.
template <bool Clips, class Rules, bool Shaded>
bool MakeSpan(const Viewport &view, int64_t y, const Chain<TexelValues<Rules, Shaded>> &l,
              const Chain<TexelValues<Rules, Shaded>> &r, Span *span) {
  const int64_t left = Clips ? l.x / 65536 : l.x >> 16;
  const int64_t right = Clips ? r.x / 65536 : r.x >> 16;
  const int64_t steps = right - left - Rules::kLastPixel;
  if (steps < 1) return false;
  const int64_t leftCut = Clips ? std::max<int64_t>(view.left - left, 0) : 0;
  const int64_t rightCut = Clips ? std::max<int64_t>(right - view.right, 0) : 0;
  if (left + leftCut >= right - rightCut) return false;

  const Reciprocal perPixel(steps);
  const FixedTexel step = StepBetween(l.values.texel, r.values.texel, perPixel);
  const FixedTexel first = l.values.texel + Times(step, leftCut);
  span->Place(y, left + leftCut, right - rightCut);
  span->u = static_cast<int32_t>(first[0]);
  span->v = static_cast<int32_t>(first[1]);
  span->du = static_cast<int32_t>(step[0]);
  span->dv = static_cast<int32_t>(step[1]);
  if constexpr (Shaded) {
    FixedColour leftColour = l.values.colour.colour;
    FixedColour rightColour = r.values.colour.colour;
    if (leftCut + rightCut > 0) {
      CutColours(leftColour, rightColour, right - left, leftCut, rightCut);
    }
    span->leftColour = static_cast<int32_t>(Whole(leftColour));
    span->rightColour = static_cast<int32_t>(Whole(rightColour));
  }
  return true;
}

// Coordinates of 16.16 texels reach no further.
constexpr int32_t kLargestTexel = 32767;

void ClampTexels(VertexList &list, int count, const Surface &texture) {
  const int32_t maxU = std::min(texture.width - 1, kLargestTexel);
  const int32_t maxV = std::min(texture.height - 1, kLargestTexel);
  for (int i = 0; i < count; ++i) {
    list.u[i] = std::clamp(list.u[i], 0, maxU);
    list.v[i] = std::clamp(list.v[i], 0, maxV);
  }
}

bool HasTexels(const Surface *texture) {
  return texture != nullptr && texture->width > 0 && texture->height > 0;
}

template <bool Clips, class Rules, bool Shaded>
int64_t MakeSpans(const Polygon &polygon, const Viewport &view, Span *spans) {
  using Values = TexelValues<Rules, Shaded>;
  Span *end = spans;
  WalkEdges<Values, Rules>(polygon, view,
                           [&](int64_t y, const Chain<Values> &l, const Chain<Values> &r) {
                             if (MakeSpan<Clips, Rules, Shaded>(view, y, l, r, end)) ++end;
                           });
  return end - spans;
}

template <class Rules, bool Shaded>
int64_t MakeSpans(const Polygon &polygon, const Viewport &view, Span *spans) {
  if (polygon.CrossesSides(view)) return MakeSpans<true, Rules, Shaded>(polygon, view, spans);
  return MakeSpans<false, Rules, Shaded>(polygon, view, spans);
}

template <class Rules>
void DrawPoly(const Canvas &canvas, const TextureWork &work, const Surface *texture, int count,
              const Pipeline *pipeline) {
  if (pipeline == nullptr || !HasTexels(texture)) return;
  const Viewport &view = canvas.viewport;
  const Polygon polygon(work.vertices, count);
  if (!polygon.Shows(view)) return;
  Span *const spans = work.spans.Get<Span>(polygon.MaxRows(view));
  if (spans == nullptr) return;
  ClampTexels(work.vertices, count, *texture);
  const int64_t rows = pipeline->gouraudState == 1 ? MakeSpans<Rules, true>(polygon, view, spans)
                                                   : MakeSpans<Rules, false>(polygon, view, spans);
  DrawTexturedSpans(canvas, *texture, spans, rows, *pipeline, work.gouraud);
}

}  // namespace

void DrawTexturedPoly(const Canvas &canvas, const TextureWork &work, const Surface *texture,
                      int count, const Pipeline *pipeline) {
  DrawPoly<TextureRules>(canvas, work, texture, count, pipeline);
}

void DrawSpritePoly(const Canvas &canvas, const TextureWork &work, const Surface *texture,
                    int count, const Pipeline *pipeline) {
  DrawPoly<SpriteRules>(canvas, work, texture, count, pipeline);
}

void DrawTexture(const Canvas &canvas, const TextureWork &work, const Surface *texture, int32_t x,
                 int32_t y, const Pipeline *pipeline) {
  if (pipeline == nullptr || !HasTexels(texture)) return;
  const Viewport &view = canvas.viewport;
  const int64_t width = std::min(texture->width, kLargestTexel);
  const int64_t height = std::min(texture->height, kLargestTexel);
  const Viewport part = {std::max(x, view.left), std::max(y, view.top),
                         static_cast<int32_t>(std::min<int64_t>(x + width, view.right)),
                         static_cast<int32_t>(std::min<int64_t>(y + height, view.bottom))};
  if (part.left >= part.right || part.top >= part.bottom) return;
  if (CopyTexture(canvas, *texture, part, x, y, *pipeline)) return;
  const int64_t rows = int64_t{part.bottom} - part.top;
  Span *const spans = work.spans.Get<Span>(rows);
  if (spans == nullptr) return;
  Span *span = spans;
  for (int64_t row = part.top; row < part.bottom; ++row, ++span) {
    span->Place(row, part.left, part.right);
    span->u = static_cast<int32_t>((int64_t{part.left} - x) * 65536);
    span->v = static_cast<int32_t>((row - y) * 65536);
    span->du = 0x10000;
    span->dv = 0;
    span->leftColour = 0xFFFFFF;
    span->rightColour = 0xFFFFFF;
  }
  DrawTexturedSpans(canvas, *texture, spans, rows, *pipeline, work.gouraud);
}

}  // namespace brisal
