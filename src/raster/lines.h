#pragma once

#include <cstdint>

#include "core/canvas.h"

namespace brisal {

// None of the three clips.
void WriteLine(const Canvas &canvas, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
               uint32_t colour, int32_t flags);
void WriteDrawModeLine(const Canvas &canvas, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                       uint32_t packed, int32_t mode);
void WriteLine32(const Canvas &canvas, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                 uint32_t colour);

}  // namespace brisal
