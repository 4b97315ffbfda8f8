#pragma once

#include <cstdint>

#include "brisal/brisal.h"
#include "core/canvas.h"

namespace brisal {

inline BRSL_TexturedSpan *EntriesOf(BRSL_TexturedSpans *list) {
  return reinterpret_cast<BRSL_TexturedSpan *>(list + 1);
}
inline const BRSL_TexturedSpan *EntriesOf(const BRSL_TexturedSpans *list) {
  return reinterpret_cast<const BRSL_TexturedSpan *>(list + 1);
}

// The polygon with the source as its image.
void ListTexturedPolygon(const BRSL_VertexBuffer &vertices, int32_t count, const Buffer &source,
                         uint32_t maskColour, BRSL_TexturedSpans *list);

// Plots both ends of the rows but the last.
void DrawSpanEnds(const Canvas &canvas, const BRSL_TexturedSpans &list);

}  // namespace brisal
