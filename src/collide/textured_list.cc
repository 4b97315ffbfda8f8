#include "collide/textured_list.h"

#include <algorithm>
#include <cstddef>

#include "collide/polygon.h"
#include "core/ints.h"
#include "pixel/format.h"
#include "raster/pixels.h"

namespace brisal {

static_assert(offsetof(BRSL_VertexBuffer, y) == 32 && offsetof(BRSL_VertexBuffer, u) == 64 &&
              offsetof(BRSL_VertexBuffer, v) == 96 && sizeof(BRSL_VertexBuffer) == 128);
static_assert(offsetof(BRSL_TexturedSpans, image) == 8 &&
              offsetof(BRSL_TexturedSpans, format) == 8 + sizeof(void *) &&
              offsetof(BRSL_TexturedSpans, maskColour) == 16 + sizeof(void *));
static_assert(sizeof(void *) != 4 || sizeof(BRSL_TexturedSpans) == 24);
static_assert(sizeof(BRSL_TexturedSpan) == 28);

namespace {

// Image coordinates in 16.16, from the middle of a pixel. Each edge starts at its vertex.
struct ImageValues {
  void Start(const VertexList &, int vertex) { from = vertex; }

  void AimAt(const VertexList &list, int vertex, const Reciprocal &perRow) {
    u = int64_t{list.u[from]} * 65536 + 32768;
    v = int64_t{list.v[from]} * 65536 + 32768;
    du = perRow.Quotient((int64_t{list.u[vertex]} - list.u[from]) * 65536);
    dv = perRow.Quotient((int64_t{list.v[vertex]} - list.v[from]) * 65536);
    from = vertex;
  }

  void Advance(int64_t rows) {
    u += rows * du;
    v += rows * dv;
  }

  int from = 0;
  int64_t u = 0;
  int64_t v = 0;
  int64_t du = 0;
  int64_t dv = 0;
};

// Pixels of 32 bits are compared with alpha, but those of format 4 have none to compare.
uint32_t MaskOf(uint32_t colour, int32_t format) {
  return format == BRSL_FORMAT_X32 ? colour & 0xFFFFFF : PackColour(colour, format);
}

}  // namespace

void ListTexturedPolygon(const BRSL_VertexBuffer &vertices, int32_t count, const Buffer &source,
                         uint32_t maskColour, BRSL_TexturedSpans *list) {
  VertexList corners = VerticesOf(vertices);
  std::copy_n(vertices.u, VertexList::kSlots, corners.u);
  std::copy_n(vertices.v, VertexList::kSlots, corners.v);
  const Polygon polygon(corners, count);
  const PolyBounds bounds = BoundsOf(polygon);
  list->top = bounds.minY;
  list->bottom = bounds.maxY;
  list->image = source.address;
  list->format = source.format;
  list->pitch = source.pitch;
  list->maskColour = MaskOf(maskColour, source.format);
  BRSL_TexturedSpan *entry = EntriesOf(list);
  if (polygon.drawable) {
    using Side = Chain<ImageValues>;
    WalkEdges<ImageValues>(polygon, kEverywhere, [&](int64_t y, const Side &l, const Side &r) {
      *entry++ = {Wrap(y),           Wrap(l.x / 65536), Wrap(l.values.u), Wrap(l.values.v),
                  Wrap(r.x / 65536), Wrap(r.values.u),  Wrap(r.values.v)};
    });
  }
  *entry = {};
}

void DrawSpanEnds(const Canvas &canvas, const BRSL_TexturedSpans &list) {
  const PixelPen pen(canvas, PackColour(0xFF0000, canvas.target.format), DRAW_NORMAL);
  if (!pen.Draws()) return;
  const BRSL_TexturedSpan *entries = EntriesOf(&list);
  const int64_t rows = int64_t{list.bottom} - list.top - 1;
  for (int64_t i = 0; i < rows; ++i) {
    const BRSL_TexturedSpan &entry = entries[i];
    for (const int32_t x : {entry.left, entry.right}) {
      if (canvas.viewport.Contains(x, entry.y)) pen.Plot(x, entry.y);
    }
  }
}

}  // namespace brisal
