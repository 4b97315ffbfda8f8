#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>
#include <cmath>

namespace brisal::tools {

namespace {

struct Spot {
  int32_t x, y, u, v;
};

// A point of a ball that wears a map: row 0 to 16 from pole to pole, column 0 to 16 across.
Spot OnGlobe(const BRSL_SurfaceDesc *map, int32_t cx, int32_t cy, int32_t r, int32_t row, int32_t column) {
  const double down = 3.14159265 * row / 16, across = 3.14159265 * column / 16;
  const double x = -std::sin(down) * std::cos(across), y = -std::cos(down);
  return {cx + int32_t(std::lround(r * (x * 0.95 - y * 0.3))), cy + int32_t(std::lround(r * (y * 0.95 + x * 0.3))),
          (map->width - 1) * column / 16, (map->height - 1) * row / 16};
}

}  // namespace

void DrawTexturedPolygons(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  const Surface map(Planet(), stage.Format()), crate(Crate(), stage.Format());

  SHOW(
    TPD_Pipeline *const plain = TPD_Alloc();
    TPD_Pipeline *const shade = TPD_BuildSpriteDrawMode(0, 0xFF909098, 0, 0);
    TPD_Pipeline *const dark = TPD_BuildSpriteDrawMode(0, 0xFF606070, 0, 0);
    for (int32_t i = 0; i < 16; i++) {
      for (int32_t j = 0; j < 16; j++) {
        const Spot a = OnGlobe(map, w * 7 / 10, h * 2 / 5, s * 3 / 10, i, j);
        const Spot b = OnGlobe(map, w * 7 / 10, h * 2 / 5, s * 3 / 10, i, j + 1);
        const Spot c = OnGlobe(map, w * 7 / 10, h * 2 / 5, s * 3 / 10, i + 1, j + 1);
        const Spot d = OnGlobe(map, w * 7 / 10, h * 2 / 5, s * 3 / 10, i + 1, j);
        BRSL_QuadT(map, a.x, a.y, a.u, a.v, b.x, b.y, b.u, b.v, c.x, c.y, c.u, c.v, d.x, d.y, d.u, d.v,
                   plain);
      }
    }
  )
  SHOW(
    const int32_t e = 63;
    const int32_t a = s / 11;
    struct Box { int32_t x; int32_t y; };
    const Box boxes[] = {{2, 0}, {4, 0}, {6, 0}, {3, -2}, {5, -2}, {4, -4}};
    for (const Box &box : boxes) {
      const int32_t x = w / 20 + box.x * a;
      const int32_t y = h * 17 / 20 + box.y * a * 11 / 10;
      BRSL_QuadT(crate, x, y - a, 0, 0, x + a, y - a / 2, e, 0, x, y, e, e, x - a, y - a / 2, 0, e, plain);
      BRSL_QuadT(crate, x - a, y - a / 2, 0, 0, x, y, e, 0, x, y + a * 6 / 5, e, e,
                 x - a, y + a * 7 / 10, 0, e, shade);
      BRSL_QuadT(crate, x, y, 0, 0, x + a, y - a / 2, e, 0, x + a, y + a * 7 / 10, e, e,
                 x, y + a * 6 / 5, 0, e, dark);
    }
    TPD_Pipeline *const glow = TPD_BuildSpriteDrawMode(1, 0xFF806020, 0, 0);
    TPD_SetOutputEffect(glow, 4, 0, 0);
    BRSL_DrawTexturedPoly(crate, 4, glow);
  )
  SHOW(
    const int32_t x = w * 3 / 4;
    const int32_t y = h * 9 / 10;
    for (int32_t i = 0; i < 16; i++) {
      const double from = i * 0.39269908;
      const double to = from + 0.39269908;
      BRSL_TriT(map, x, y, i * 16 + 8, 0,
                x + int32_t(s * 0.28 * std::cos(from)), y + int32_t(s * 0.08 * std::sin(from)), i * 16, 90,
                x + int32_t(s * 0.28 * std::cos(to)), y + int32_t(s * 0.08 * std::sin(to)), i * 16 + 15, 90,
                shade);
    }
  )
  SHOW(
    BRSL_DrawTexture(map, w / 24, h / 18, plain);
    BRSL_Box(w / 24, h / 18, w / 24 + map->width, h / 18 + map->height, 0xFFFFFF, BRSL_OUTLINE);
    TPD_Free(plain);
    TPD_Free(shade);
    TPD_Free(dark);
    TPD_Free(glow);
  )
}

}  // namespace brisal::tools
