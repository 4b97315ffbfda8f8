#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>

namespace brisal::tools {

void DrawAlphaBlits(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);

  SHOW(
    struct Place { int32_t x; int32_t y; int32_t size; };
    const Place places[] = {{36, 45, 20}, {72, 62, 15}, {58, 24, 11}, {14, 26, 9}, {84, 22, 7},
                            {57, 76, 6}, {90, 84, 5}, {23, 70, 5}, {41, 10, 3}, {8, 52, 3}};
    for (const Place &place : places) {
      const int32_t size = s * place.size * 3 / 100 + 1;
      const Surface bubble(Bubble(size), BRSL_FORMAT_A32);
      const int32_t x = w * place.x / 100 - size / 2;
      const int32_t y = h * place.y / 100 - size / 2;
      BRSL_SetSrcBuffer(bubble->address, bubble->pitch, bubble->format);
      BRSL_Blit(0, 0, size, size, x, y, BRSL_PeekSurface(bubble, 0, 0), 1);
    }
  )
}

}  // namespace brisal::tools
