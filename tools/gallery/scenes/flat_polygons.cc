#include "tools/gallery/scenes/scenes.h"

#include <algorithm>
#include <cmath>

namespace brisal::tools {

void DrawFlatPolygons(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);

  SHOW(
    const int32_t a = s / 14;
    const uint32_t tops[] = {0xF8D060, 0xF0A850, 0xE88048, 0xD85850, 0xC04068};
    for (int32_t row = 0; row < 5; row++) {
      for (int32_t i = 0; i <= row; i++) {
        const int32_t x = w * 3 / 8 + (2 * i - row) * a;
        const int32_t y = h / 4 + row * 3 * a / 2;
        const uint32_t top = tops[row];
        const uint32_t left = (top & 0xFEFEFE) >> 1;
        const uint32_t right = (top & 0xFCFCFC) >> 2;
        BRSL_Quad(x, y, x + a, y + a / 2, x, y + a, x - a, y + a / 2, top, 0);
        BRSL_Quad(x - a, y + a / 2, x, y + a, x, y + 2 * a, x - a, y + 3 * a / 2, left, 0);
        BRSL_Quad(x, y + a, x + a, y + a / 2, x + a, y + 3 * a / 2, x, y + 2 * a, right, 0);
      }
    }
  )
  SHOW(
    BRSL_SetInkAlpha(190);
    const int32_t cx = w * 4 / 5;
    const int32_t cy = h * 3 / 10;
    for (int32_t i = 0; i < 12; i++) {
      const double from = i * 3.14159265 / 6;
      const double to = from + 3.14159265 / 6;
      BRSL_Tri(cx, cy, cx + int32_t(s * 0.22 * std::cos(from)), cy + int32_t(s * 0.22 * std::sin(from)),
               cx + int32_t(s * 0.13 * std::cos(to)), cy + int32_t(s * 0.13 * std::sin(to)),
               i % 2 ? 0x28A0B8 : 0xF05070, DRAW_ALPHA);
    }
  )
  SHOW(
    const uint32_t flags[] = {0xF05070, 0xF8C848, 0x40B0C0};
    for (int32_t i = 0; i < 11; i++) {
      const int32_t x = w * i / 19;
      const int32_t y = h / 40 + h * i * (11 - i) / 520;
      const int32_t next = h / 40 + h * (i + 1) * (10 - i) / 520;
      BRSL_Tri(x, y, x + w / 19, next, x + w / 38, (y + next) / 2 + h / 11, flags[i % 3], DRAW_HALF);
    }
  )
}

}  // namespace brisal::tools
