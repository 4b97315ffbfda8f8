#include "tools/gallery/noise.h"
#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

namespace brisal::tools {

namespace {

// What stands in a cell of the map: a tile of the sheet.
int32_t TileOf(int32_t column, int32_t row) {
  const auto x = static_cast<float>(column), y = static_cast<float>(row);
  const float height = Fractal(x / 6 + 3, y / 6, 211, 3);
  if (height < 0.43f) return 1;
  if (height < 0.475f) return 2;
  const float chance = Hash(column, row, 213);
  if (Fractal(x / 4, y / 4, 217, 2) > 0.52f) return chance < 0.75f ? 3 : 4;
  return chance < 0.08f ? 5 : chance < 0.2f ? 4 : 0;
}

}  // namespace

void DrawMapBlocks(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t format = stage.Format();
  host::Image &page = stage.Page();
  uint8_t *const pixels = page.Row(0);
  const int32_t pitch = page.Pitch();
  const Surface sheet(MapSheet(), format);

  SHOW(
    BRSL_SurfaceDesc *const target = BRSL_AllocSurfaceDesc(format, pixels, pitch, w, h);
    BRSL_SetSrcBuffer(sheet->address, sheet->pitch, sheet->format);
    uint32_t row[32];
    for (int32_t i = 0; i * 32 < h; i++) {
      for (int32_t j = 0; j * 32 < w; j++) {
        const int32_t x = TileOf(j, i) * 32;
        if (BRSL_CopyRect_MoveMapBlk(sheet, x, 0, x + 32, 32, target, j * 32, i * 32, row, 0xFF00FF)) {
          BRSL_Blit(0, 0, 32, 32, j * 32, i * 32, 0, 0);
          BRSL_Blit(x, 0, x + 32, 32, j * 32, i * 32, 0xFF00FF, 1);
        }
      }
    }
    BRSL_FreeSurfaceDesc(target);
  )
}

}  // namespace brisal::tools
