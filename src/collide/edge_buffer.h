#pragma once

#include <cstdint>

#include "brisal/brisal.h"
#include "core/canvas.h"
#include "core/edge_buffer.h"

namespace brisal {

// Without both of its blocks a buffer takes nothing.
void AddCrossing(const EdgeBuffer &edges, float x, int64_t row);

// A crossing for each row from firstRow on, before endRow.
void AddEdge(const EdgeBuffer &edges, float x1, float y1, float x2, float y2, int32_t firstRow,
             int32_t endRow);

// What an outline encloses by the even-odd rule: drawn in the viewport, or as entries of a list of the
// view's rows. Both empty the rows they visit; heads[y] is that of row y. Without nodes there is
// nothing in any row.
void DrawEdges(const Canvas &canvas, const uint8_t *nodes, int32_t *heads, uint32_t colour,
               int32_t mode);
int32_t ListEdges(const uint8_t *nodes, const Viewport &view, int32_t *heads,
                  BRSL_CollisionSpans *list);

}  // namespace brisal
