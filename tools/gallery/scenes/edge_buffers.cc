#include "tools/gallery/scenes/scenes.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace brisal::tools {

void DrawEdgeBuffers(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w, h);

  // Rows from 0 to h, and nodes for more crossings than any of the shapes has.
  SHOW(
    std::vector<int32_t> rows(h + 1);
    std::vector<uint8_t> nodes(12 * 64 * (h + 1));
    Shape_Set_Buffers(rows.data(), nodes.data());
    const auto star = [&](double x, double y, double r, int32_t points, int32_t step, double turn) {
      rows[0] = 12;
      for (int32_t i = 0; i < points; i++) {
        const double from = turn + i * step * 6.2831853 / points;
        const double to = from + step * 6.2831853 / points;
        Shape_BufferEdge(float(x + r * std::cos(from)), float(y + r * std::sin(from)),
                         float(x + r * std::cos(to)), float(y + r * std::sin(to)), 0, h);
      }
    };
  )
  SHOW(
    BRSL_SetInkAlpha(200);
    const uint32_t colours[] = {0xF8C840, 0xF06048, 0x40B0D8, 0x9060D0};
    const int32_t points[] = {5, 7, 8, 12};
    for (int32_t i = 0; i < 4; i++) {
      star(w * (2 * i + 1) / 8.0, h * 0.2, s * 0.15, points[i], points[i] / 2 - i / 2, -1.5707963);
      BRSL_Draw_Shape_Span_Buffer(rows.data() + 1, nullptr, colours[i], i % 2 ? DRAW_SOLID : DRAW_ALPHA);
    }
  )
  // One outline of many loops: where it winds around a place an even number of times there is a hole.
  SHOW(
    rows[0] = 12;
    float x = w * 0.27f + s * 0.24f;
    float y = h * 0.68f;
    for (int32_t i = 1; i <= 400; i++) {
      const double turn = i * 0.01570796;
      const float nextX = float(w * 0.27 + s * (0.16 * std::cos(turn) + 0.08 * std::cos(turn * 11)));
      const float nextY = float(h * 0.68 + s * (0.16 * std::sin(turn) + 0.08 * std::sin(turn * 11)));
      Shape_BufferEdge(x, y, nextX, nextY, 0, h);
      x = nextX;
      y = nextY;
    }
    BRSL_Draw_Shape_Span_Buffer(rows.data() + 1, nullptr, 0xF0F4FF, DRAW_ALPHA);
  )
  // A list of the spans colours each row on its own; crossings added by hand make the stripes below.
  SHOW(
    star(w * 0.73, h * 0.68, s * 0.27, 19, 8, 0);
    std::vector<BRSL_CollisionSpan> spans(32 * h + 1);
    BRSL_CollisionSpans *const list = reinterpret_cast<BRSL_CollisionSpans *>(spans.data());
    const int32_t count = CreateSpanCollision_ShapeSpanBuffer(list, 0, 0, w, h, rows.data(), nullptr);
    for (int32_t i = 1; i <= count; i++) {
      const int32_t level = std::clamp((spans[i].y - h * 2 / 5) * 255 / (s * 3 / 5 + 1), 0, 255);
      const uint32_t colour = uint32_t(255 << 16 | (230 - level * 3 / 4) << 8 | (60 + level / 2));
      BRSL_HoriGouraudStrip(spans[i].left, colour, spans[i].right, colour - 0x400020, spans[i].y);
    }
    rows[0] = 12;
    for (int32_t row = h * 24 / 25; row < h; row++) {
      for (int32_t i = 0; i < 30; i++) Shape_AddVert(float(w * (i * 7 % 30) / 30.0 + row - h * 0.98), row);
    }
    BRSL_Draw_Shape_Span_Buffer(rows.data() + 1, nullptr, 0xF8C840, DRAW_ALPHA);
  )
}

}  // namespace brisal::tools
