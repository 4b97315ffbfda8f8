#include "tools/gallery/scenes/scenes.h"

#include <cmath>

namespace brisal::tools {

void DrawPixels(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();

  // Left: a mosaic.
  SHOW(
    const int32_t tile = h / 24 + 1;
    for (int32_t y = 0; y < h; y++) {
      for (int32_t x = 0; x < w / 3; x += tile) {
        const uint32_t colour = BRSL_FastPoint(x, y / tile * tile);
        const int32_t end = x + tile < w / 3 ? x + tile : w / 3;
        BRSL_DrawStrip(y, x, end, RGBForBuffer(colour, 0), DRAW_SOLID);
      }
    }
  )

  // Middle: a galaxy on a darkened ground.
  SHOW(
    for (int32_t y = 0; y < h; y++) {
      BRSL_DrawStrip(y, w / 3, w * 2 / 3, RGBForBuffer(0x081830, 0), DRAW_HALF);
    }
    const int32_t n = w * h / 12;
    for (int32_t i = 0; i < n; i++) {
      const double out = (i + 0.5) / n;
      const double stray = (i * 7919 % 1009 + i * 104 % 613 - 811) / 811.0;
      const double turn = i % 2 * 3.14159 + 5.5 * std::sqrt(out) + 1.1 * stray * std::fabs(stray);
      const double x = out * std::cos(turn);
      const double y = out * std::sin(turn);
      const uint32_t colour = out < 0.25 ? 0x503818 : i % 5 ? 0x182850 : 0x603050;
      BRSL_Dot(int32_t(w * (0.5 + 0.15 * (x + 0.2 * y))), int32_t(h * (0.5 + 0.4 * (y - 0.3 * x))),
               colour, DRAW_ADD);
    }
  )

  // Right: the upper half mirrored under scan lines.
  SHOW(
    for (int32_t y = 0; y < h / 2; y++) {
      for (int32_t x = w * 2 / 3; x < w; x++) {
        const uint32_t colour = BRSL_FastPoint_JT(x, y);
        BRSL_DrawPixel(x, h - 1 - y, RGBForBuffer(colour, 0), DRAW_SOLID);
      }
    }
    for (int32_t y = h / 2; y < h; y += 2) {
      BRSL_DrawStrip(y, w * 2 / 3, w, RGBForBuffer(0x204060, 0), DRAW_HALF);
    }
  )
  SHOW(
    for (int32_t y = 0; y < h; y++) {
      const uint32_t colour = BRSL_Point(w / 2, y);
      BRSL_FastDot(w / 3, y, ~colour & 0xFFFFFF, DRAW_SOLID);
      BRSL_FastDot(w * 2 / 3, y, ~colour & 0xFFFFFF, DRAW_SOLID);
    }
  )
}

}  // namespace brisal::tools
