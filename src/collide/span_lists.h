#pragma once

#include <cstdint>

#include "brisal/brisal.h"
#include "core/quarter_circle.h"

// Shapes as collision span lists, which the host sized for them.

namespace brisal {

// Entries lie directly behind the head.
inline BRSL_CollisionSpan *EntriesOf(BRSL_CollisionSpans *list) {
  return reinterpret_cast<BRSL_CollisionSpan *>(list + 1);
}
inline const BRSL_CollisionSpan *EntriesOf(const BRSL_CollisionSpans *list) {
  return reinterpret_cast<const BRSL_CollisionSpan *>(list + 1);
}

void ListPolygon(const BRSL_VertexBuffer &vertices, int32_t count, BRSL_CollisionSpans *list);
void ListLine(BRSL_CollisionSpans *list, int32_t x1, int32_t y1, int32_t x2, int32_t y2);
void ListEllipse(const QuarterCircle &quarter, BRSL_CollisionSpans *list, int32_t cx, int32_t cy,
                 int32_t rx, int32_t ry);
void ListRectangle(BRSL_CollisionSpans *list, int32_t x1, int32_t y1, int32_t x2, int32_t y2);

}  // namespace brisal
