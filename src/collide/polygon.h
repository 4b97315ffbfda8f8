#pragma once

#include <algorithm>
#include <cstdint>

#include "brisal/brisal.h"
#include "poly/edge_walker.h"

namespace brisal {

// Spans of a collision test are wanted wherever they lie.
inline constexpr Viewport kEverywhere = {INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX};

inline VertexList VerticesOf(const BRSL_VertexBuffer &buffer) {
  VertexList list;
  std::copy_n(buffer.x, VertexList::kSlots, list.x);
  std::copy_n(buffer.y, VertexList::kSlots, list.y);
  return list;
}

// Bounds of the first vertex where the count makes no polygon.
inline PolyBounds BoundsOf(const Polygon &polygon) {
  PolyBounds bounds;
  GetPolyBounds(polygon.list.x, polygon.list.y, polygon.drawable ? polygon.count : 1, &bounds);
  return bounds;
}

}  // namespace brisal
