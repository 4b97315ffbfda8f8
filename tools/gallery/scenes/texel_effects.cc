#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>

namespace brisal::tools {

void DrawTexelEffects(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  // Format 5 would draw by its own alpha, which effects change too.
  const int32_t format = stage.Format() == BRSL_FORMAT_A32 ? BRSL_FORMAT_X32 : stage.Format();
  static const host::Image picture = Keyed(Butterfly(256, 1));
  const Surface butterfly(picture, format);
  BRSL_SetSurfaceDescMaskColour(butterfly, kKeyColour);

  SHOW(
    const int32_t code = stage.Value();
    const uint32_t lit = code == 7 ? 0x80 : code == 5 ? 0x100 : code == 6 ? 0x200 : 0;
    TPD_Pipeline *const pipeline = TPD_BuildSpriteDrawMode(1 | lit, 0xFFFFFFFF, 0, 0);
    struct Arguments { int32_t code; uint32_t a; uint32_t b; };
    const Arguments known[] = {{1, 0xFF60A0FF, 0}, {2, 0x003060A0, 0}, {3, 0x00A04000, 0}, {4, 0x3080FF, 90},
                               {10, 0xFF203040, 0}, {11, 0xFF80C080, 0}, {12, 0x000040C0, 0}};
    for (const Arguments &e : known) {
      if (e.code == code) TPD_AddTexelEffect(pipeline, code, TPD_TEXELS, TPD_TEXELS, e.a, e.b, 0, 0);
    }
    if (code == 15) {
      const uint32_t wing = BRSL_PeekSurface(butterfly, 225, 56);
      TPD_AddTexelEffect(pipeline, 15, TPD_TEXELS, TPD_TEXELS, wing, 0, 0xFF3878E0, 0);
    }
  )
  SHOW(
    const int32_t left = w / 2 - s * 9 / 20;
    const int32_t right = w / 2 + s * 9 / 20;
    const int32_t top = h / 2 - s * 9 / 20;
    const int32_t bottom = h / 2 + s * 9 / 20;
    BRSL_DrawSpriteRGBQuad(butterfly, left, top, 0, 0, 0xFF3030, right, top, 255, 0, 0x30E040,
                           right, bottom, 255, 255, 0x4060FF, left, bottom, 0, 255, 0xF0E040,
                           pipeline, 0);
    TPD_Free(pipeline);
  )
}

}  // namespace brisal::tools
