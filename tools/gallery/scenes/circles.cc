#include "tools/gallery/scenes/scenes.h"

#include <algorithm>
#include <cmath>

namespace brisal::tools {

void DrawCircles(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);

  SHOW(
    BRSL_FilledEllipse(w / 2, h / 2, w, h, RGBForBuffer(0x38385C, 0), DRAW_MULT);
    for (int32_t i = 2; i < 7; i++) {
      BRSL_OpenEllipse(w / 2, h / 2, w * i / 13, h * i / 17, 0x384868, DRAW_ADD);
    }
  )
  SHOW(
    for (int32_t i = 0; i < 16; i++) {
      BRSL_Circle(w / 2, h / 2, s * (21 - i) / 84, 0x120B03, BRSL_FILLED | DRAW_ADD);
    }
    BRSL_FilledEllipseNC(w / 2, h / 2, s / 15, s / 15, RGBForBuffer(0xFFE8A8, 0), 0);
    BRSL_Circle(w / 2, h / 2, s / 14, 0xFFF8E0, BRSL_OUTLINE);
  )

  SHOW(
    struct Planet { int32_t orbit; double turn; int32_t size; uint32_t colour; };
    const Planet planets[] = {{2, 0.6, 50, 0x907868}, {3, 3.9, 34, 0xC07040}, {4, 2.2, 26, 0x3868A8},
                              {5, 5.6, 17, 0xA88058}, {6, 3.5, 22, 0x488888}};
    for (const Planet &p : planets) {
      const int32_t x = w / 2 + int32_t(w * p.orbit * std::cos(p.turn) / 13);
      const int32_t y = h / 2 + int32_t(h * p.orbit * std::sin(p.turn) / 17);
      const int32_t r = s / p.size;
      BRSL_Ellipse(x, y, r, r, p.colour, BRSL_FILLED);
      for (int32_t i = 1; i < 6; i++) {
        const int32_t step = r * i / 9;
        BRSL_Circle(x + (x < w / 2 ? step : -step), y + (y < h / 2 ? step : -step) / 2, r - step - 1,
                    0x141210, BRSL_FILLED | DRAW_ADD);
      }
    }
  )
  SHOW(
    const int32_t x = w / 2 + int32_t(w * 5 * std::cos(5.6) / 13);
    const int32_t y = h / 2 + int32_t(h * 5 * std::sin(5.6) / 17);
    for (int32_t i = 0; i < s / 40; i++) {
      BRSL_OpenEllipseFX(x, y, s / 12 + i, s / 50 + i / 3, 0x403828, DRAW_ADD, 0);
    }
    BRSL_OpenCircle(x, y, s / 8, 0x80A0C0, DRAW_HALF);
  )
}

}  // namespace brisal::tools
