#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>
#include <cmath>

namespace brisal::tools {

namespace {

// What three lamps make of a place on the wall, 0 to 1 across and down.
uint32_t LampLight(double x, double y) {
  struct Lamp {
    double x, y, reach, colour[3];
  };
  static constexpr Lamp kLamps[] = {{0.20, 0.36, 0.30, {1.0, 0.70, 0.34}},
                                    {0.80, 0.36, 0.30, {1.0, 0.70, 0.34}},
                                    {0.50, 0.85, 0.26, {0.30, 0.60, 1.0}}};
  double sum[] = {0.10, 0.09, 0.14};
  for (const Lamp &lamp : kLamps) {
    const double dx = (x - lamp.x) * 1.33, dy = y - lamp.y;
    const double light = std::exp(-(dx * dx + dy * dy) / (lamp.reach * lamp.reach));
    for (int32_t i = 0; i < 3; i++) sum[i] += 1.1 * lamp.colour[i] * light;
  }
  uint32_t colour = 0;
  for (const double channel : sum) colour = colour << 8 | uint32_t(std::min(channel, 1.0) * 255);
  return colour;
}

}  // namespace

void DrawLitTextures(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  const int32_t format = stage.Format() == BRSL_FORMAT_A32 ? BRSL_FORMAT_X32 : stage.Format();
  const Surface wall(Stones(), format), sheet(Keyed(Butterfly(128, 0.9f)), format);
  BRSL_SetSurfaceDescMaskColour(sheet, kKeyColour);

  // Each stone pattern is four quads, so that the light is fine enough.
  SHOW(
    TPD_Pipeline *const lit = TPD_BuildSpriteDrawMode(0x80, 0xFFFFFFFF, 0, 0);
    TPD_SetMaskCompression(lit, 0);
    for (int32_t i = 0; i < 8; i++) {
      for (int32_t j = 0; j < 12; j++) {
        const int32_t u = j % 2 * 64;
        const int32_t v = i % 2 * 64;
        BRSL_DrawSpriteRGBQuad(
          wall, w * j / 12, h * i / 8, u, v, LampLight(j / 12.0, i / 8.0),
          w * (j + 1) / 12, h * i / 8, u + 63, v, LampLight((j + 1) / 12.0, i / 8.0),
          w * (j + 1) / 12, h * (i + 1) / 8, u + 63, v + 63, LampLight((j + 1) / 12.0, (i + 1) / 8.0),
          w * j / 12, h * (i + 1) / 8, u, v + 63, LampLight(j / 12.0, (i + 1) / 8.0), lit, 0);
      }
    }
  )
  // The same corner colours multiplied, averaged and added.
  SHOW(
    const uint32_t modes[] = {0x80, 0x100, 0x200};
    for (int32_t i = 0; i < 3; i++) {
      const int32_t r = s / 8;
      const int32_t x = w * (i + 1) / 4;
      const int32_t y = h * 3 / 5 - (i == 1) * h / 3;
      TPD_UpdateSpriteDrawMode(lit, 1 | modes[i], 0xFFFFFFFF, 0, 0);
      TPD_SetMaskCompression(lit, TPD_GetGouruaudState(lit));
      BRSL_DrawSpriteRGBQuad(sheet, x - r, y - r, 0, 0, 0xFF4040, x + r, y - r, 127, 0, 0xFFF040,
                             x + r, y + r, 127, 127, 0x40FF80, x - r, y + r, 0, 127, 0x4060FF, lit, 1);
    }
  )
  SHOW(
    BRSL_DrawSpriteRGBQuad(sheet, w / 2, h * 7 / 10, 0, 0, 0x182850, w / 2 + s / 8, h * 33 / 40, 127, 0, 0x182850,
                           w / 2, h * 19 / 20, 127, 127, 0x182850, w / 2 - s / 8, h * 33 / 40, 0, 127, 0x182850,
                           lit, 0);
    if (TPD_GetMaskCompression(lit)) BRSL_DrawSpritePoly(sheet, 4, lit);
    TPD_Free(lit);
  )
}

}  // namespace brisal::tools
