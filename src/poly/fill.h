#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "core/span.h"
#include "core/vertex_list.h"

namespace brisal {

// Fill the polygon in the first `count` slots of the vertex list: in one colour, or shaded between
// the vertices' colours.
void DrawFlatPoly(const Canvas &canvas, SpanBuffer &spanBuffer, const VertexList &list, int count,
                  uint32_t colour, int32_t drawMode);
void DrawGouraudPoly(const Canvas &canvas, SpanBuffer &spanBuffer, const VertexList &list,
                     int count, int32_t drawMode);

}  // namespace brisal
