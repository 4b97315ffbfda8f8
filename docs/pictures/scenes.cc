#include <cmath>
#include <memory>

#include "docs/pictures/picture.h"
#include "tools/font/raster.h"
#include "tools/gallery/pictures.h"

namespace brisal::docs {

namespace {

// Renders one captured record at several offsets, the way that a scrolling scene repeats it.
template <class Render>
void Repeat(int32_t times, int32_t stepX, int32_t stepY, Render render) {
  for (int32_t i = 0; i < times; i++) render(-i * stepX, -i * stepY);
}

constexpr Picture kPictures[] = {
    {"CRF_Draw",
     [](BRSL_SurfaceDesc *) {
       const host::Font large = tools::DejaVuFont({.size = 52});
       const host::Font small = tools::DejaVuFont({.size = 13});
       CRF_Draw(large.get(), "Aa", 0, 21, 4, 0xFF101420);
       CRF_Draw(large.get(), "Aa", 0, 18, 1, 0xFFF8D890);
       CRF_Draw(small.get(), "letter by letter", 0, 14, 66, 0xFFC8D8F8);
     }},
    {"Scene_Render_Captured_Box",
     [](BRSL_SurfaceDesc *) {
       Scene_Record record;
       Scene_Write_Capture_Box(&record, BRSL_FILLED | DRAW_ADD, 8, 8, 40, 34, 0, 0x604838);
       Repeat(5, 16, 11,
              [&](int32_t dx, int32_t dy) { Scene_Render_Captured_Box(&record, dx, dy); });
     }},
    {"Scene_Render_Captured_ShadeBox",
     [](BRSL_SurfaceDesc *) {
       Scene_Record record;
       Scene_Write_Capture_ShadeBox(&record, 0, 6, 6, 38, 30, 0, 0xF86048, 0xF8E070, 0x3860E0,
                                    0x38C090);
       Repeat(3, 0, 27, [&](int32_t, int32_t dy) {
         Repeat(3, 37, 0,
                [&](int32_t dx, int32_t) { Scene_Render_Captured_ShadeBox(&record, dx, dy); });
       });
     }},
    {"Scene_Render_Captured_Circle",
     [](BRSL_SurfaceDesc *) {
       Scene_Record record;
       Scene_Write_Capture_Circle(&record, BRSL_FILLED | DRAW_ADD, 28, 45, 0, 24, 0x285068);
       Repeat(5, 16, 0,
              [&](int32_t dx, int32_t dy) { Scene_Render_Captured_Circle(&record, dx, dy); });
     }},
    {"Scene_Render_Captured_Ellipse",
     [](BRSL_SurfaceDesc *) {
       Scene_Record record;
       Scene_Write_Capture_Ellipse(&record, BRSL_FILLED | DRAW_ADD, 60, 18, 0, 50, 14, 0x583060);
       Repeat(7, 0, 9,
              [&](int32_t dx, int32_t dy) { Scene_Render_Captured_Ellipse(&record, dx, dy); });
     }},
    {"Scene_Render_Captured_Polygon",
     [](BRSL_SurfaceDesc *) {
       Scene_Record record;
       for (int32_t i = 0; i < 3; i++) {
         Scene_Write_Capture_Tri(&record, 0, 20, 20 + i * 14, 34, 46 + i * 14, 6, 46 + i * 14, 0,
                                 0x306848 + i * 0x102010, 2);
         Repeat(4, 27, 0,
                [&](int32_t dx, int32_t) { Scene_Render_Captured_Polygon(&record, dx, i * 3); });
       }
     }},
    {"Scene_Render_Captured_PolygonG",
     [](BRSL_SurfaceDesc *) {
       Scene_Record record;
       Scene_Write_Capture_QuadG(&record, DRAW_ADD, 26, 4, 0xA07840, 30, 4, 0xA07840, 54, 84, 0, 2,
                                 84, 0, 0, 2);
       Repeat(3, 32, 0,
              [&](int32_t dx, int32_t dy) { Scene_Render_Captured_PolygonG(&record, dx, dy); });
     }},
    {"Scene_Render_Captured_PolygonT",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface crate = TextureOf(tools::Crate());
       TPD_Pipeline *const plain = TPD_Alloc();
       Scene_Record record;
       Scene_Write_Capture_QuadT(&record, 0, 6, 6, 0, 0, 40, 6, 63, 0, 40, 40, 63, 63, 6, 40, 0, 63,
                                 0, 0, 2);
       Repeat(3, 37, 22, [&](int32_t dx, int32_t dy) {
         Scene_Render_Captured_PolygonT(&record, dx, dy, crate, plain);
       });
       TPD_Free(plain);
     }},
    {"Scene_Render_Captured_GouraudStripH",
     [](BRSL_SurfaceDesc *) {
       Scene_Record record;
       Scene_Write_Capture_GouraudStripH(&record, 0, 4, 0x182060, 96, 0xF8B060, 8, 0);
       for (int32_t y = 0; y < 74; y++) {
         Scene_Render_Captured_GouraudStripH(&record, -int32_t(10 + 10 * std::sin(y * 0.17)), -y);
       }
     }},
    {"Scene_Render_Captured_GouraudStripV",
     [](BRSL_SurfaceDesc *) {
       Scene_Record record;
       Scene_Write_Capture_GouraudStripV(&record, 0, 6, 0x60D0C0, 66, 0x301850, 6, 0);
       for (int32_t x = 0; x < 108; x++) {
         Scene_Render_Captured_GouraudStripV(&record, -x, -int32_t(9 + 9 * std::sin(x * 0.11)));
       }
     }},
    {"Scene_Render_Captured_TextureStripH",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface coast = TextureOf(tools::Coast());
       Scene_Record record;
       for (int32_t y = 0; y < 74; y++) {
         Scene_Write_Capture_TextureStripH(&record, 0, 10, 0, y * 5 * 65536, 96, 287 * 65536,
                                           y * 5 * 65536, 8 + y, 0, 0);
         Scene_Render_Captured_TextureStripH(&record, -int32_t(7 + 7 * std::sin(y * 0.2)), 0,
                                             coast);
       }
     }},
    {"Scene_Render_Captured_TextureStripV",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface planet = TextureOf(tools::Planet());
       Scene_Record record;
       for (int32_t x = 0; x < 104; x++) {
         Scene_Write_Capture_TextureStripV(&record, 0, 8, x * 160000, 0, 68, x * 160000,
                                           127 * 65536, 8 + x, 0, 0);
         Scene_Render_Captured_TextureStripV(&record, 0, -int32_t(7 + 7 * std::sin(x * 0.12)),
                                             planet);
       }
     }},
};

}  // namespace

std::span<const Picture> ScenePictures() { return kPictures; }

}  // namespace brisal::docs
