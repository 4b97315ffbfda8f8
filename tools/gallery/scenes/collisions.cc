#include "tools/gallery/pictures.h"
#include "tools/gallery/scenes/scenes.h"
#include "tools/gallery/surface.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace brisal::tools {

namespace {

// Room for a span list of so many entries, the head in front.
template <class Head, class Entry>
class SpanList {
 public:
  explicit SpanList(int32_t entries)
      : words_((sizeof(Head) + sizeof(Entry) * size_t(entries)) / sizeof(std::max_align_t) + 1) {}

  operator Head *() { return reinterpret_cast<Head *>(words_.data()); }
  Head *operator->() { return *this; }
  const Entry *Entries() { return reinterpret_cast<const Entry *>(static_cast<Head *>(*this) + 1); }

 private:
  std::vector<std::max_align_t> words_;
};

using PlainList = SpanList<BRSL_CollisionSpans, BRSL_CollisionSpan>;
using TexturedList = SpanList<BRSL_TexturedSpans, BRSL_TexturedSpan>;

struct Corner {
  int32_t x, y;
};

// Corner k of a square of half diagonal r that is turned.
Corner At(int32_t cx, int32_t cy, double r, double turn, int32_t k) {
  const double angle = turn + (k - 1.5) * 1.5707963;
  return {cx + int32_t(std::lround(r * std::cos(angle))), cy + int32_t(std::lround(r * std::sin(angle)))};
}

}  // namespace

void DrawCollisions(Stage &stage) {
  const int32_t w = stage.Width(), h = stage.Height();
  const int32_t s = std::min(w / 4, h / 3);
  const Surface butterfly(Butterfly(96, 0.95f), BRSL_FORMAT_A32);
  PlainList shape(2 * h + 8);
  TexturedList sprite(h + 8), second(h + 8);

  SHOW(
    TPD_Pipeline *const plain = TPD_BuildSpriteDrawMode(1, 0xFFFFFFFF, 0, 0);
    TPD_Pipeline *const red = TPD_BuildSpriteDrawMode(0x401, 0xFFFFFFFF, 0, 0);
    BRSL_SetSrcBuffer(butterfly->address, butterfly->pitch, butterfly->format);
    const auto list = [&](BRSL_TexturedSpans *spans, int32_t cx, int32_t cy, double turn) {
      BRSL_VertexBuffer corners;
      for (int32_t k = 0; k < 4; k++) {
        const Corner corner = At(cx, cy, s * 0.44, turn, k);
        corners.x[k] = corner.x;
        corners.y[k] = corner.y;
        corners.u[k] = k % 3 ? 95 : 0;
        corners.v[k] = k / 2 ? 95 : 0;
      }
      BRSL_SpanBufferCollisionPolygon(&corners, 4, spans, 0);
      return corners;
    };
    const auto fly = [&](const BRSL_VertexBuffer &c, const TPD_Pipeline *pipeline) {
      BRSL_DrawSpriteQuad(butterfly, c.x[0], c.y[0], 0, 0, c.x[1], c.y[1], 95, 0, c.x[2], c.y[2], 95, 95,
                          c.x[3], c.y[3], 0, 95, pipeline, 1);
    };
  )
  // Four shapes, each beside the wings and on them: green where nothing opaque is touched.
  SHOW(
    BRSL_Box(0, 0, w, h, 0x8090A0, BRSL_FILLED | DRAW_MULT);
    BRSL_SetInkAlpha(170);
    for (int32_t i = 0; i < 8; i++) {
      const double turn = 0.35 * i - 0.6;
      const BRSL_VertexBuffer corners = list(sprite, w * (2 * (i % 4) + 1) / 8, h * (2 * (i / 4) + 1) / 6, turn);
      fly(corners, plain);
      const double towards = i / 4 ? turn : turn + 1.5707963;
      const double way = s * (i / 4 ? 0.22 : 0.33);
      const int32_t x = w * (2 * (i % 4) + 1) / 8 + int32_t(way * std::cos(towards));
      const int32_t y = h * (2 * (i / 4) + 1) / 6 + int32_t(way * std::sin(towards));
      BRSL_VertexBuffer kite = {{x, x + s / 10, x, x - s / 10}, {y - s / 12, y, y + s / 6, y}, {}, {}};
      switch (i % 4) {
        case 0: CreateSpanCollision_Line(shape, x - s / 9, y - s / 8, x + s / 9, y + s / 4); break;
        case 1: CreateSpanCollision_Ellipse(shape, x, y, s / 14, s / 9); break;
        case 2: CreateSpanCollision_Rect(shape, x - s / 14, y - s / 14, x + s / 14, y + s / 7); break;
        case 3: CreateSpanCollision_Polygon(&kite, 4, shape); break;
      }
      const bool touches = BRSL_CompareFilledToTexturedSpans(shape, sprite);
      for (int32_t k = 0; k < shape->count - 1; k++) {
        const BRSL_CollisionSpan &span = shape.Entries()[k];
        BRSL_Box(span.left, span.y, span.right, span.y + 1, touches ? 0xFF3020 : 0x20E080, BRSL_FILLED | DRAW_ALPHA);
      }
      BRSL_DrawSpansEdges(sprite);
    }
  )
  SHOW(
    for (int32_t i = 0; i < 3; i++) {
      const int32_t x = w * (2 * i + 1) / 6;
      const int32_t gap = s * (40 - 7 * i) / 100;
      const BRSL_VertexBuffer left = list(sprite, x - gap, h * 5 / 6, 0.5 + 0.3 * i);
      const BRSL_VertexBuffer right = list(second, x + gap, h * 5 / 6, -0.2 - 0.4 * i);
      const bool touch = BRSL_CompareTexturedSpans(sprite, second);
      TPD_UpdateSpriteDrawMode(red, 1, touch ? 0xFFFF6050 : 0xFFFFFFFF, 0, 0);
      fly(left, red);
      fly(right, red);
    }
    TPD_Free(plain);
    TPD_Free(red);
  )
}

}  // namespace brisal::tools
