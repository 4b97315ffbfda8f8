#include "tools/gallery/fit.h"
#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

namespace brisal::tools {

void DrawScaling(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t format = stage.Format();
  const int32_t mode = stage.Value();
  host::Image &page = stage.Page();
  uint8_t *const pixels = page.Row(0);
  const int32_t pitch = page.Pitch();
  const Surface small(Fit(Butterfly(32, 1), 32, 32), format), large(Coast(), format);

  SHOW(
    BRSL_SurfaceDesc *const target = BRSL_AllocSurfaceDesc(format, pixels, pitch, w * 5 / 8, h);
    BRSL_ScaleSurface(small, target, mode);
    BRSL_FreeSurfaceDesc(target);
  )
  const int32_t bytes = host::BytesPerPixel(format);
  SHOW(
    const int32_t left = w * 5 / 8;
    int32_t y = h / 20;
    for (int32_t i = 1; i < 4; i++) {
      const int32_t wide = (w - left) * 2 / (i * 3);
      const int32_t high = wide * 4 / 3;
      const int32_t x = left + (w - left - wide) / 2;
      if (y + high > h) break;
      BRSL_SurfaceDesc *const part =
          BRSL_AllocSurfaceDesc(format, pixels + y * pitch + x * bytes, pitch, wide, high);
      BRSL_ScaleSurface(large, part, mode);
      BRSL_FreeSurfaceDesc(part);
      y += high + h / 20;
    }
  )
}

}  // namespace brisal::tools
