#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace brisal::tools {

void DrawHostCommands(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  const int32_t size = std::max(s / 8, 4);
  const Surface coast(Coast(), stage.Format());
  const Surface balloon(Balloon(size, 0), BRSL_FORMAT_A32), other(Balloon(size, 2), BRSL_FORMAT_A32);
  const Surface butterfly(Butterfly(size / 2, 0.8f), BRSL_FORMAT_A32);
  const host::Font dejaVu = stage.Font({.size = std::clamp(s / 20, 4, 100)});
  const CRF_Font *const font = dejaVu.get();
  const BRSL_SurfaceDesc *const images[] = {balloon, other, butterfly};

  // What the library has no renderer for is drawn from the fields of its record.
  SHOW(
    std::vector<Scene_Record> scene;
    const auto next = [&] { return &scene.emplace_back(); };
    Scene_Write_Capture_Map(next(), 0, 0, 0, 0, 0, 0, w, h);
    for (int32_t i = 0; i < 9; i++) {
      const int32_t x = w * (i * 5 % 9) / 9 + w / 40;
      const int32_t y = h * i / 10 + h / 30;
      if (i % 3 == 0) Scene_Write_Capture_Image(next(), 0, 0, x, y, 0, size, size);
      if (i % 3 == 1) Scene_Write_Capture_ImageBB(next(), 0, 0, 1, x, y, 0, size, size);
      if (i % 3 == 2) Scene_Write_Capture_Image_AlphaBlend(next(), 0, 0, x, y, 0, 120, size, size);
    }
    for (int32_t i = 0; i < 8; i++) {
      Scene_Record *const record = next();
      Scene_Write_Capture_SpriteNC(record, 2, 0, 0, 0);
      SceneVert_iXYcombined(record->vertices, w * (i * 3 % 8) / 8 + w / 20, h * (i * 7 % 8) / 9 + h / 8);
      const Scene_Vertex &place = record->vertices[0];
      Scene_Poke_Bounding_Box(record, place.x, place.y, place.x + size / 2, place.y + size / 2);
    }
    for (int32_t i = 0; i < 60; i++) {
      const float turn = i * 0.1047f;
      Scene_Write_Capture_Dot(next(), DRAW_NORMAL, w * 0.62f + s * 0.2f * std::cos(turn),
                              h * 0.55f + s * 0.12f * std::sin(2 * turn), 0, 0xFFFF80);
    }
    for (int32_t i = 0; i < 5; i++) {
      Scene_Record *const record = next();
      const int32_t x = w / 5 + w * i / 9;
      const int32_t y = h * 7 / 10 - h * (i * 2 % 5) / 9;
      Scene_Write_Capture_Line(record, DRAW_NORMAL, x, y, x + w / 9, h * 7 / 10 - h * ((i * 2 + 2) % 5) / 9, 0, 0xFF3020);
      Scene_Poke_Bounding_Box(record, record->vertices[0].x, record->vertices[0].y, record->vertices[1].x,
                              record->vertices[1].y);
      Scene_Write_Capture_Shape(next(), 0, 0, x, y, 0, 5, s / 28, 0, 0xD02010);
      Scene_Poke_Bounding_Box(&scene.back(), x - s / 22, y - s / 22, x + s / 22, y + s / 22);
    }
    const char *const texts[] = {"The western coast", "Storms today"};
    for (int32_t i = 0; i < 2; i++) {
      const int32_t width = CRF_TextWidth(font, texts[i], 0);
      Scene_Write_Capture_Text(next(), 0, i, 0, 0, w * (9 + 11 * i) / 40, h * (37 - 25 * i) / 50, 0, width, s / 16, i ? 0xFFFFFFFF : 0xFF102040);
    }
  )
  SHOW(
    TPD_Pipeline *const sprites = TPD_BuildSpriteDrawMode(1, 0xFFFFFFFF, 0, 0);
    TPD_Pipeline *const faint = TPD_BuildSpriteDrawMode(0x41, 0xFFFFFFFF, 0, 0x80FFFFFF);
    const auto star = [](int32_t x, int32_t y, int32_t points, int32_t r, uint32_t colour) {
      BRSL_Circle(x, y, r * 5 / 4, 0xFFFFFF, 0);
      for (int32_t i = 0; i < points; i++) {
        const double turn = i * 6.2831853 / points - 1.5707963;
        const double width = r * 0.45;
        BRSL_Tri(x + int32_t(r * std::cos(turn)), y + int32_t(r * std::sin(turn)), x - int32_t(width * std::sin(turn)),
                 y + int32_t(width * std::cos(turn)), x + int32_t(width * std::sin(turn)),
                 y - int32_t(width * std::cos(turn)), colour, 0);
      }
    };
    const auto draw = [&](const Scene_Record &record) {
      const Scene_Vertex &a = record.vertices[0];
      const Scene_Vertex &b = record.vertices[1];
      switch (record.code) {
        case SCENE_DOT: BRSL_Dot(a.x, a.y, a.colour, record.flags); break;
        case SCENE_LINE: BRSL_WriteLine(a.x, a.y, b.x, b.y, a.colour, record.flags); break;
        case SCENE_SPRITE:
        case SCENE_IMAGE:
        case SCENE_IMAGE_BB: BRSL_DrawTexture(images[record.image], a.x, a.y, sprites); break;
        case SCENE_IMAGE_ALPHA: BRSL_DrawTexture(images[record.image], a.x, a.y, faint); break;
        case SCENE_MAP: BRSL_QuadT(coast, a.x, a.y, 0, 0, record.right, a.y, 287, 0, record.right, record.bottom, 287, 431,
                                   a.x, record.bottom, 0, 431, sprites); break;
        case SCENE_SHAPE: star(a.x, a.y, record.shape[0], record.shape[1], a.colour); break;
        case SCENE_TEXT: CRF_Draw(font, texts[record.hostB], 0, a.x, a.y, a.colour); break;
      }
    };
  )
  // The camera sees the middle of the page; of what it misses only the bounding boxes are drawn.
  SHOW(
    BRSL_Box(0, 0, w, h, 0x404858, BRSL_FILLED | DRAW_MULT);
    BRSL_SetBufferViewPort(w / 5, h / 6, w * 5 / 6, h * 5 / 6);
    std::vector<const Scene_Record *> missed;
    for (const Scene_Record &record : scene) {
      if (Scene_Render_Check_Object_Visible(&record, w / 5, h / 6)) {
        draw(record);
      } else {
        missed.push_back(&record);
      }
    }
    BRSL_SetBufferViewPort(0, 0, w, h);
    for (const Scene_Record *record : missed) {
      BRSL_Box(record->left, record->top, record->right - 1, record->bottom - 1, 0xC0C8D8, BRSL_OUTLINE);
    }
    BRSL_Box(w / 5, h / 6, w * 5 / 6 - 1, h * 5 / 6 - 1, 0xFFFFFF, BRSL_OUTLINE);
    TPD_Free(sprites);
    TPD_Free(faint);
  )
}

}  // namespace brisal::tools
