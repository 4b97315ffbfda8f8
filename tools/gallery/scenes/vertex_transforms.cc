#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace brisal::tools {

void DrawVertexTransforms(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);
  const Surface crate(Crate(), stage.Format());

  SHOW(
    struct Point { float x; float y; float z; };
    struct Shown { float x; float y; float z; float screenX; float screenY; };
    const BRSL_Transform camera = {0, 0, 0, -6, 0, 0, 0, 1, 1, 1, 0, 0, s * 0.9f, s * 0.9f};
    const auto line = [&](const Shown &a, const Shown &b, int32_t cx, int32_t cy, uint32_t colour, int32_t mode) {
      BRSL_WriteLine(std::clamp(cx + int32_t(a.screenX), 0, w - 1), std::clamp(cy + int32_t(a.screenY), 0, h - 1),
                     std::clamp(cx + int32_t(b.screenX), 0, w - 1), std::clamp(cy + int32_t(b.screenY), 0, h - 1),
                     colour, mode);
    };
    BRSL_Box(0, 0, w, h, 0x384058, BRSL_FILLED | DRAW_MULT);
  )
  // A ring of 48 by 24 points seen by a camera, nearer lines brighter.
  SHOW(
    std::vector<Point> ring;
    for (int32_t i = 0; i < 48; i++) {
      for (int32_t k = 0; k < 24; k++) {
        const float around = i * 0.1308997f;
        const float r = 1.5f + 0.6f * std::cos(k * 0.2617994f);
        ring.push_back({r * std::cos(around), r * std::sin(around), 0.6f * std::sin(k * 0.2617994f)});
      }
    }
    const BRSL_Transform tilt = {0, 0, 0, 0, 58, 12, 20, 1, 1, 1, 0, 0, 0, 0};
    std::vector<Shown> seen(ring.size());
    RotateVertexListToCamera(&camera, &tilt, ring.data(), sizeof(Point), seen.data(), sizeof(Shown), int32_t(ring.size()));
    for (int32_t i = 0; i < 48; i++) {
      for (int32_t k = 0; k < 24; k++) {
        const Shown &p = seen[i * 24 + k];
        const uint32_t light = uint32_t(std::clamp((8.2f - p.z) * 42, 12.0f, 200.0f));
        const uint32_t colour = light / 3 << 16 | light * 3 / 4 << 8 | light;
        line(p, seen[i * 24 + (k + 1) % 24], w * 3 / 10, h * 2 / 5, colour, DRAW_ADD);
        line(p, seen[(i + 1) % 48 * 24 + k], w * 3 / 10, h * 2 / 5, colour, DRAW_ADD);
      }
    }
  )
  // A crate turned and projected; each side in pieces, so that the wood keeps its perspective. A side
  // is the corner at its top left and those to the right and below, seen from outside.
  SHOW(
    TPD_Pipeline *const bright = TPD_Alloc();
    TPD_Pipeline *const dim = TPD_BuildSpriteDrawMode(0, 0xFF9090A0, 0, 0);
    const BRSL_Transform box = {0, 0, 0, 6.0f, 26, 38, 8, 1, 1, 1, 1, 1, s * 0.9f, s * 0.9f};
    const Point sides[6][3] = {{{-1, -1, -1}, {1, -1, -1}, {-1, 1, -1}}, {{1, -1, 1}, {-1, -1, 1}, {1, 1, 1}},
                               {{1, -1, -1}, {1, -1, 1}, {1, 1, -1}}, {{-1, -1, 1}, {-1, -1, -1}, {-1, 1, 1}},
                               {{-1, -1, 1}, {1, -1, 1}, {-1, -1, -1}}, {{-1, 1, -1}, {1, 1, -1}, {-1, 1, 1}}};
    for (int32_t side = 0; side < 6; side++) {
      const Point (&c)[3] = sides[side];
      Point grid[81];
      Shown p[81];
      for (int32_t i = 0; i < 81; i++) {
        const float across = i % 9 / 8.0f;
        const int32_t row = i / 9;
        const float down = row / 8.0f;
        grid[i] = {c[0].x + across * (c[1].x - c[0].x) + down * (c[2].x - c[0].x),
                   c[0].y + across * (c[1].y - c[0].y) + down * (c[2].y - c[0].y),
                   c[0].z + across * (c[1].z - c[0].z) + down * (c[2].z - c[0].z)};
      }
      RotateVertexList(&box, grid, sizeof(Point), p, sizeof(Shown), 81);
      const bool faces = (p[8].screenX - p[0].screenX) * (p[72].screenY - p[0].screenY) >
                         (p[72].screenX - p[0].screenX) * (p[8].screenY - p[0].screenY);
      const auto x = [&](int32_t i) { return w * 3 / 4 + int32_t(std::lround(p[i].screenX)); };
      const auto y = [&](int32_t i) { return h * 2 / 5 + int32_t(std::lround(p[i].screenY)); };
      for (int32_t i = 0; i < 71 && faces; i++) {
        const int32_t u = i % 9 * 8;
        const int32_t v = i / 9 * 8;
        if (i % 9 == 8) continue;
        BRSL_QuadT(crate, x(i), y(i), u, v, x(i + 1), y(i + 1), u + 8, v, x(i + 10), y(i + 10), u + 8, v + 8,
                   x(i + 9), y(i + 9), u, v + 8, side / 2 == 1 ? dim : bright);
      }
    }
    TPD_Free(bright);
    TPD_Free(dim);
  )
  // From a cube to a ball, and rings of points turned in both orders.
  SHOW(
    std::vector<Point> cube;
    std::vector<Point> ball;
    for (int32_t i = 0; i < 6 * 81; i++) {
      const float a = i % 9 / 4.0f - 1;
      const float b = i / 9 % 9 / 4.0f - 1;
      const float c = i / 81 % 2 ? 1.0f : -1.0f;
      const Point p = i / 162 == 0 ? Point{a, b, c} : i / 162 == 1 ? Point{c, a, b} : Point{b, c, a};
      const float length = std::sqrt(p.x * p.x + p.y * p.y + p.z * p.z) / 1.25f;
      cube.push_back(p);
      ball.push_back({p.x / length, p.y / length, p.z / length});
    }
    for (int32_t step = 0; step < 6; step++) {
      std::vector<Point> between(cube.size());
      std::vector<Shown> dots(cube.size());
      const int32_t n = int32_t(cube.size());
      LerpVertexList(cube.data(), sizeof(Point), ball.data(), sizeof(Point), between.data(), sizeof(Point), n, step / 5.0f);
      if (step % 2) {
        RotateVertexListXYZ(between.data(), sizeof(Point), between.data(), sizeof(Point), 0, 0, 0, 25, step * 12.0f, 0, n);
      } else {
        RotateVertexListZYX(between.data(), sizeof(Point), between.data(), sizeof(Point), 0, 0, 0, 25, step * 12.0f, 0, n);
      }
      BRSL_Transform place = {0, 0, 0, 14, 0, 0, 0, 1, 1, 1, 0, 1, s * 0.9f, s * 0.9f};
      RotateVertexList(&place, between.data(), sizeof(Point), dots.data(), sizeof(Shown), n);
      for (const Shown &p : dots) {
        const int32_t x = w * (2 * step + 1) / 12 + int32_t(p.screenX);
        const int32_t y = h * 5 / 6 + int32_t(p.screenY);
        const int32_t r = p.z < 14 ? s / 320 : 0;
        BRSL_Box(x - r, y - r, x + 1, y + 1, p.z < 14 ? 0xFFD060 : 0xA06838, BRSL_FILLED);
      }
    }
  )
  SHOW(
    for (int32_t i = 0; i < 22; i++) {
      const float corners[8] = {-1, -1, 1, -1, 1, 1, -1, 1};
      float turned[8];
      const float r = s * 0.085f * std::pow(0.86f, float(i));
      Rotate2DVertexList(corners, 8, turned, 8, 0, 0, i * 9.0f, r, r, 3);
      for (int32_t k = 0; k < 4; k++) {
        const int32_t m = (k + 1) % 4;
        BRSL_WriteLine(std::clamp(w - s / 8 + int32_t(turned[2 * k]), 0, w - 1), std::clamp(s / 8 + int32_t(turned[2 * k + 1]), 0, h - 1),
                       std::clamp(w - s / 8 + int32_t(turned[2 * m]), 0, w - 1), std::clamp(s / 8 + int32_t(turned[2 * m + 1]), 0, h - 1),
                       0x60FFB0 - i * 0x020804, 0);
      }
    }
  )
}

}  // namespace brisal::tools
