#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "docs/pictures/picture.h"
#include "tools/gallery/pictures.h"

namespace brisal::docs {

namespace {

struct Point {
  float x, y;
};

// The corners of a star, its points outside.
std::vector<Point> Star(int32_t points, float inner, float outer) {
  std::vector<Point> star;
  for (int32_t i = 0; i < points * 2; i++) {
    const float turn = 3.14159265f * float(i) / float(points);
    const float radius = i % 2 ? inner : outer;
    star.push_back({60 + 1.25f * radius * std::sin(turn), 46 - radius * std::cos(turn)});
  }
  return star;
}

void Hexagon(uint32_t centre) {
  for (int32_t i = 0; i < 6; i++) {
    static constexpr uint32_t kRim[] = {0xF84040, 0xF8E040, 0x40E060, 0x40D8F0, 0x5050F8, 0xE050E0};
    const auto x = [](int32_t k) { return int32_t(60 + 50 * std::cos(k * 1.0472)); };
    const auto y = [](int32_t k) { return int32_t(45 + 40 * std::sin(k * 1.0472)); };
    BRSL_TriG(60, 45, centre, x(i), y(i), kRim[i], x(i + 1), y(i + 1), kRim[(i + 1) % 6], 0);
  }
}

constexpr Picture kPictures[] = {
    {"BRSL_Tri",
     [](BRSL_SurfaceDesc *) {
       BRSL_Tri(44, 8, 8, 80, 78, 80, 0x60A8F0, 0);
       BRSL_Tri(78, 20, 40, 80, 114, 80, 0xF8C860, DRAW_HALF);
     }},
    {"BRSL_Quad",
     [](BRSL_SurfaceDesc *) {
       BRSL_Quad(60, 8, 106, 28, 60, 48, 14, 28, 0xF0D0A0, 0);
       BRSL_Quad(14, 28, 60, 48, 60, 86, 14, 66, 0xC07850, 0);
       BRSL_Quad(60, 48, 106, 28, 106, 66, 60, 86, 0x804038, 0);
     }},
    {"BRSL_DrawGouraudPoly",
     [](BRSL_SurfaceDesc *) {
       BRSL_QuadSetGouraud(0xF85050, 0xF8E050, 0x40D080, 0x5060F0);
       BRSL_Quad(60, 6, 114, 45, 60, 84, 6, 45, 0, 0);
       BRSL_DrawGouraudPoly(4, DRAW_SOLID);
     }},
    {"BRSL_TriG", [](BRSL_SurfaceDesc *) { Hexagon(0xFFFFFF); }},
    {"BRSL_QuadG",
     [](BRSL_SurfaceDesc *) {
       BRSL_QuadG(20, 8, 0xF06040, 110, 20, 0xF8D860, 98, 82, 0x3868E0, 8, 70, 0x30B890,
                  DRAW_SOLID);
     }},
    {"BRSL_DrawSpansEdges",
     [](BRSL_SurfaceDesc *) {
       const tools::Surface coast = TextureOf(tools::Coast());
       BRSL_SetSrcBuffer(coast->address, coast->pitch, coast->format);
       struct {
         BRSL_TexturedSpans head;
         BRSL_TexturedSpan spans[kHeight];
       } list;
       for (int32_t i = 0; i < 5; i++) {
         const int32_t r = 40 - i * 8;
         const BRSL_VertexBuffer corners = {{60, 60 + r, 60 + r / 2, 60 - r / 2, 60 - r},
                                            {45 - r, 45 - r / 4, 45 + r, 45 + r, 45 - r / 4},
                                            {},
                                            {}};
         BRSL_SpanBufferCollisionPolygon(&corners, 5, &list.head, 0);
         BRSL_DrawSpansEdges(&list.head);
       }
     }},
    {"BRSL_Draw_Shape_Span_Buffer",
     [](BRSL_SurfaceDesc *) {
       std::array<int32_t, kHeight + 1> rows{};
       std::array<std::byte, 12 * 1000> nodes{};
       rows[0] = 12;
       Shape_Set_Buffers(rows.data(), nodes.data());
       for (const auto &star : {Star(7, 20, 42), Star(7, 8, 30)}) {
         for (size_t i = 0; i < star.size(); i++) {
           const Point a = star[i], b = star[(i + 1) % star.size()];
           Shape_BufferEdge(a.x, a.y, b.x, b.y, 0, kHeight);
         }
       }
       BRSL_Draw_Shape_Span_Buffer(rows.data() + 1, nullptr, 0xF8C860, DRAW_SOLID);
       Shape_Set_Buffers(nullptr, nullptr);
     }},
};

}  // namespace

std::span<const Picture> PolygonPictures() { return kPictures; }

}  // namespace brisal::docs
