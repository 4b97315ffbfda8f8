#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>

namespace brisal::tools {

void DrawKeyedBlits(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);

  SHOW(
    struct Place { int32_t x; int32_t y; int32_t size; };
    const Place places[] = {{33, 44, 12}, {61, 30, 9}, {86, 50, 11}, {44, 12, 8}, {76, 19, 6},
                            {17, 20, 5}, {68, 58, 4}, {30, 62, 3}, {93, 16, 3}};
    for (int32_t i = 8; i >= 0; i--) {
      const int32_t size = s * places[i].size * 3 / 100 + 1;
      const Surface balloon(Keyed(Balloon(size, i)), stage.Format());
      const int32_t x = w * places[i].x / 100 - size / 2;
      const int32_t y = h * places[i].y / 100 - size / 2;
      BRSL_SetSurfaceDescMaskColour(balloon, 0xFF00FF);
      BRSL_SetSrcBuffer(balloon->address, balloon->pitch, balloon->format);
      BRSL_Blit(0, 0, size, size, x, y, balloon->maskColour, 1);
    }
  )
  SHOW(
    const int32_t size = s / 4 + 1;
    const Surface balloon(Keyed(Balloon(size, 0)), stage.Format());
    BRSL_SetSrcBuffer(balloon->address, balloon->pitch, balloon->format);
    BRSL_Blit(0, 0, size, size, w / 32, h * 31 / 32 - size, 0, 0);
  )
}

}  // namespace brisal::tools
