#include "tools/gallery/scenes/scenes.h"

namespace brisal::tools {

void DrawBoxes(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();

  SHOW(
    const int32_t far[] = {34, 46, 40, 58, 44, 62, 50, 38, 54, 42, 48, 36};
    for (int32_t i = 0; i < 12; i++) {
      const int32_t left = w * i / 12;
      const int32_t top = h - h * far[i] / 100;
      BRSL_Box(left, top, w * (i + 1) / 12 - w / 60, h, 0x5878A8, BRSL_FILLED | DRAW_MULT);
      BRSL_Box(left, top, w * (i + 1) / 12 - w / 60, h, 0x203040, BRSL_OUTLINE | DRAW_ADD);
    }
  )
  SHOW(
    BRSL_SetInkAlpha(205);
    const int32_t near[] = {30, 22, 38, 26, 18, 33, 24, 42, 20, 28};
    for (int32_t i = 0; i < 10; i++) {
      const int32_t left = w * i / 10 + w / 80;
      const int32_t right = w * (i + 1) / 10;
      const int32_t top = h - h * near[i] / 100;
      BRSL_Box(left, top, right, h, 0x0A1426, BRSL_FILLED | DRAW_ALPHA);
      BRSL_Box(left, top, right, top + h / 160, 0x304058, BRSL_FILLED | DRAW_ADD);
    }
  )
  SHOW(
    for (int32_t i = 0; i < 10; i++) {
      for (int32_t k = 0; k < 40; k++) {
        const int32_t x = w * i / 10 + w / 40 + w / 52 * (k % 4);
        const int32_t y = h - h * near[i] / 100 + h / 40 + h / 26 * (k / 4);
        const uint32_t light = (i * 7 + k * 5) % 11 < 6 ? 0xA07020 : 0x101820;
        BRSL_Box(x, y, x + w / 90, y + h / 48, light, BRSL_FILLED | DRAW_ADD);
      }
    }
  )
  SHOW(
    const uint32_t panes[] = {0xF05848, 0xF8C848, 0x30A898, 0x5060D8};
    for (int32_t i = 0; i < 4; i++) {
      const int32_t left = w / 16 + w * i / 14;
      const int32_t top = h / 16 + h * (i % 2) / 14;
      BRSL_Box(left, top, left + w / 9, top + h / 6, panes[i], BRSL_FILLED | DRAW_HALF);
      BRSL_Box(left, top, left + w / 9, top + h / 6, 0xFFFFFF, BRSL_OUTLINE);
    }
  )
}

}  // namespace brisal::tools
