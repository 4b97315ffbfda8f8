#include "tools/animate/town.h"

#include <algorithm>
#include <cmath>

#include "tools/gallery/pictures.h"

namespace brisal::tools {

namespace {

constexpr int32_t kMountains = 6;
constexpr int32_t kHouses = 30;
constexpr int32_t kLamps = 9;
constexpr int32_t kStreetViews = 2;  // how many views the street is long
constexpr int32_t kStripTexels = 127;

Scene_Record *Next(std::vector<Scene_Record> &layer) { return &layer.emplace_back(); }

}  // namespace

Town::Town(int32_t width, int32_t horizon, int32_t format)
    : width_(width), horizon_(horizon), stones_(Stones(), format) {
  CaptureMountains();
  for (int32_t i = 0; i < kHouses; i++) CaptureHouse(kStreetViews * width * i / kHouses, i);
  for (int32_t i = 0; i < kLamps; i++) CaptureLamp(kStreetViews * width * i / kLamps + Units(8));
  CaptureStreet();
}

int32_t Town::Units(double hundredths) const {
  return static_cast<int32_t>(std::lround(hundredths * horizon_ / 100));
}

void Town::CaptureMountains() {
  for (int32_t i = 0; i < kMountains; i++) {
    const int32_t x = width_ * i / kMountains;
    const int32_t reach = width_ * 2 / kMountains;
    const int32_t y = Units(48 + i * 5 % 6 * 5);
    Scene_Write_Capture_TriG(Next(mountains_), 0, x, y, 0xE8A8A0, x, horizon_, 0x503860, x - reach,
                             horizon_, 0x785078, 0, 2);
    Scene_Write_Capture_TriG(Next(mountains_), 0, x, y, 0x684868, x + reach, horizon_, 0x302848, x,
                             horizon_, 0x3C3050, 0, 2);
  }
}

void Town::CaptureHouse(int32_t x, int32_t number) {
  const int32_t width = Units(10 + number * 7 % 5);
  const int32_t top = Units(86 - number * 11 % 17 * (0.8 + number % 3));
  const uint32_t wall = 0x141A2Cu + static_cast<uint32_t>(number % 3) * 0x060404;
  Scene_Write_Capture_Box(Next(street_), BRSL_FILLED, x, top, x + width, horizon_, 0, wall);
  Scene_Write_Capture_Tri(Next(street_), 0, x - Units(1), top, x + width / 2, top - Units(5),
                          x + width + Units(1), top, 0, 0x502838, 2);
  for (int32_t k = 0; k < 36; k++) {
    const int32_t left = x + width * (1 + k % 3 * 4) / 12;
    const int32_t floor = k / 3;
    const int32_t y = top + Units(3 + floor * 5);
    if ((number * 5 + k * 3) % 7 > 3 || y > Units(90)) continue;
    Scene_Write_Capture_Box(Next(street_), BRSL_FILLED, left, y, left + width / 6, y + Units(2.5),
                            0, k % 4 ? 0xF8C860 : 0xC89048);
  }
}

void Town::CaptureLamp(int32_t x) {
  const int32_t top = Units(78);
  Scene_Write_Capture_GouraudStripV(Next(street_), 0, top, 0xA09080, horizon_, 0x181420, x, 0);
  Scene_Write_Capture_QuadG(Next(street_), DRAW_ADD, x, top, 0x907038, x + 1, top, 0x907038,
                            x + Units(9), horizon_, 0, x - Units(9), horizon_, 0, 0, 2);
  for (int32_t r = 1; r < 5; r++) {
    Scene_Write_Capture_Circle(Next(street_), DRAW_ADD, x, top, 0, Units(r), 0x302818);
  }
}

void Town::CaptureStreet() {
  const int32_t rows = std::max(Units(3), 1);
  for (int32_t row = 0; row < rows; row++) {
    const int32_t v = row * kStripTexels / rows / 2 * 65536;
    for (int32_t x = 0; x < kStreetViews * width_; x += kStripTexels + 1) {
      Scene_Write_Capture_TextureStripH(Next(street_), 0, x, 0, v, x + kStripTexels + 1,
                                        kStripTexels * 65536, v, horizon_ - rows + row, 0, 0);
    }
  }
}

void Town::Draw(double phase) const {
  DrawLayer(mountains_, width_, phase);
  DrawLayer(street_, kStreetViews * width_, phase);
}

void Town::DrawLayer(const Records &layer, int32_t period, double phase) const {
  const int32_t offset = static_cast<int32_t>(std::lround(phase * period)) % period;
  for (const int32_t lap : {-1, 0, 1}) DrawFrom(layer, offset + lap * period);
}

void Town::DrawFrom(const Records &layer, int32_t dx) const {
  for (const Scene_Record &record : layer) {
    if (!Scene_Render_Check_Object_Visible(&record, dx, 0)) continue;
    switch (record.code) {
      case SCENE_BOX: Scene_Render_Captured_Box(&record, dx, 0); break;
      case SCENE_CIRCLE: Scene_Render_Captured_Circle(&record, dx, 0); break;
      case SCENE_TRI: Scene_Render_Captured_Polygon(&record, dx, 0); break;
      case SCENE_TRI_G:
      case SCENE_QUAD_G: Scene_Render_Captured_PolygonG(&record, dx, 0); break;
      case SCENE_GOURAUD_STRIP_V: Scene_Render_Captured_GouraudStripV(&record, dx, 0); break;
      case SCENE_TEXTURE_STRIP_H:
        Scene_Render_Captured_TextureStripH(&record, dx, 0, stones_);
        break;
      default: break;
    }
  }
}

}  // namespace brisal::tools
