#include "collide/span_lists.h"

#include <algorithm>
#include <utility>

#include "collide/polygon.h"
#include "collide/span_writer.h"

namespace brisal {

static_assert(sizeof(BRSL_CollisionSpans) == 12 && sizeof(BRSL_CollisionSpan) == 12);

namespace {

// Lines step in 14 bits of fraction, from the middle of a pixel.
constexpr int64_t kOne = 16384;

void ListSteepLine(SpanWriter &spans, int64_t x1, int64_t y1, int64_t dx, int64_t dy) {
  const int64_t rows = dy < 0 ? -dy : dy;
  const int64_t down = dy < 0 ? -1 : 1;
  const int64_t step = Divide(dx * kOne, rows);
  int64_t x = x1 * kOne + kOne / 2;
  for (int64_t i = 0; i <= rows; ++i, x += step) {
    spans.Add(y1 + i * down, x / kOne, x / kOne + 2);
  }
}

// The columns until y lies on another row. Rows are cut towards zero, so that they mirror.
int64_t ColumnsOnRow(int64_t y, int64_t step) {
  if (step == 0) return INT64_MAX;
  if (step < 0) {
    y = -y;
    step = -step;
  }
  const int64_t row = y / kOne;
  const int64_t next = y <= -kOne ? row * kOne + 1 : (row + 1) * kOne;
  return (next - y + step - 1) / step;
}

void ListShallowLine(SpanWriter &spans, int64_t x1, int64_t y1, int64_t dx, int64_t dy) {
  const int64_t step = Divide(dy * kOne, dx);
  const int64_t last = x1 + dx;
  int64_t y = y1 * kOne + kOne / 2;
  int64_t start = x1;
  for (;;) {
    const int64_t columns = ColumnsOnRow(y, step);
    if (columns > last - start) break;
    spans.Add(y / kOne, start, start + columns + 1);
    start += columns;
    y += columns * step;
  }
  // The row of the last run is the one that the line would reach next.
  y += (last - start + 1) * step;
  if (start < last) spans.Add(y / kOne, start, last + 3);
}

}  // namespace

void ListPolygon(const BRSL_VertexBuffer &vertices, int32_t count, BRSL_CollisionSpans *list) {
  const VertexList corners = VerticesOf(vertices);
  const Polygon polygon(corners, count);
  const PolyBounds bounds = BoundsOf(polygon);
  *list = {Wrap(int64_t{bounds.maxY} - bounds.minY), bounds.minY, bounds.maxY};
  if (!polygon.drawable) return;
  SpanWriter spans(list);
  using Side = Chain<NoValues>;
  WalkEdges<NoValues>(polygon, kEverywhere, [&](int64_t y, const Side &l, const Side &r) {
    spans.Add(y, l.x / 65536, r.x / 65536);
  });
}

void ListLine(BRSL_CollisionSpans *list, int32_t x1, int32_t y1, int32_t x2, int32_t y2) {
  if (x1 >= x2) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  const int64_t dx = int64_t{x2} - x1;
  const int64_t dy = int64_t{y2} - y1;
  const int64_t rows = dy < 0 ? -dy : dy;
  list->top = std::min(y1, y2);
  list->bottom = std::max(y1, y2);
  SpanWriter spans(list);
  if (dy == 0) {
    spans.Add(y1, x1, x2);
    list->count = 2;
  } else if (rows >= dx) {
    ListSteepLine(spans, x1, y1, dx, dy);
    list->count = Wrap(rows);
  } else {
    ListShallowLine(spans, x1, y1, dx, dy);
    list->count = spans.Count();
  }
}

void ListEllipse(const QuarterCircle &quarter, BRSL_CollisionSpans *list, int32_t cx, int32_t cy,
                 int32_t rx, int32_t ry) {
  *list = {Wrap(int64_t{ry} * 2), Wrap(int64_t{cy} + 1 - ry), Wrap(int64_t{cy} + ry)};
  SpanWriter spans(list);
  for (int64_t k = 1; k < ry; ++k) {
    const int64_t h = quarter.HalfWidth(Divide(k * QuarterCircle::kRadius, ry), rx);
    spans.Add(cy + k, cx - h, cx + h);
    spans.Add(cy - k + 1, cx - h, cx + h);
  }
}

void ListRectangle(BRSL_CollisionSpans *list, int32_t x1, int32_t y1, int32_t x2, int32_t y2) {
  const int32_t top = std::min(y1, y2);
  const int32_t bottom = std::max(y1, y2);
  *list = {Wrap(int64_t{bottom} - top), top, bottom};
  SpanWriter spans(list);
  for (int64_t y = top; y < bottom; ++y) spans.Add(y, std::min(x1, x2), std::max(x1, x2));
}

}  // namespace brisal
