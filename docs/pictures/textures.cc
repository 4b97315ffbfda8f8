#include <cmath>
#include <memory>

#include "docs/pictures/picture.h"
#include "tools/gallery/pictures.h"

namespace brisal::docs {

namespace {

struct Release {
  void operator()(TPD_Pipeline *pipeline) const { TPD_Free(pipeline); }
};
using Pipeline = std::unique_ptr<TPD_Pipeline, Release>;

constexpr uint32_t kMasked = 1, kLit = 0x80, kFiltered = 0x80000000;

Pipeline MakePipeline(uint32_t mode) {
  return Pipeline(TPD_BuildSpriteDrawMode(mode, 0xFFFFFFFF, 0, 0));
}

constexpr Picture kPictures[] = {
    {"BRSL_DrawTexturedPoly",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface marble = TextureOf(tools::Marble());
       const Pipeline lit = MakePipeline(kLit | kFiltered);
       BRSL_QuadT(marble, 60, 4, 127, 0, 116, 45, 127, 127, 60, 86, 0, 127, 4, 45, 0, 0, nullptr);
       BRSL_QuadSetGouraud(0xFFFFFF, 0xF0A060, 0x303060, 0x80A0F0);
       BRSL_DrawTexturedPoly(marble, 4, lit.get());
     }},
    {"BRSL_TriT",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface stones = TextureOf(tools::Stones());
       const Pipeline plain = MakePipeline(kFiltered);
       BRSL_TriT(stones, 60, 6, 64, 0, 112, 82, 127, 127, 8, 82, 0, 127, plain.get());
     }},
    {"BRSL_QuadT",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface crate = TextureOf(tools::Crate());
       const Pipeline plain = MakePipeline(kFiltered);
       BRSL_QuadT(crate, 12, 22, 0, 0, 62, 8, 63, 0, 62, 66, 63, 63, 12, 80, 0, 63, plain.get());
       BRSL_QuadT(crate, 62, 8, 0, 0, 110, 26, 63, 0, 110, 84, 63, 63, 62, 66, 0, 63, plain.get());
     }},
    {"BRSL_DrawTexture",
     [](BRSL_SurfaceDesc *page) {
       DrawCoast(page);
       const tools::Surface butterfly(tools::Butterfly(72, 1), BRSL_FORMAT_A32);
       BRSL_DrawTexture(butterfly, 24, 10, MakePipeline(kMasked).get());
     }},
    {"BRSL_DrawSpritePoly",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface planet = TextureOf(tools::Planet());
       const Pipeline plain = MakePipeline(kFiltered);
       BRSL_QuadT(planet, 34, 6, 0, 0, 112, 20, 255, 0, 86, 84, 255, 127, 8, 70, 0, 127, nullptr);
       BRSL_DrawSpritePoly(planet, 4, plain.get());
     }},
    {"BRSL_DrawSpriteQuad",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface butterfly(tools::Butterfly(40, 1), BRSL_FORMAT_A32);
       const Pipeline soft = MakePipeline(kMasked | kFiltered);
       for (int32_t i = 0; i < 7; i++) {
         const double turn = i * 0.8976, r = 15 + i;
         const double x = 60 + 38 * std::cos(turn), y = 45 + 25 * std::sin(turn);
         const int32_t c = int32_t(r * std::cos(turn)), s = int32_t(r * std::sin(turn));
         const int32_t cx = int32_t(x), cy = int32_t(y);
         BRSL_DrawSpriteQuad(butterfly, cx - c + s, cy - s - c, 0, 0, cx + c + s, cy + s - c, 39, 0,
                             cx + c - s, cy + s + c, 39, 39, cx - c - s, cy - s + c, 0, 39,
                             soft.get(), 0);
       }
     }},
    {"BRSL_DrawSpriteRGBQuad",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface balloon = TextureOf(tools::Keyed(tools::Balloon(80, 1)));
       BRSL_SetSurfaceDescMaskColour(balloon, tools::kKeyColour);
       const Pipeline lit = MakePipeline(kMasked | kLit | kFiltered);
       BRSL_DrawSpriteRGBQuad(balloon, 18, 2, 0, 0, 0xFFFFFF, 102, 2, 79, 0, 0xFFB050, 102, 86, 79,
                              79, 0x602060, 18, 86, 0, 79, 0x4070FF, lit.get(), 0);
     }},
};

}  // namespace

std::span<const Picture> TexturePictures() { return kPictures; }

}  // namespace brisal::docs
