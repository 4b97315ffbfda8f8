#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>

namespace brisal::tools {

namespace {

// Grey light falls off from the open end of the hall.
uint32_t Dusk(double depth) {
  const auto light = static_cast<uint32_t>(std::clamp(28 + 20 * depth, 0.0, 255.0));
  return light << 16 | light * 7 / 8 << 8 | light * 3 / 4;
}

}  // namespace

void DrawStrips(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const Surface wall(Stones(), stage.Format()), floor(Marble(), stage.Format());

  SHOW(
    const int32_t cx = w / 2;
    const int32_t cy = h * 9 / 20;
    const double wide = w * 0.5;
    const double low = h * 0.55;
    const double high = h * 0.62;
    const double far = 4.5;
    for (int32_t y = cy; y < h; y++) {
      const double depth = low / (y - cy + 0.5);
      if (depth > far) continue;
      const int32_t half = int32_t(wide / depth);
      const int32_t v = int32_t(depth * 128) % 128 << 16;
      BRSL_HoriTextureStrip(floor, cx - half, 0, v, cx, 127 << 16, v, y);
      BRSL_HoriTextureStrip(floor, cx, 0, v, cx + half, 127 << 16, v, y);
    }
  )
  SHOW(
    for (int32_t x = 0; x < w; x++) {
      const double depth = wide / (std::abs(x - cx) + 0.5);
      if (depth > far) {
        BRSL_VertGouraudStrip(0, 0x080810, cy - int32_t(high / far), Dusk(far), x);
        continue;
      }
      const int32_t top = cy - int32_t(high / depth);
      const int32_t bottom = cy + int32_t(low / depth);
      const int32_t u = int32_t(depth * 128) % 128 << 16;
      BRSL_VertGouraudStrip(0, 0x080810, top, Dusk(depth), x);
      BRSL_VertTextureStrip(wall, top, u, 0, (top + bottom) / 2, u, 127 << 16, x);
      BRSL_VertTextureStrip(wall, (top + bottom) / 2, u, 0, bottom, u, 127 << 16, x);
    }
  )
  SHOW(
    const double pillars[] = {3.6, 2.5, 1.7};
    for (const double depth : pillars) {
      const int32_t r = int32_t(w * 0.06 / depth);
      const int32_t out = int32_t(wide * 0.72 / depth);
      const uint32_t lit = Dusk(depth * 1.6 + 3);
      for (int32_t y = cy - int32_t(high / depth); y < cy + int32_t(low / depth); y++) {
        BRSL_HoriGouraudStrip(cx - out - r, 0x181410, cx - out + r / 2, lit, y);
        BRSL_HoriGouraudStrip(cx - out + r / 2, lit, cx - out + r, 0x403830, y);
        BRSL_HoriGouraudStrip(cx + out - r, 0x403830, cx + out - r / 2, lit, y);
        BRSL_HoriGouraudStrip(cx + out - r / 2, lit, cx + out + r, 0x181410, y);
      }
    }
  )
}

}  // namespace brisal::tools
