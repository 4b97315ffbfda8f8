#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>
#include <cmath>

namespace brisal::tools {

void DrawSprites(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  const Surface sheet(stage.Format() == BRSL_FORMAT_A32 ? ButterflySheet(40) : Keyed(ButterflySheet(40)),
                      stage.Format());
  BRSL_SetSurfaceDescMaskColour(sheet, kKeyColour);

  // The value of a variant: bit 0 filters, bit 1 splits quads into triangles.
  SHOW(
    const uint32_t filter = (stage.Value() & 1) * 0x80000000;
    const int32_t split = stage.Value() >> 1;
    TPD_Pipeline *const pipeline = TPD_BuildSpriteDrawMode(1 | filter, 0xFFFFFFFF, 0, 0);
    const auto fly = [&](double x, double y, double r, double turn, int32_t frame) {
      const int32_t c = int32_t(r * std::cos(turn));
      const int32_t d = int32_t(r * std::sin(turn));
      const int32_t u = frame % 4 * 40;
      const int32_t v = frame / 4 * 40;
      BRSL_DrawSpriteQuad(sheet,
                          int32_t(x) - c + d, int32_t(y) - d - c, u, v,
                          int32_t(x) + c + d, int32_t(y) + d - c, u + 39, v,
                          int32_t(x) + c - d, int32_t(y) + d + c, u + 39, v + 39,
                          int32_t(x) - c - d, int32_t(y) - d + c, u, v + 39, pipeline, split);
    };
    for (int32_t i = 0; i < 32; i++) {
      const double turn = i * 0.19394954;
      fly(w / 2.0 + s * 0.58 * std::sin(turn), h / 2.0 - s * 0.42 * std::cos(turn), s * 0.06, turn, i % 8);
    }
    fly(w / 2.0, h / 2.0, s * 0.26, 0.4, 0);
    TPD_Free(pipeline);
  )
}

}  // namespace brisal::tools
