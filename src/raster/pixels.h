#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "pixel/span_kernels.h"

namespace brisal {

// Draws single pixels in one packed colour and draw mode, without clipping.
class PixelPen {
 public:
  PixelPen(const Canvas &canvas, uint32_t packed, int32_t mode);

  bool Draws() const { return kernel_ != nullptr; }

  // Only a pen that draws may plot.
  void Plot(int64_t x, int64_t y) const {
    kernel_(target_.Row(y) + ByteOffset(x, pixelBytes_), packed_, inkAlpha_);
  }

 private:
  PixelKernel kernel_;
  Buffer target_;
  int pixelBytes_;
  uint32_t packed_;
  uint32_t inkAlpha_;
};

// The draw mode's one-pixel rule, without clipping.
void DrawPixel(const Canvas &canvas, int32_t x, int32_t y, uint32_t packed, int32_t mode);

// The pixel as a colour, without clipping: read as the format that the code names or comes nearest
// to.
uint32_t ReadPixel(const Buffer &buffer, int32_t x, int32_t y);

// The same for the codes 0 to 6, with 0 as 1 and 6 as 5; 0 for every other.
uint32_t ReadPixelByTable(const Buffer &buffer, int32_t x, int32_t y);

}  // namespace brisal
