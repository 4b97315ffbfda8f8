#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "pixel/blit_kernels.h"

namespace brisal {

// The source rectangle of a blit, right and bottom exclusive, and where its first pixel lands.
struct BlitArea {
  int64_t left;
  int64_t top;
  int64_t right;
  int64_t bottom;
  int64_t x;
  int64_t y;

  bool IsEmpty() const { return right <= left || bottom <= top; }
};

// What of the area lands inside the view.
BlitArea Clip(const BlitArea &area, const Viewport &view);

// The area as pixels in memory. It must not be empty.
Transfer MakeTransfer(const Buffer &target, const Buffer &source, const BlitArea &area);

void Blit(const Canvas &canvas, const Buffer &source, const BlitArea &area, uint32_t maskColour,
          uint32_t flags);

}  // namespace brisal
