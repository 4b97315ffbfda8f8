#include "tools/gallery/scenes/scenes.h"

#include <algorithm>
#include <cmath>

namespace brisal::tools {

void DrawLines(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  BRSL_Box(0, 0, w, h, 0x404860, BRSL_FILLED | DRAW_MULT);

  SHOW(
    for (int32_t i = 0; i < 28; i++) {
      const uint32_t colour = 0x2060A0 + 0x070300 * i;
      BRSL_WriteLine(0, h * i / 28, w * i / 84, h - 1, colour, 0);
      BRSL_WriteLine(w - 1, h - 1 - h * i / 28, w - 1 - w * i / 84, 0, colour, 0);
    }
  )
  SHOW(
    for (int32_t i = 0; i < 240; i++) {
      const double from = i * 2 * 3.14159265 / 240;
      const double to = 2 * from;
      const uint32_t colour = RGBForBuffer(i % 2 ? 0x502008 : 0x082858, 0);
      BRSL_WriteDrawModeLine(
        w / 2 + int32_t(s * 0.451 * std::cos(from)), h / 2 + int32_t(s * 0.451 * std::sin(from)),
        w / 2 + int32_t(s * 0.451 * std::cos(to)), h / 2 + int32_t(s * 0.451 * std::sin(to)),
        colour, DRAW_ADD);
    }
  )
  SHOW(
    const int32_t right = w - 1 - w / 64;
    const int32_t bottom = h - 1 - h / 48;
    BRSL_WriteLine_32Bit(w / 64, h / 48, right, h / 48, 0xFFE0A0, 0);
    BRSL_WriteLine_32Bit(right, h / 48, right, bottom, 0xFFE0A0, 0);
    BRSL_WriteLine_32Bit(right, bottom, w / 64, bottom, 0xFFE0A0, 0);
    BRSL_WriteLine_32Bit(w / 64, bottom, w / 64, h / 48, 0xFFE0A0, 0);
  )
}

}  // namespace brisal::tools
