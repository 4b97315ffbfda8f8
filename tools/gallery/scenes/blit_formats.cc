#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>

namespace brisal::tools {

void DrawBlitFormats(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t x = w / 16, y = h / 12;
  const Surface spectrum(Spectrum(std::max(1, w - 2 * x), std::max(1, h - 2 * y)), stage.Value());

  SHOW(
    BRSL_SetSrcBuffer(spectrum->address, spectrum->pitch, spectrum->format);
    BRSL_Blit(0, 0, spectrum->width, spectrum->height, x, y, 0, 0);
  )
}

}  // namespace brisal::tools
