#include "collide/edge_buffer.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <utility>

#include "collide/span_writer.h"
#include "core/ints.h"
#include "pixel/format.h"
#include "raster/spans.h"

namespace brisal {
namespace {

struct Node {
  int32_t next;
  int32_t host;
  float x;
};
static_assert(sizeof(Node) == 12);

// Nodes lie at any alignment, and one word of each is the host's.
template <class Field>
Field Load(const uint8_t *node, size_t at) {
  Field field;
  std::memcpy(&field, node + at, sizeof field);
  return field;
}

template <class Field>
void Store(uint8_t *node, size_t at, Field field) {
  std::memcpy(node + at, &field, sizeof field);
}

int32_t Next(const uint8_t *node) { return Load<int32_t>(node, offsetof(Node, next)); }
float CrossingOf(const uint8_t *node) { return Load<float>(node, offsetof(Node, x)); }

// Calls run(left, right) for each pair of crossings, cut to the view's columns, and empties the row.
template <class Run>
void EachRun(const uint8_t *nodes, const Viewport &view, int32_t *head, Run run) {
  const int32_t first = nodes != nullptr ? *head : 0;
  *head = 0;
  for (int32_t at = first; at != 0;) {
    const uint8_t *a = nodes + at;
    if (Next(a) == 0) return;
    const uint8_t *b = nodes + Next(a);
    at = Next(b);
    const int32_t left = std::max(Truncate(CrossingOf(a)), view.left);
    const int32_t right = std::min(Truncate(CrossingOf(b)), view.right);
    if (left < right) run(left, right);
  }
}

}  // namespace

void AddCrossing(const EdgeBuffer &edges, float x, int64_t row) {
  if (edges.rows == nullptr || edges.nodes == nullptr) return;
  const int32_t at = edges.rows[0];
  edges.rows[0] = Wrap(int64_t{at} + int64_t{sizeof(Node)});
  uint8_t *const node = edges.nodes + at;

  uint8_t *before = nullptr;
  int32_t after = edges.rows[1 + row];
  while (after != 0 && !(CrossingOf(edges.nodes + after) > x)) {
    before = edges.nodes + after;
    after = Next(before);
  }
  Store(node, offsetof(Node, next), after);
  Store(node, offsetof(Node, x), x);
  if (before == nullptr) {
    edges.rows[1 + row] = at;
  } else {
    Store(before, offsetof(Node, next), at);
  }
}

void AddEdge(const EdgeBuffer &edges, float x1, float y1, float x2, float y2, int32_t firstRow,
             int32_t endRow) {
  for (const float place : {x1, y1, x2, y2}) {
    if (!std::isfinite(place)) return;
  }
  if (y1 > y2) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  const float height = y2 - y1;
  if (height == 0) return;
  const float slope = (x2 - x1) / height;
  const double top = std::ceil(y1);
  const double first = std::max<double>(top, firstRow);
  const double end = std::min<double>(std::ceil(y2), endRow);
  if (first >= end) return;
  float x = x1;
  if (top < first) x += static_cast<float>(first - top) * slope;
  for (int64_t row = static_cast<int64_t>(first); row < static_cast<int64_t>(end); ++row) {
    AddCrossing(edges, x, row);
    x += slope;
  }
}

void DrawEdges(const Canvas &canvas, const uint8_t *nodes, int32_t *heads, uint32_t colour,
               int32_t mode) {
  const Viewport &view = canvas.viewport;
  const uint32_t packed = PackColour(colour, canvas.target.format);
  for (int32_t y = view.top; y < view.bottom; ++y) {
    EachRun(nodes, view, heads + y,
            [&](int32_t left, int32_t right) { DrawStrip(canvas, y, left, right, packed, mode); });
  }
}

int32_t ListEdges(const uint8_t *nodes, const Viewport &view, int32_t *heads,
                  BRSL_CollisionSpans *list) {
  list->top = view.top;
  list->bottom = view.bottom;
  SpanWriter spans(list);
  for (int32_t y = view.top; y < view.bottom; ++y) {
    EachRun(nodes, view, heads + y,
            [&](int32_t left, int32_t right) { spans.Add(y, left, right); });
  }
  return list->count = spans.Count();
}

}  // namespace brisal
