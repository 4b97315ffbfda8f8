#include "tools/gallery/scenes/scenes.h"

namespace brisal::tools {

void DrawShadedBoxes(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();

  SHOW(
    BRSL_ShadeBox(0, 0, w, h, 0xE0D0FF, 0xFFE8D0, 0xC080A0, 0x8070C0, DRAW_MULT);
  )
  SHOW(
    struct Card { int32_t mode; uint32_t colours[4]; };
    const Card cards[] = {
      {DRAW_NORMAL, {0xF03868, 0xF8C038, 0x20B888, 0x3858E8}},
      {DRAW_SUB, {0x107060, 0x083088, 0x701038, 0x605010}},
      {DRAW_MULT, {0xFF5088, 0xFFD040, 0x40FFB0, 0x5078FF}},
      {DRAW_HALF, {0xF03868, 0xF8C038, 0x20B888, 0x3858E8}},
      {DRAW_ADD, {0x902048, 0x887018, 0x187058, 0x203490}},
      {DRAW_REVSUB, {0xF03868, 0xF8C038, 0x20B888, 0x3858E8}},
    };
    for (int32_t i = 0; i < 6; i++) {
      const int32_t left = w * (i % 3 * 10 + 1) / 31;
      const int32_t right = left + w * 9 / 31;
      const int32_t top = h * (i / 3 * 10 + 1) / 21;
      const int32_t bottom = top + h * 9 / 21;
      const uint32_t *c = cards[i].colours;
      BRSL_ShadeBox(left, top, right, bottom, c[0], c[1], c[2], c[3], cards[i].mode);
      BRSL_Box(left, top, right, bottom, 0xFFFFFF, BRSL_OUTLINE);
    }
  )
}

}  // namespace brisal::tools
