#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "core/span.h"
#include "pixel/shaded_span.h"
#include "pixel/span_kernels.h"

namespace brisal {

// Combines one colour with every pixel of the spans, which lie inside the buffer on consecutive rows
// from `top` on.
void DrawSpanList(const Canvas &canvas, int64_t top, const FlatSpan *spans, int64_t count,
                  uint32_t packed, int32_t mode);

// Pixels inside the buffer; none unless right and bottom, one past the last, lie behind left and top.
struct PixelBox {
  int64_t left;
  int64_t top;
  int64_t right;
  int64_t bottom;
};

void DrawRectangle(const Canvas &canvas, const PixelBox &box, uint32_t packed, int32_t mode);

// Combines one colour with the rows between edges, which lie inside the buffer.
class TrapezoidPen {
 public:
  TrapezoidPen(const Canvas &canvas, uint32_t packed, int32_t mode);

  bool Draws() const { return kernel_ != nullptr; }
  // From row y on; places and steps of both edges in 16.16.
  void Draw(int64_t y, int64_t rows, int64_t left, int64_t leftStep, int64_t right,
            int64_t rightStep) const {
    kernel_({target_.Row(y), target_.pitch, rows, left, right, leftStep, rightStep}, packed_,
            inkAlpha_);
  }

 private:
  const Buffer &target_;
  uint32_t packed_;
  uint32_t inkAlpha_;
  TrapezoidKernel kernel_;
};

// Combines spans whose colours run change from end to end.
void DrawGouraudSpanList(const Canvas &canvas, const ShadedSpan *spans, int64_t count,
                         int32_t mode);

// One run of pixels by the strip's own choice of modes.
void DrawStrip(const Canvas &canvas, int32_t y, int64_t x1, int64_t x2, uint32_t packed,
               int32_t mode);

}  // namespace brisal
