#include "tools/gallery/scenes/scenes.h"

#include <algorithm>

namespace brisal::tools {

void DrawModes(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  const int32_t mode = stage.Value();

  SHOW(
    for (int32_t i = 0; i < 9; i++) {
      BRSL_Box(w * i / 9, h * 4 / 5, w * (i + 1) / 9, h, 0x1F1F1F * i, BRSL_FILLED);
    }
  )
  if (mode == 0) return;
  SHOW(
    const int32_t flags = mode & 0xFFF0;
    const int32_t r = s / 4;
    BRSL_SetInkAlpha(150);
    BRSL_Circle(w / 2, h / 3 - h / 24, r, 0xC83830, flags | BRSL_FILLED);
    BRSL_Circle(w / 2 - r * 5 / 8, h / 2 + h / 24, r, 0x30A848, flags | BRSL_FILLED);
    BRSL_Circle(w / 2 + r * 5 / 8, h / 2 + h / 24, r, 0x3858D0, flags | BRSL_FILLED);
    for (int32_t y = h * 17 / 20; y < h * 19 / 20; y++) {
      BRSL_DrawStrip(y, 0, w, RGBForBuffer(0xC08850, 0), mode);
    }
  )
}

}  // namespace brisal::tools
