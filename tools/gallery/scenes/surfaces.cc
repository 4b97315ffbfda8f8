#include "tools/gallery/scenes/scenes.h"

#include <algorithm>
#include <vector>

namespace brisal::tools {

namespace {

// Steps until a point of the plane leaves, of 192.
uint32_t Escape(double x, double y) {
  uint32_t steps = 0;
  while (steps < 192 && x * x + y * y < 4) {
    const double next = x * x - y * y - 0.8;
    y = 2 * x * y + 0.156;
    x = next;
    steps++;
  }
  return steps;
}

// From deep blue to the colour of flames.
uint32_t Ember(uint32_t steps) {
  const uint32_t light = std::min(255u, steps * 3 / 2);
  return light << 16 | light * light / 300 << 8 | (steps < 60 ? 24 + steps : 84);
}

}  // namespace

void DrawSurfaces(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  const int32_t format = stage.Format();
  host::Image &page = stage.Page();
  uint8_t *const pixels = page.Row(0);
  const int32_t pitch = page.Pitch();

  SHOW(
    BRSL_SurfaceDesc *const target = BRSL_AllocSurfaceDesc(format, pixels, pitch, w, h);
    BRSL_SetSurfaceDescVP(target, w / 24, h / 18, w * 11 / 24, h * 11 / 18);
    for (int32_t y = 0; y < h; y++) {
      for (int32_t x = 0; x < w / 2; x++) {
        const uint32_t n = Escape((x - w / 4.0) / s * 3.8, (y - h / 3.0) / s * 3.8);
        const uint32_t below = BRSL_PeekSurface(target, x, y) >> 2 & 0x3F3F3F;
        BRSL_PokeSurface(target, x, y, n < 4 ? below : Ember(n));
      }
    }
  )
  // A lamp in a room: the floor is of one colour, what stands on it is not.
  SHOW(
    const int32_t left = w * 13 / 24;
    const int32_t right = w * 23 / 24;
    const int32_t bottom = h * 11 / 18;
    BRSL_Box(left, h / 18, right, bottom, 0x182030, BRSL_FILLED);
    for (int32_t i = 0; i < 7; i++) {
      const int32_t x = left + w * (i * 5 % 7 + 1) / 22;
      const int32_t y = h / 10 + h * i / 15;
      if (BRSL_ImageInViewPort(x, y, s / 16, s / 16)) {
        BRSL_Box(x, y, x + s / 16, y + s / 16, 0xA06848, BRSL_FILLED);
      }
    }
    const int32_t lampX = left + w * 9 / 48;
    const int32_t lampY = h * 7 / 18;
    struct Ray { int32_t x; int32_t y; int32_t length; };
    std::vector<Ray> rays;
    for (int32_t i = -12; i <= 12; i++) {
      for (const Ray &step : {Ray{i, 12, 0}, Ray{i, -12, 0}, Ray{12, i, 0}, Ray{-12, i, 0}}) {
        rays.push_back({step.x, step.y, BRSL_PixelRunLength(lampX, lampY, step.x, step.y, 0x182030)});
      }
    }
    for (const Ray &ray : rays) {
      if (ray.length == 0) continue;
      BRSL_WriteLine(lampX, lampY, lampX + ray.x * (ray.length - 1),
                     lampY + ray.y * (ray.length - 1), 0xE8C060, 0);
    }
    BRSL_Circle(lampX, lampY, s / 30, 0xFFF0C0, BRSL_FILLED);
  )
  // The brightness of one row of the photograph.
  SHOW(
    std::vector<uint32_t> row(w);
    BRSL_PeekPixelStrip(target, 0, w, h * 12 / 18, row.data());
    BRSL_Box(0, h * 12 / 18, w, h * 12 / 18 + 1, 0xF05848, BRSL_FILLED);
    for (int32_t x = 0; x < w; x++) {
      const int32_t light = (row[x] >> 16 & 255) + (row[x] >> 8 & 255) + (row[x] & 255);
      for (int32_t i = 0; i < h * light / 2400; i++) {
        BRSL_PokeSurfaceNC(target, x, h - 1 - i, (row[x] >> 1 & 0x7F7F7F) + 0x705038);
      }
    }
    if (BRSL_GetSurfaceDescType(target) == format) BRSL_FreeSurfaceDesc(target);
  )
}

}  // namespace brisal::tools
