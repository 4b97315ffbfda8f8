// A town at night, captured once as drawing commands and rendered three times at other offsets.
//
//     scene [FILE.ppm]
#include <brisal/brisal.h>

#include <cstddef>
#include <vector>

#include "ppm.h"

namespace {

constexpr int32_t kWidth = 480, kHeight = 324;
constexpr int32_t kViews = 3;
constexpr int32_t kViewHeight = kHeight / kViews;
constexpr int32_t kTown = 900;  // the scene's width
constexpr int32_t kStreet = 92;

class Scene {
 public:
  // A new command, to be filled by one of the writers.
  Scene_Record *Next() { return &records_.emplace_back(); }

  // Draws what shows in the viewport, whose left side is scene column dx.
  void Render(int32_t dx) const {
    for (const Scene_Record &record : records_) {
      if (Scene_Render_Check_Object_Visible(&record, dx, 0)) Draw(record, dx);
    }
  }

 private:
  static void Draw(const Scene_Record &record, int32_t dx) {
    switch (record.code) {
      case SCENE_BOX: return Scene_Render_Captured_Box(&record, dx, 0);
      case SCENE_SHADE_BOX: return Scene_Render_Captured_ShadeBox(&record, dx, 0);
      case SCENE_CIRCLE: return Scene_Render_Captured_Circle(&record, dx, 0);
      case SCENE_TRI: return Scene_Render_Captured_Polygon(&record, dx, 0);
      case SCENE_QUAD_G: return Scene_Render_Captured_PolygonG(&record, dx, 0);
    }
  }

  std::vector<Scene_Record> records_;
};

void AddSky(Scene &scene) {
  Scene_Write_Capture_ShadeBox(scene.Next(), DRAW_SOLID, 0, 0, kTown, kStreet, 0, 0x101838,
                               0x281840, 0x804860, 0x305078);
  for (int32_t r = 44; r >= 16; r -= 4) {
    Scene_Write_Capture_Circle(scene.Next(), BRSL_FILLED | DRAW_ADD, 400, 34, 0, r, 0x0A0A08);
  }
  Scene_Write_Capture_Circle(scene.Next(), BRSL_FILLED, 400, 34, 0, 14, 0xF8F0D0);
}

void AddHouse(Scene &scene, int32_t x, int32_t width, int32_t top, int32_t number) {
  const uint32_t wall = 0x1C2038 + static_cast<uint32_t>(number % 4) * 0x080406;
  Scene_Write_Capture_Box(scene.Next(), BRSL_FILLED, x, top, x + width, kStreet, 0, wall);
  if (number % 3 != 0) {
    Scene_Write_Capture_Tri(scene.Next(), 0, x - 3, top, x + width / 2, top - 14, x + width + 3,
                            top, 0, 0x502838, 2);
  }
  int32_t window = number;
  for (int32_t y = top + 5; y + 8 < kStreet; y += 12) {
    for (int32_t left = x + 4; left + 6 < x + width; left += 10) {
      const bool lit = window++ * 7 % 5 < 2;
      Scene_Write_Capture_Box(scene.Next(), BRSL_FILLED, left, y, left + 5, y + 7, 0,
                              lit ? 0xF8D070 : 0x101420);
    }
  }
}

void AddLamp(Scene &scene, int32_t x) {
  Scene_Write_Capture_Box(scene.Next(), BRSL_FILLED, x, 68, x + 2, kViewHeight - 8, 0, 0x080A10);
  Scene_Write_Capture_QuadG(scene.Next(), DRAW_ADD, x, 66, 0x806838, x + 2, 66, 0x806838, x + 24,
                            kViewHeight - 6, 0x080400, x - 22, kViewHeight - 6, 0x080400, 0, 2);
  Scene_Write_Capture_Circle(scene.Next(), BRSL_FILLED, x + 1, 66, 0, 4, 0xFFF0B0);
}

Scene Town() {
  Scene scene;
  AddSky(scene);
  int32_t number = 0;
  for (int32_t x = 6; x < kTown; number++) {
    const int32_t width = 28 + number * 13 % 4 * 10;
    AddHouse(scene, x, width, 26 + number * 29 % 43, number);
    x += width + 5;
  }
  Scene_Write_Capture_ShadeBox(scene.Next(), DRAW_SOLID, 0, kStreet, kTown, kViewHeight, 0,
                               0x282838, 0x282838, 0x101018, 0x101018);
  for (int32_t x = 50; x < kTown; x += 110) AddLamp(scene, x);
  return scene;
}

}  // namespace

int main(int argc, char **argv) {
  BRSL_Init_Lib();
  std::vector<uint8_t> pixels(kWidth * kHeight * 3);
  BRSL_SetBuffer(pixels.data(), kWidth * 3, BRSL_FORMAT_RGB);

  const Scene town = Town();
  for (int32_t view = 0; view < kViews; view++) {
    const int32_t top = view * kViewHeight;
    BRSL_SetBufferViewPort(0, top, kWidth, top + kViewHeight - 3);
    town.Render((kTown - kWidth) * view / (kViews - 1));
  }
  return SavePpm(argc > 1 ? argv[1] : "scene.ppm", pixels.data(), kWidth, kHeight);
}
