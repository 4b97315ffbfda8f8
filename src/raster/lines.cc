#include "raster/lines.h"

#include <utility>

#include "brisal/brisal.h"
#include "pixel/format.h"
#include "pixel/span_kernels.h"
#include "raster/pixels.h"
#include "raster/spans.h"

namespace brisal {
namespace {

// Visits one point for each row of a steep line, or for each column of a shallow one, from the end
// with the smaller x. The other coordinate steps in fixed point from the middle of its pixel.
template <int FractionBits, class Plot>
void StepLine(int64_t x1, int64_t y1, int64_t x2, int64_t y2, Plot plot) {
  constexpr int64_t kOne = int64_t{1} << FractionBits;
  if (x1 >= x2) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  const int64_t dx = x2 - x1;
  const int64_t dy = y2 - y1;
  const int64_t rows = dy < 0 ? -dy : dy;
  if (rows >= dx) {
    const int64_t step = Divide(dx * kOne, rows);
    const int64_t down = dy < 0 ? -1 : 1;
    int64_t x = x1 * kOne + kOne / 2;
    for (int64_t i = 0; i <= rows; ++i, x += step) plot(x >> FractionBits, y1 + i * down);
    return;
  }
  const int64_t step = Divide(dy * kOne, dx);
  int64_t y = y1 * kOne + kOne / 2;
  for (int64_t x = x1; x <= x2; ++x, y += step) plot(x, y >> FractionBits);
}

template <class F>
void WritePlain(const Buffer &target, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                uint32_t packed) {
  StepLine<16>(x1, y1, x2, y2, [&](int64_t x, int64_t y) {
    F::Store(target.Row(y) + ByteOffset(x, F::kBytes), packed);
  });
}

}  // namespace

void WriteLine(const Canvas &canvas, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
               uint32_t colour, int32_t flags) {
  const Buffer &target = canvas.target;
  const uint32_t packed = PackColour(colour, target.format);
  if ((flags & 0xFFF0) != 0) {
    return WriteDrawModeLine(canvas, x1, y1, x2, y2, packed, flags & 0xFFF0);
  }
  if (y1 == y2) {
    if (x1 > x2) std::swap(x1, x2);
    return DrawStrip(canvas, y1, x1, int64_t{x2} + 1, packed, DRAW_SOLID);
  }
  WithFormat(target.format, 0, [&](auto f) {
    WritePlain<decltype(f)>(target, x1, y1, x2, y2, packed);
    return 0;
  });
}

void WriteDrawModeLine(const Canvas &canvas, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                       uint32_t packed, int32_t mode) {
  if (y1 == y2) {
    if (x1 > x2) std::swap(x1, x2);
    return DrawStrip(canvas, y1, x1, x2, packed, mode);
  }
  const PixelPen pen(canvas, packed, mode);
  if (!pen.Draws()) return;
  StepLine<14>(x1, y1, x2, y2, [&](int64_t x, int64_t y) { pen.Plot(x, y); });
}

void WriteLine32(const Canvas &canvas, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                 uint32_t colour) {
  const Buffer &target = canvas.target;
  if (x1 == x2 && y1 == y2) {
    if (!canvas.viewport.Contains(x1, y1)) return;
    return DrawPixel(canvas, x1, y1, PackColour(colour, target.format), DRAW_NORMAL);
  }
  if (target.format != BRSL_FORMAT_X32 && target.format != BRSL_FORMAT_A32) return;
  if (y1 == y2) {
    if (x1 > x2) std::swap(x1, x2);
    return DrawStrip(canvas, y1, x1, int64_t{x2} + 1, colour, DRAW_SOLID);
  }
  if (x1 == x2 && !canvas.viewport.ContainsColumn(x1)) return;
  const auto plot = [&](int64_t x, int64_t y) {
    Xrgb32::Store(target.Row(y) + ByteOffset(x, Xrgb32::kBytes), colour);
  };
  plot(x1, y1);
  plot(x2, y2);
  const int64_t width = x2 > x1 ? int64_t{x2} - x1 : int64_t{x1} - x2;
  const int64_t height = y2 > y1 ? int64_t{y2} - y1 : int64_t{y1} - y2;
  if (width <= height) {
    if (y1 > y2) {
      std::swap(x1, x2);
      std::swap(y1, y2);
    }
    const int64_t step = Divide((int64_t{x2} - x1) * 65536, height);
    int64_t x = int64_t{x1} * 65536;
    for (int64_t y = int64_t{y1} + 1; y < y2; ++y) plot((x += step) >> 16, y);
    return;
  }
  if (x1 > x2) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  const int64_t step = Divide((int64_t{y2} - y1) * 65536, width);
  int64_t y = int64_t{y1} * 65536;
  for (int64_t x = int64_t{x1} + 1; x < x2; ++x) plot(x, (y += step) >> 16);
}

}  // namespace brisal
