#include "tools/gallery/fit.h"
#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>

namespace brisal::tools {

void DrawEffectBlits(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t across = std::max(1, w * 9 / 20), down = std::max(1, h * 9 / 10);
  const Surface source(Fit(Coast(), across, down), stage.Format());
  const Surface light(Spotlight(across, down), stage.Format());

  // The value of a variant: the mode, and in bit 16 whether it takes the blend source.
  SHOW(
    const uint32_t mode = stage.Value() & 0xFFFF;
    const uint32_t blend = stage.Value() >> 16;
    BRSL_SetSrcBuffer(source->address, source->pitch, source->format);
    BRSL_SetSrcBlendBuffer(light->address, light->pitch, light->format);
    BRSL_BlitFX(0, 0, across, down, w / 30, h / 20, 0, 0, mode, 0xC07040, blend, 0);
    BRSL_Blit(0, 0, across, down, w * 31 / 60, h / 20, 0, 0);
  )
}

}  // namespace brisal::tools
