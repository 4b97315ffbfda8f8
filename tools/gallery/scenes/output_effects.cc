#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>

namespace brisal::tools {

void DrawOutputEffects(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  const int32_t format = stage.Format() == BRSL_FORMAT_A32 ? BRSL_FORMAT_X32 : stage.Format();
  static const host::Image picture = Keyed(Balloon(256, 0));
  const Surface balloon(picture, format);
  BRSL_SetSurfaceDescMaskColour(balloon, kKeyColour);

  SHOW(
    TPD_Pipeline *const pipeline = TPD_BuildSpriteDrawMode(1, 0xFFFFFFFF, 0, 0);
    TPD_SetOutputEffect(pipeline, stage.Value(), 0, 110);
    const int32_t left = w / 2 - s * 9 / 20;
    const int32_t right = w / 2 + s * 9 / 20;
    const int32_t top = h / 2 - s * 9 / 20;
    const int32_t bottom = h / 2 + s * 9 / 20;
    BRSL_DrawSpriteQuad(balloon, left, top, 0, 0, right, top, 255, 0, right, bottom, 255, 255,
                        left, bottom, 0, 255, pipeline, 0);
    TPD_Free(pipeline);
  )
}

}  // namespace brisal::tools
