#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <cmath>
#include <vector>

namespace brisal::tools {

void DrawCapturedScenes(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const Surface stones(Stones(), stage.Format()), crate(Crate(), stage.Format());
  const BRSL_SurfaceDesc *const textures[] = {stones, crate};

  // Three views of one scene, a third of the page high each; u is a hundredth of their height.
  SHOW(
    const double u = h * 0.0029;
    const int32_t end = w * 2;
    const auto at = [&](double hundredths) { return int32_t(hundredths * u); };
    std::vector<Scene_Record> scene;
    const auto next = [&] { return &scene.emplace_back(); };
    Scene_Write_Capture_ShadeBox(next(), 0, 0, 0, end, at(85), 0, 0x141C48, 0x3A2458, 0xF09868, 0xD86078);
    for (int32_t i = 12; i > 0; i--) {
      Scene_Write_Capture_Circle(next(), DRAW_ADD, w * 4 / 5, at(48), 0, at(12 + i * 3), 0x080503);
    }
    Scene_Write_Capture_Circle(next(), 0, w * 4 / 5, at(48), 0, at(11), 0xFFF0C8);
    for (int32_t i = 0; i < 14; i++) {
      Scene_Write_Capture_Ellipse(next(), DRAW_ADD, end * i / 13, at(16 + i * 7 % 20), 0, at(44 - i % 3 * 9),
                                  at(3 + i % 4), 0x201420);
    }
  )
  SHOW(
    for (int32_t i = 0; i < 13; i++) {
      const int32_t x = end * i / 12;
      const int32_t y = at(34 + i * 5 % 7 * 4);
      Scene_Write_Capture_TriG(next(), 0, x, y, 0xF0B0A0, x, at(86), 0x403058, x - end / 11, at(86), 0x705078, 0, 2);
      Scene_Write_Capture_TriG(next(), 0, x, y, 0x684868, x + end / 11, at(86), 0x2C2848, x, at(86), 0x302848, 0, 2);
    }
    for (int32_t i = 0; i < 80; i++) {
      const int32_t left = at(70 - 5 * std::sin(i * 0.21) - 2 * std::sin(i * 0.57));
      const int32_t right = at(70 - 5 * std::sin(i * 0.21 + 0.21) - 2 * std::sin(i * 0.57 + 0.57));
      Scene_Write_Capture_Quad(next(), 0, end * i / 80, left, end * (i + 1) / 80, right, end * (i + 1) / 80, at(86),
                               end * i / 80, at(86), 0, 0x203040, 2);
    }
  )
  SHOW(
    for (int32_t i = 0; i < 34; i++) {
      const int32_t x = end * i / 34 + at(i * 13 % 7);
      const int32_t y = at(78 - i * 11 % 17 * (1 + i % 3 * 0.6));
      Scene_Write_Capture_Box(next(), BRSL_FILLED, x, y, x + at(16), at(86), 0, 0x141A2C + i % 3 * 0x060404);
      Scene_Write_Capture_Tri(next(), 0, x - at(1), y, x + at(8), y - at(7), x + at(17), y, 0, 0x502838, 2);
      for (int32_t k = 0; k < 12; k++) {
        const int32_t floor = k / 3;
        const int32_t left = x + at(3 + k % 3 * 4);
        const int32_t top = y + at(4 + floor * 7);
        if ((i * 5 + k) % 7 < 4 && top < at(82)) {
          Scene_Write_Capture_Box(next(), BRSL_FILLED, left, top, left + at(2), top + at(3), 0, 0xF8C860);
        }
      }
    }
    for (int32_t i = 0; i < 4; i++) {
      const int32_t x = end * i / 4 + at(70);
      Scene_Write_Capture_TriT(next(), 0, x, at(48), 0, 0, x + at(9), at(86), 40, 90, x - at(38), at(86), 127, 60, 0, 0, 2);
      Scene_Write_Capture_TriG(next(), DRAW_MULT, x, at(48), 0xC0A0A0, x + at(9), at(86), 0x907080, x - at(38), at(86),
                               0x604868, 0, 2);
    }
  )
  SHOW(
    for (int32_t i = 0; i < 8; i++) {
      for (int32_t x = 0; x < end; x += 128) {
        Scene_Write_Capture_TextureStripH(next(), 0, x, 0, i * 0x50000, x + 128, 127 * 65536, i * 0x50000, at(86) + i, 0, 0);
      }
    }
    for (int32_t y = at(86) + 8; y < at(100); y++) {
      Scene_Write_Capture_GouraudStripH(next(), 0, 0, 0x283058, w * 4 / 5, 0xE89878, y, 0);
      Scene_Write_Capture_GouraudStripH(next(), 0, w * 4 / 5, 0xE89878, end, 0x201C40, y, 0);
    }
    for (int32_t i = 0; i < 11; i++) {
      const int32_t x = end * i / 11 + at(22);
      for (int32_t k = 0; k < 2; k++) {
        Scene_Write_Capture_GouraudStripV(next(), 0, at(66), 0x807060, at(86), 0x181420, x + k, 0);
      }
      for (int32_t k = 0; k < at(3); k++) {
        Scene_Write_Capture_TextureStripV(next(), 0, at(82), k * 65536, 0, at(90), k * 65536, 63 * 65536, x + k, 0, 1);
      }
      const int32_t left = x + at(14);
      Scene_Write_Capture_QuadT(next(), 0, left, at(77), 0, 0, left + at(9), at(77), 63, 0, left + at(9), at(86), 63, 63,
                                left, at(86), 0, 63, 0, 1, 2);
      Scene_Write_Capture_QuadG(next(), DRAW_ADD, x, at(66), 0xA08040, x + 2, at(66), 0xA08040, x + at(9), at(86), 0,
                                x - at(9), at(86), 0, 0, 2);
    }
  )
  SHOW(
    TPD_Pipeline *const pipeline = TPD_Alloc();
    const int32_t offsets[] = {0, w / 3, w};
    for (int32_t view = 0; view < 3; view++) {
      const int32_t dx = offsets[view];
      const int32_t top = h * view / 3 + h / 50;
      BRSL_SetBufferViewPort(w / 40, top, w - w / 40, top + at(100));
      for (const Scene_Record &record : scene) {
        if (!Scene_Render_Check_Object_Visible(&record, dx, 0)) continue;
        const BRSL_SurfaceDesc *const texture = textures[record.image];
        switch (record.code) {
          case SCENE_BOX: Scene_Render_Captured_Box(&record, dx, 0); break;
          case SCENE_SHADE_BOX: Scene_Render_Captured_ShadeBox(&record, dx, 0); break;
          case SCENE_CIRCLE: Scene_Render_Captured_Circle(&record, dx, 0); break;
          case SCENE_ELLIPSE: Scene_Render_Captured_Ellipse(&record, dx, 0); break;
          case SCENE_TRI:
          case SCENE_QUAD: Scene_Render_Captured_Polygon(&record, dx, 0); break;
          case SCENE_TRI_G:
          case SCENE_QUAD_G: Scene_Render_Captured_PolygonG(&record, dx, 0); break;
          case SCENE_POLYGON_T: Scene_Render_Captured_PolygonT(&record, dx, 0, texture, pipeline); break;
          case SCENE_GOURAUD_STRIP_H: Scene_Render_Captured_GouraudStripH(&record, dx, 0); break;
          case SCENE_GOURAUD_STRIP_V: Scene_Render_Captured_GouraudStripV(&record, dx, 0); break;
          case SCENE_TEXTURE_STRIP_H: Scene_Render_Captured_TextureStripH(&record, dx, 0, texture); break;
          case SCENE_TEXTURE_STRIP_V: Scene_Render_Captured_TextureStripV(&record, dx, 0, texture); break;
        }
      }
    }
    TPD_Free(pipeline);
  )
}

}  // namespace brisal::tools
