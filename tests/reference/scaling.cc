#include "reference/reference.h"

namespace reference {
namespace {

uint32_t WeighedPixel(const BRSL_SurfaceDesc *src, int64_t u, int64_t v) {
  const auto x0 = static_cast<int32_t>(u >> 16), y0 = static_cast<int32_t>(v >> 16);
  const int32_t x1 = x0 + 1 >= src->viewRight ? src->viewRight - 1 : x0 + 1;
  const int32_t y1 = y0 + 1 >= src->viewBottom ? src->viewBottom - 1 : y0 + 1;
  const int64_t fx = u >> 8 & 255, fy = v >> 8 & 255;
  const int64_t topLeft = (256 - fx) * (256 - fy), topRight = fx * (256 - fy),
                bottomRight = fx * fy;
  const int64_t bottomLeft = 65536 - topLeft - topRight - bottomRight;
  uint32_t colour = 0;
  for (int c = 0; c < 4; c++) {
    const int64_t sum = Channel(PeekSurface(src, x0, y0), c) * (topLeft >> 8) +
                        Channel(PeekSurface(src, x1, y0), c) * (topRight >> 8) +
                        Channel(PeekSurface(src, x1, y1), c) * (bottomRight >> 8) +
                        Channel(PeekSurface(src, x0, y1), c) * (bottomLeft >> 8);
    colour |= static_cast<uint32_t>(sum >> 8) << 8 * c;
  }
  return colour;
}

}  // namespace

void ScaleSurface(const BRSL_SurfaceDesc *src, BRSL_SurfaceDesc *dst, int32_t mode) {
  if (mode != 0 && mode != 1 && mode != 1111) return;
  if (mode == 1 && (src->width < 1 || src->height < 1)) return;
  for (int64_t y = 0; y < dst->height; y++) {
    for (int64_t x = 0; x < dst->width; x++) {
      const int64_t u = x * (int64_t{src->width} * 65536 / dst->width);
      const int64_t v = y * (int64_t{src->height} * 65536 / dst->height);
      const auto column = static_cast<int32_t>(u >> 16), row = static_cast<int32_t>(v >> 16);
      const uint32_t colour = mode == 0   ? PeekSurface(src, column, row)
                              : mode == 1 ? FilteredTexel(*src, u, v, false)
                                          : WeighedPixel(src, u, v);
      PokeSurface(dst, static_cast<int32_t>(x), static_cast<int32_t>(y), colour);
    }
  }
}

int32_t MoveMapBlock(const BRSL_SurfaceDesc *src, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                     BRSL_SurfaceDesc *dst, int32_t dx, int32_t dy, uint32_t *rowBuffer,
                     uint32_t maskColour) {
  if (!rowBuffer) return 0;
  const uint32_t key = Widened(src->format, PackFor(src->format, maskColour));
  const Rect size = {0, 0, dst->width, dst->height};
  bool transparent = false;
  for (int32_t y = y1; y < y2; y++) {
    PeekPixelStrip(src, x1, x2, y, rowBuffer);
    for (int32_t x = x1; x < x2; x++) {
      const uint32_t colour = rowBuffer[x - x1];
      transparent |= src->format == 5 ? colour >> 24 != 255 : colour == key;
      const int64_t tx = int64_t{dx} + x - x1, ty = int64_t{dy} + y - y1;
      if (!size.Holds(tx, ty)) continue;
      PokeSurfaceNc(dst, static_cast<int32_t>(tx), static_cast<int32_t>(ty), colour);
    }
  }
  return transparent;
}

}  // namespace reference
