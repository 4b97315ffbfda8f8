#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "surface/surface.h"

namespace brisal {

// Along a row the strip's places are columns, along a column they are rows; `line` is the other
// coordinate.
enum class Axis { kRow, kColumn };

void DrawGouraudStrip(const Canvas &canvas, Axis axis, int32_t place1, uint32_t colour1,
                      int32_t place2, uint32_t colour2, int32_t line);

struct TexelPoint {
  int32_t u;
  int32_t v;
};

void DrawTextureStrip(const Canvas &canvas, Axis axis, const Surface *texture, int32_t place1,
                      TexelPoint point1, int32_t place2, TexelPoint point2, int32_t line);

}  // namespace brisal
