#include <cmath>

#include "docs/pictures/picture.h"
#include "tools/gallery/pictures.h"

namespace brisal::docs {

namespace {

// Leaves the left half of the page as it is, for comparing.
void SelectRightHalf(BRSL_SurfaceDesc *page) {
  BRSL_SetSurfaceDescVP(page, kWidth / 2, 0, kWidth, kHeight);
}

template <class Filter>
void HalfFiltered(BRSL_SurfaceDesc *page, Filter filter) {
  DrawCoast(page);
  SelectRightHalf(page);
  filter();
}

template <class Poke>
void Weave(BRSL_SurfaceDesc *page, Poke poke) {
  for (int32_t y = 9; y < 81; y++) {
    for (int32_t x = 12; x < 108; x++) {
      const bool over = ((x / 8 + y / 8) & 1) != 0;
      const int32_t across = over ? x % 8 : y % 8;
      const uint32_t light = uint32_t(40 + across * (7 - across) * 14);
      poke(page, x, y, over ? light << 16 | light / 2 << 8 : light << 8 | light);
    }
  }
}

void SetSource(const BRSL_SurfaceDesc *surface) {
  BRSL_SetSrcBuffer(surface->address, surface->pitch, surface->format);
}

constexpr Picture kPictures[] = {
    {"BRSL_PokeSurface", [](BRSL_SurfaceDesc *page) { Weave(page, BRSL_PokeSurface); }},
    {"BRSL_PokeSurfaceNC",
     [](BRSL_SurfaceDesc *page) {
       for (int32_t y = 0; y < kHeight; y++) {
         for (int32_t x = 0; x < kWidth; x++) {
           const int32_t d = (x - 60) * (x - 60) + (y - 45) * (y - 45);
           BRSL_PokeSurfaceNC(page, x, y, uint32_t(d / 9 & 255) << 8 | uint32_t(d / 5 & 255));
         }
       }
     }},
    {"BRSL_Blit",
     [](BRSL_SurfaceDesc *page) {
       DrawCoast(page);
       const tools::Surface large(tools::Balloon(62, 0), BRSL_FORMAT_A32);
       const tools::Surface small(tools::Balloon(34, 2), BRSL_FORMAT_A32);
       SetSource(small);
       BRSL_Blit(0, 0, 34, 34, 74, 40, 0, 1);
       SetSource(large);
       BRSL_Blit(0, 0, 62, 62, 16, 12, 0, 1);
     }},
    {"BRSL_BlitFX",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface stones = TextureOf(tools::Stones());
       constexpr uint32_t kTints[] = {0xF0A080, 0x80F0A0, 0x80A0F0, 0xF0E080};
       for (int32_t i = 0; i < 4; i++) {
         const int32_t x = i % 2 * 56 + 5, y = i / 2 * 42 + 4;
         SetSource(stones);
         BRSL_BlitFX(0, 0, 54, 40, x, y, 0, 0, 8192, kTints[i], 0, 0);
       }
     }},
    {"BRSL_HoriGouraudStrip",
     [](BRSL_SurfaceDesc *) {
       for (int32_t y = 8; y < 82; y++) {
         const uint32_t glow = uint32_t(y * 3);
         BRSL_HoriGouraudStrip(y / 2, 0x200030 + glow, 119 - y / 4, 0xF8C000 - (glow / 2 << 8), y);
       }
     }},
    {"BRSL_VertGouraudStrip",
     [](BRSL_SurfaceDesc *) {
       for (int32_t x = 6; x < 114; x++) {
         const int32_t height = 20 + (x / 9 * 29 % 47);
         if (x % 9 < 7) BRSL_VertGouraudStrip(84 - height, 0xF8E080, 84, 0x902050, x);
       }
     }},
    {"BRSL_HoriTextureStrip",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface planet = TextureOf(tools::Planet());
       for (int32_t y = -40; y < 40; y++) {
         const int32_t half = int32_t(std::sqrt(1600.0 - y * y));
         const int32_t v = int32_t((y + 40) * 1.58 * 65536);
         BRSL_HoriTextureStrip(planet, 60 - half, 50 * 65536, v, 60 + half, 178 * 65536, v, y + 45);
       }
     }},
    {"BRSL_VertTextureStrip",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface stones = TextureOf(tools::Stones());
       for (int32_t x = 0; x < kWidth; x++) {
         const int32_t half = 16 + (x < 60 ? 60 - x : x - 60) / 2;
         BRSL_VertTextureStrip(stones, 45 - half, x * 68000, 0, 45 + half, x * 68000, 127 * 65536,
                               x);
       }
     }},
    {"BRSL_PrepareFXSurface",
     [](BRSL_SurfaceDesc *page) {
       DrawCoast(page);
       tools::Surface keyed = TextureOf(tools::Keyed(tools::Butterfly(80, 0.9f)));
       const tools::Surface soft(host::Image(80, 80, BRSL_FORMAT_A32), BRSL_FORMAT_A32);
       BRSL_SetSurfaceDescMaskColour(keyed, tools::kKeyColour);
       BRSL_PrepareFXSurface(keyed, soft, 0);
       SetSource(soft);
       BRSL_Blit(0, 0, 80, 80, 20, 5, 0, 1);
     }},
    {"BRSL_FillRect_Blur",
     [](BRSL_SurfaceDesc *page) {
       HalfFiltered(page, [page] {
         for (int32_t i = 0; i < 4; i++) BRSL_FillRect_Blur(page, 9);
       });
     }},
    {"BRSL_FillRect_Fade",
     [](BRSL_SurfaceDesc *page) { HalfFiltered(page, [page] { BRSL_FillRect_Fade(page, 45); }); }},
    {"BRSL_FillRect_GreyScale",
     [](BRSL_SurfaceDesc *page) { HalfFiltered(page, [page] { BRSL_FillRect_GreyScale(page); }); }},
    {"BRSL_FillRect_Light",
     [](BRSL_SurfaceDesc *page) {
       DrawCoast(page);
       BRSL_FillRect_Light(page, 74, 38, 300, 4.2f, 0);
     }},
    {"BRSL_FillRect_PhongMap",
     [](BRSL_SurfaceDesc *page) { BRSL_FillRect_PhongMap(page, 50, 36, 0xF0A060, 300, 4, 0); }},
    {"BRSL_MirrorRect",
     [](BRSL_SurfaceDesc *page) {
       BRSL_ScaleSurface(TextureOf(tools::Keyed(tools::Planet())), page, 1111);
       SetSource(page);
       BRSL_Blit(0, 0, kWidth / 2, kHeight, kWidth / 2, 0, 0, 0);
       constexpr int32_t kRight[] = {kWidth / 2, 0, kWidth, kHeight};
       BRSL_MirrorRect(kRight, 1, 0);
     }},
    {"BRSL_ScaleSurface",
     [](BRSL_SurfaceDesc *page) {
       const tools::Surface crate = TextureOf(tools::Crate());
       BRSL_SurfaceDesc part = *page;
       const auto place = [&](int32_t x, int32_t y, int32_t width, int32_t height, int32_t mode) {
         part.address = static_cast<uint8_t *>(page->address) + y * page->pitch + x * 4;
         part.width = width;
         part.height = height;
         BRSL_SetSurfaceDescVP(&part, 0, 0, width, height);
         BRSL_ScaleSurface(crate, &part, mode);
       };
       place(6, 6, 78, 78, 1);
       place(90, 6, 24, 36, 1111);
       place(90, 48, 24, 36, 0);
     }},
    {"BRSL_CopyRect_MoveMapBlk",
     [](BRSL_SurfaceDesc *page) {
       const tools::Surface tiles = TextureOf(tools::MapSheet());
       constexpr int32_t kMap[3][4] = {{0, 0, 2, 1}, {0, 2, 1, 1}, {2, 1, 1, 0}};
       uint32_t row[tools::kTile];
       for (int32_t y = 0; y < 3; y++) {
         for (int32_t x = 0; x < 4; x++) {
           const int32_t left = kMap[y][x] * tools::kTile;
           BRSL_CopyRect_MoveMapBlk(tiles, left, 0, left + tools::kTile, tools::kTile, page,
                                    x * tools::kTile - 4, y * tools::kTile - 3, row, 0xFF00FF);
         }
       }
     }},
};

}  // namespace

std::span<const Picture> SurfacePictures() { return kPictures; }

}  // namespace brisal::docs
