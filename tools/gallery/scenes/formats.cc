#include "tools/gallery/scenes/scenes.h"

#include <algorithm>

namespace brisal::tools {

void DrawFormats(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);

  SHOW(
    const uint32_t dim[] = {0x40, 0x4000, 0x400000, 0x404040};
    for (int32_t i = 0; i < 4; i++) {
      const int32_t top = h / 16 + h * i / 10;
      BRSL_ShadeBox(w / 16, top, w * 9 / 16, top + h / 12, 0, dim[i], dim[i], 0, 0);
    }
    BRSL_Box(w / 16, h / 16, w * 9 / 16, h / 16 + h * 3 / 10 + h / 12, 0x8098B0, BRSL_OUTLINE);
  )
  // A step this small is nothing at all to a channel of five bits.
  SHOW(
    for (int32_t i = 0; i < 24; i++) {
      BRSL_Circle(w * 3 / 10, h * 3 / 4, s * (24 - i) / 110, 0x060606, BRSL_FILLED | DRAW_ADD);
    }
  )
  SHOW(
    const int32_t n = s / 30;
    const int32_t cell = s / 48 + 1;
    const int32_t x = w * 5 / 8;
    const int32_t y = h * 5 / 8;
    const int32_t top = h / 16;
    for (int32_t i = 0; i < n * n; i++) {
      const uint32_t colour = BRSL_Point(x + i % n, y + i / n);
      const int32_t left = x + i % n * cell;
      BRSL_Box(left, top + i / n * cell, left + cell, top + (i / n + 1) * cell, colour, BRSL_FILLED);
    }
    BRSL_Box(x, y, x + n, y + n, 0xFFFFFF, BRSL_OUTLINE);
    BRSL_Box(x, top, x + n * cell, top + n * cell, 0xFFFFFF, BRSL_OUTLINE);
    BRSL_WriteLine(x, y, x, top + n * cell, 0xFFFFFF, 0);
    BRSL_WriteLine(x + n, y, x + n * cell, top + n * cell, 0xFFFFFF, 0);
  )
}

}  // namespace brisal::tools
