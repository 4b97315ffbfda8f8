#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "core/span.h"

namespace brisal {

void DrawBox(const Canvas &canvas, int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour,
             int32_t flags);

// Corner colours from the top left clockwise.
void DrawShadeBox(const Canvas &canvas, SpanBuffer &spanBuffer, int32_t x1, int32_t y1, int32_t x2,
                  int32_t y2, const uint32_t (&corners)[4], int32_t flags);

}  // namespace brisal
