#include "scene/capture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "core/ints.h"

namespace brisal {

static_assert(sizeof(Scene_Vertex) == 40);
static_assert(offsetof(Scene_Vertex, x) == 12 && offsetof(Scene_Vertex, colour) == 24 &&
              offsetof(Scene_Vertex, tu) == 32 && offsetof(Scene_Vertex, tv) == 36);
static_assert(sizeof(Scene_Record) == 220);
static_assert(offsetof(Scene_Record, code) == 2 && offsetof(Scene_Record, hostA) == 4 &&
              offsetof(Scene_Record, image) == 12 && offsetof(Scene_Record, flags) == 16 &&
              offsetof(Scene_Record, shape) == 24 && offsetof(Scene_Record, left) == 36 &&
              offsetof(Scene_Record, vertexCount) == 52 && offsetof(Scene_Record, alpha) == 56 &&
              offsetof(Scene_Record, vertices) == 60);
static_assert(sizeof(Scene_EdgeVectors) == 24);

Bounds Bounds::Between(int32_t x1, int32_t y1, int32_t x2, int32_t y2) {
  return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}

Bounds Bounds::At(int32_t x, int32_t y, int32_t width, int32_t height) {
  return {x, y, Wrap(int64_t{x} + width), Wrap(int64_t{y} + height)};
}

Bounds Bounds::Row(int32_t x1, int32_t x2, int32_t y) {
  return {std::min(x1, x2), y, std::max(x1, x2), Wrap(int64_t{y} + 1)};
}

Bounds Bounds::Column(int32_t x, int32_t y1, int32_t y2) {
  return {x, std::min(y1, y2), Wrap(int64_t{x} + 1), std::max(y1, y2)};
}

Bounds Bounds::Around(int32_t cx, int32_t cy, int32_t rx, int32_t ry) {
  return {Wrap(int64_t{cx} - rx), Wrap(int64_t{cy} - ry), Wrap(int64_t{cx} + rx),
          Wrap(int64_t{cy} + ry)};
}

void PlaceBounds(Scene_Record *record, const Bounds &bounds) {
  record->left = bounds.left;
  record->top = bounds.top;
  record->right = bounds.right;
  record->bottom = bounds.bottom;
}

void PlaceVertex(Scene_Vertex *vertex, int32_t x, int32_t y) {
  vertex->firstX = vertex->x = x;
  vertex->firstY = vertex->y = y;
}

Capture::Capture(Scene_Record *record, int16_t code)
    : record_(record != nullptr ? record : &ignored_) {
  record_->marker = 1;
  record_->code = code;
  record_->vertexCount = 0;
}

Capture::Capture(Scene_Record *record, int16_t code, int32_t flags) : Capture(record, code) {
  record_->flags = flags;
}

Capture &Capture::Shape(int32_t word1, int32_t word2, int32_t word3) {
  record_->shape[0] = word1;
  record_->shape[1] = word2;
  record_->shape[2] = word3;
  return *this;
}

Capture &Capture::Extent(const Bounds &bounds) {
  PlaceBounds(record_, bounds);
  return *this;
}

Capture &Capture::Vertex(int32_t x, int32_t y) {
  ++record_->vertexCount;
  PlaceVertex(&Last(), x, y);
  return *this;
}

Capture &Capture::Vertex(int32_t x, int32_t y, uint32_t colour) {
  Vertex(x, y);
  Last().colour = colour;
  return *this;
}

Capture &Capture::Vertex(int32_t x, int32_t y, int32_t tu, int32_t tv) {
  Vertex(x, y);
  Last().tu = tu;
  Last().tv = tv;
  return *this;
}

void Capture::ExtentOfVertices(int32_t boundsMode) {
  if (boundsMode != 2) return;
  const Scene_Vertex &first = record_->vertices[0];
  Bounds bounds = {first.x, first.y, first.x, first.y};
  for (int i = 1; i < record_->vertexCount; ++i) {
    const Scene_Vertex &v = record_->vertices[i];
    bounds = {std::min(bounds.left, v.x), std::min(bounds.top, v.y), std::max(bounds.right, v.x),
              std::max(bounds.bottom, v.y)};
  }
  Extent(bounds);
}

Scene_EdgeVectors EdgeVectors(float x1, float y1, float x2, float y2) {
  const double dx = static_cast<double>(x2) - x1;
  const double dy = static_cast<double>(y2) - y1;
  const float length = static_cast<float>(std::sqrt(dx * dx + dy * dy));
  const float normalX =
      length == 0 ? 0 : static_cast<float>((static_cast<double>(y1) - y2) / length);
  const float normalY = length == 0 ? 0 : static_cast<float>(dx / length);
  return {static_cast<float>(dx), static_cast<float>(dy), normalX, normalY, -normalX, -normalY};
}

}  // namespace brisal
