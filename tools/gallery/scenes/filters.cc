#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>

namespace brisal::tools {

void DrawFilters(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  const int32_t format = stage.Format();
  host::Image &page = stage.Page();
  uint8_t *const pixels = page.Row(0);
  const int32_t pitch = page.Pitch();
  const host::Image clear(s * 3 / 4 + 1, s * 3 / 4 + 1, BRSL_FORMAT_A32);
  const Surface balloon(Keyed(Balloon(clear.Width(), 0)), BRSL_FORMAT_565), soft(clear, BRSL_FORMAT_A32);

  SHOW(
    const int32_t rect[] = {w / 8, h / 8, w * 7 / 8, h * 7 / 8};
    const float falloff = 380.0f / s;
    BRSL_SurfaceDesc *const target = BRSL_AllocSurfaceDesc(format, pixels, pitch, w, h);
    BRSL_SetSurfaceDescVP(target, rect[0], rect[1], rect[2], rect[3]);
    BRSL_SetSurfaceDescMaskColour(balloon, 0xFF00FF);
    BRSL_SetSrcBuffer(soft->address, soft->pitch, soft->format);
    switch (stage.Value()) {
      case 0: break;
      case 1: for (int32_t i = 0; i < 6; i++) BRSL_FillRect_Blur(target, 9); break;
      case 2: BRSL_FillRect_Blur(target, 6); break;
      case 3: BRSL_FillRect_Fade(target, 45); break;
      case 4: BRSL_FillRect_Fade(target, 180); break;
      case 5: BRSL_FillRect_GreyScale(target); break;
      case 6: BRSL_FillRect_Light(target, w * 2 / 3, h / 3, 300, falloff, 0); break;
      case 7: BRSL_FillRect_PhongMap(target, w * 2 / 3, h / 3, 0xFFA040, 340, falloff, 0); break;
      case 8: BRSL_MirrorRect(rect, 1, 0); break;
      case 9: BRSL_MirrorRect(rect, 0, 1); break;
      case 10: BRSL_MirrorRect(rect, 1, 1); break;
      default:
        BRSL_PrepareFXSurface(balloon, soft, 0);
        for (int32_t i = 0; i < 3; i++) BRSL_FillRect_Blur(soft, 9);
        BRSL_Blit(0, 0, soft->width, soft->height, w / 2 - s * 3 / 8, h / 2 - s * 3 / 8,
                  BRSL_PeekSurface(soft, 0, 0), 1);
    }
    BRSL_FreeSurfaceDesc(target);
  )
}

}  // namespace brisal::tools
