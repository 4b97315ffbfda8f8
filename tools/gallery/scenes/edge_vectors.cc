#include "tools/gallery/scenes/scenes.h"

#include <algorithm>
#include <cmath>

namespace brisal::tools {

namespace {

// Red, green and blue in turn around a circle.
uint32_t Hue(double turn) {
  uint32_t colour = 0;
  for (const double shift : {0.0, 4.18879, 2.0944}) {
    colour = colour << 8 | uint32_t(std::lround(80 + 75 * std::cos(turn - shift)));
  }
  return colour;
}

}  // namespace

void DrawEdgeVectors(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);

  // A room of mirrors, clockwise, so that its normals point inwards.
  SHOW(
    const int32_t n = 9;
    Scene_EdgeVectors walls[n];
    float px[n + 1];
    float py[n + 1];
    for (int32_t i = 0; i <= n; i++) {
      const double r = s * (0.44 - i % n * 4 % 9 * 0.012);
      px[i] = float(w / 2.0 + 1.2 * r * std::cos(i % n * 0.698132));
      py[i] = float(h / 2.0 + r * std::sin(i % n * 0.698132));
    }
    for (int32_t i = 0; i < n; i++) Scene_Poke_Edge_Vectors(&walls[i], px[i], py[i], px[i + 1], py[i + 1]);
  )
  SHOW(
    BRSL_Box(0, 0, w, h, 0x283040, BRSL_FILLED | DRAW_MULT);
    float x = w / 2.0f - s * 0.2f;
    float y = h / 2.0f;
    float dx = 0.94f;
    float dy = 0.34f;
    for (int32_t bounce = 0; bounce < 70; bounce++) {
      float way = 1e9f;
      const Scene_EdgeVectors *hit = walls;
      for (int32_t i = 0; i < n; i++) {
        const float towards = dx * walls[i].negatedX + dy * walls[i].negatedY;
        const float gap = (x - px[i]) * walls[i].normalX + (y - py[i]) * walls[i].normalY;
        if (towards > 0 && gap / towards < way) {
          way = gap / towards;
          hit = &walls[i];
        }
      }
      way = std::max(way - 0.5f, 0.0f);
      BRSL_WriteLine(int32_t(x), int32_t(y), int32_t(x + dx * way), int32_t(y + dy * way), Hue(bounce * 0.07), DRAW_ADD);
      x += dx * way;
      y += dy * way;
      const float speed = dx * hit->normalX + dy * hit->normalY;
      dx -= 2 * speed * hit->normalX;
      dy -= 2 * speed * hit->normalY;
    }
  )
  SHOW(
    for (int32_t i = 0; i < n; i++) {
      BRSL_WriteLine(int32_t(px[i]), int32_t(py[i]), int32_t(px[i + 1]), int32_t(py[i + 1]), 0xE8F0FF, 0);
      const float middleX = px[i] + walls[i].dx / 2;
      const float middleY = py[i] + walls[i].dy / 2;
      const int32_t tipX = int32_t(middleX + walls[i].normalX * s * 0.07f);
      const int32_t tipY = int32_t(middleY + walls[i].normalY * s * 0.07f);
      BRSL_WriteLine(int32_t(middleX), int32_t(middleY), tipX, tipY, 0xFFD040, 0);
      BRSL_Circle(tipX, tipY, s / 120, 0xFFD040, 0);
      BRSL_Circle(int32_t(px[i]), int32_t(py[i]), s / 80, 0xE8F0FF, 0);
    }
  )
}

}  // namespace brisal::tools
