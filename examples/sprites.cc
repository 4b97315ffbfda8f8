// Balloons: one sprite with soft edges, drawn by the library itself, then turned, sized and tinted.
//
//     sprites [FILE.ppm]
#include <brisal/brisal.h>

#include <cmath>
#include <memory>
#include <vector>

#include "ppm.h"

namespace {

constexpr int32_t kWidth = 480, kHeight = 320;
constexpr int32_t kSprite = 64;  // pixels a side
constexpr uint32_t kMasked = 1, kFiltered = 0x80000000;

struct Release {
  void operator()(BRSL_SurfaceDesc *surface) const { BRSL_FreeSurfaceDesc(surface); }
  void operator()(TPD_Pipeline *pipeline) const { TPD_Free(pipeline); }
};
using Surface = std::unique_ptr<BRSL_SurfaceDesc, Release>;
using Pipeline = std::unique_ptr<TPD_Pipeline, Release>;

// A white balloon with grey stripes. What is not drawn keeps alpha 0, and lets the target through.
void DrawBalloon(std::vector<uint32_t> &pixels) {
  BRSL_SetBuffer(pixels.data(), kSprite * 4, BRSL_FORMAT_A32);
  BRSL_SetBufferViewPort(0, 0, kSprite, kSprite);
  BRSL_Tri(12, 32, 52, 32, 32, 58, 0xFFD8D8D8, 0);
  BRSL_Circle(32, 26, 25, 0xFFFFFFFF, BRSL_FILLED);
  BRSL_Ellipse(32, 26, 17, 25, 0xFFB8B8B8, BRSL_FILLED);
  BRSL_Ellipse(32, 26, 9, 25, 0xFFF0F0F0, BRSL_FILLED);
  BRSL_Ellipse(22, 16, 6, 8, 0xFFFFFFFF, BRSL_FILLED);
  BRSL_Box(26, 55, 39, 63, 0xFF806040, BRSL_FILLED);
  BRSL_Box(28, 57, 37, 59, 0xFF604028, BRSL_FILLED);
}

// The sprite's corners on a square around (x, y), turned by an angle.
void DrawTurned(const BRSL_SurfaceDesc *sprite, const TPD_Pipeline *pipeline, double x, double y,
                double radius, double angle) {
  const double c = radius * std::cos(angle), s = radius * std::sin(angle);
  const auto at = [](double place) { return static_cast<int32_t>(std::lround(place)); };
  constexpr int32_t last = kSprite - 1;
  BRSL_DrawSpriteQuad(sprite, at(x - c + s), at(y - s - c), 0, 0,  //
                      at(x + c + s), at(y + s - c), last, 0,       //
                      at(x + c - s), at(y + s + c), last, last,    //
                      at(x - c - s), at(y - s + c), 0, last, pipeline, 0);
}

}  // namespace

int main(int argc, char **argv) {
  BRSL_Init_Lib();
  std::vector<uint32_t> spritePixels(kSprite * kSprite);
  DrawBalloon(spritePixels);
  const Surface sprite(
      BRSL_AllocSurfaceDesc(BRSL_FORMAT_A32, spritePixels.data(), kSprite * 4, kSprite, kSprite));

  std::vector<uint8_t> pixels(kWidth * kHeight * 3);
  BRSL_SetBuffer(pixels.data(), kWidth * 3, BRSL_FORMAT_RGB);
  BRSL_SetBufferViewPort(0, 0, kWidth, kHeight);
  BRSL_ShadeBox(0, 0, kWidth, kHeight, 0x3878C8, 0x4080D0, 0xF8E8D0, 0xE8E0E0, DRAW_SOLID);

  constexpr uint32_t kTints[] = {0xFFFF6050, 0xFFFFC040, 0xFF60D070, 0xFF50B0FF, 0xFFC080F0};
  constexpr int32_t kCount = 22;
  for (int32_t i = 0; i < kCount; i++) {  // the farthest first
    const double near = (i + 1.0) / kCount;
    const Pipeline pipeline(TPD_BuildSpriteDrawMode(kMasked | kFiltered, kTints[i % 5], 0, 0));
    DrawTurned(sprite.get(), pipeline.get(), 30 + i * 181 % 430, 250 - near * 160 + i * 67 % 90,
               10 + 44 * near * near, 0.3 * std::sin(i * 1.9));
  }
  return SavePpm(argc > 1 ? argv[1] : "sprites.ppm", pixels.data(), kWidth, kHeight);
}
