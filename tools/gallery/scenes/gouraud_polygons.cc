#include "tools/gallery/scenes/scenes.h"

#include <algorithm>
#include <cmath>

namespace brisal::tools {

namespace {

constexpr double kTurn = 6.28318531;

uint32_t Channel(double level) {
  return static_cast<uint32_t>(std::clamp(level, 0.0, 1.0) * 255);
}

// A colour of the wheel, 0 to 1 round it, dimmed to light and with gloss on top.
uint32_t Hue(double turn, double light, double gloss) {
  const double t = kTurn * turn;
  return Channel((0.55 + 0.45 * std::cos(t)) * light + gloss) << 16 |
         Channel((0.50 + 0.45 * std::cos(t - kTurn / 3)) * light + gloss) << 8 |
         Channel((0.55 + 0.45 * std::cos(t + kTurn / 3)) * light + gloss);
}

struct Corner {
  int32_t x, y;
  uint32_t colour;
};

// A point of a lit ball: row 0 to 24 from the upper pole down, column 0 to 24 across the near side.
Corner OnBall(double cx, double cy, double r, int32_t row, int32_t column) {
  const double down = kTurn / 2 * row / 24, across = kTurn / 2 * column / 24;
  const double x = -std::sin(down) * std::cos(across);
  const double y = -std::cos(down);
  const double z = std::sin(down) * std::sin(across);
  const double facing = std::max(0.0, 0.50 * x - 0.55 * y + 0.67 * z);
  const uint32_t colour =
      Hue(column / 12.0 + row / 24.0, 0.22 + 0.85 * facing, 0.85 * std::pow(facing, 40));
  return {static_cast<int32_t>(cx + r * x), static_cast<int32_t>(cy + r * y), colour};
}

}  // namespace

void DrawGouraudPolygons(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);

  SHOW(
    const double cx = w * 0.36;
    const double cy = h * 0.5;
    for (int32_t i = 0; i < 24; i++) {
      for (int32_t j = 0; j < 24; j++) {
        const Corner a = OnBall(cx, cy, s * 0.4, i, j);
        const Corner b = OnBall(cx, cy, s * 0.4, i, j + 1);
        const Corner c = OnBall(cx, cy, s * 0.4, i + 1, j + 1);
        const Corner d = OnBall(cx, cy, s * 0.4, i + 1, j);
        BRSL_QuadG(a.x, a.y, a.colour, b.x, b.y, b.colour, c.x, c.y, c.colour, d.x, d.y, d.colour,
                   0);
      }
    }
  )
  SHOW(
    const int32_t x = w * 4 / 5;
    const int32_t y = h * 3 / 10;
    for (int32_t i = 0; i < 12; i++) {
      const double a = kTurn * i / 12;
      const double b = kTurn * (i + 1) / 12;
      BRSL_TriG(x, y, 0xFFFFFF,
                x + int32_t(s * 0.17 * std::cos(a)), y + int32_t(s * 0.17 * std::sin(a)), Hue(a / kTurn, 1, 0),
                x + int32_t(s * 0.17 * std::cos(b)), y + int32_t(s * 0.17 * std::sin(b)), Hue(b / kTurn, 1, 0),
                0);
    }
  )
  SHOW(
    BRSL_QuadG(x, h * 11 / 20, 0x4020A0, x + w / 7, h * 7 / 10, 0xE04080, x, h * 17 / 20, 0xF0A040,
               x - w / 7, h * 7 / 10, 0x2060C0, DRAW_HALF);
    BRSL_QuadSetGouraud(0x000000, 0x604020, 0x000000, 0x104060);
    BRSL_DrawGouraudPoly(4, DRAW_ADD);
  )
}

}  // namespace brisal::tools
