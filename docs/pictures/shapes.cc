#include <cmath>

#include "docs/pictures/picture.h"

namespace brisal::docs {

namespace {

constexpr uint32_t kInk[] = {0xF08050, 0xF8C860, 0x70C890, 0x60A8F0, 0xB080E0, 0xE86880};

uint32_t Packed(uint32_t colour) { return RGBForBuffer(colour, 0); }

// A field of stars in the shape of a spiral.
template <class Plot>
void Spiral(int32_t arms, Plot plot) {
  for (int32_t i = 0; i < 1100; i++) {
    const double out = i / 1100.0;
    const double turn = i % arms * 6.2832 / arms + 4.5 * std::sqrt(out) + i * 7919 % 89 / 120.0;
    plot(int32_t(60 + 56 * out * std::cos(turn)), int32_t(45 + 38 * out * std::sin(turn)), i);
  }
}

template <class Draw>
void Fan(Draw draw) {
  for (int32_t i = 0; i < 12; i++) {
    const double turn = i * 0.2856;
    draw(int32_t(60 + 54 * std::cos(turn)), int32_t(82 - 74 * std::sin(turn)), kInk[i % 6]);
  }
}

constexpr Picture kPictures[] = {
    {"BRSL_DrawPixel",
     [](BRSL_SurfaceDesc *) {
       for (int32_t y = 8; y < 82; y++) {
         for (int32_t x = 10; x < 110; x++) {
           const double wave = std::sin(x * 0.11) + std::sin(y * 0.13) + std::sin((x + y) * 0.08);
           const auto level = [&](double turn) {
             return uint32_t(128 + 127 * std::sin(wave + turn));
           };
           BRSL_DrawPixel(x, y, Packed(level(0) << 16 | level(1) << 8 | level(3)), DRAW_SOLID);
         }
       }
     }},
    {"BRSL_Dot",
     [](BRSL_SurfaceDesc *) {
       Spiral(2, [](int32_t x, int32_t y, int32_t i) {
         BRSL_Dot(x, y, i < 260 ? 0xA08040 : 0x506090, DRAW_ADD);
       });
     }},
    {"BRSL_FastDot",
     [](BRSL_SurfaceDesc *) {
       Spiral(5,
              [](int32_t x, int32_t y, int32_t i) { BRSL_FastDot(x, y, kInk[i % 5], DRAW_SOLID); });
     }},
    {"BRSL_DrawStrip",
     [](BRSL_SurfaceDesc *) {
       for (int32_t y = 6; y < 84; y++) {
         const int32_t reach = int32_t(38 + 14 * std::sin(y * 0.16));
         BRSL_DrawStrip(y, 60 - reach, 60 + reach, Packed(kInk[y / 14]), DRAW_SOLID);
       }
     }},
    {"BRSL_Box",
     [](BRSL_SurfaceDesc *) {
       BRSL_Box(12, 10, 72, 58, kInk[3], BRSL_FILLED);
       BRSL_Box(44, 30, 108, 78, kInk[1], BRSL_FILLED | DRAW_HALF);
       BRSL_Box(40, 26, 111, 81, 0xFFFFFF, BRSL_OUTLINE);
     }},
    {"BRSL_ShadeBox",
     [](BRSL_SurfaceDesc *) {
       BRSL_ShadeBox(12, 10, 108, 80, 0xF85040, 0xF8E060, 0x3050E0, 0x30C890, DRAW_SOLID);
     }},
    {"BRSL_Circle",
     [](BRSL_SurfaceDesc *) {
       BRSL_Circle(60, 32, 27, 0xC02020, BRSL_FILLED | DRAW_ADD);
       BRSL_Circle(43, 56, 27, 0x20C020, BRSL_FILLED | DRAW_ADD);
       BRSL_Circle(77, 56, 27, 0x2020C0, BRSL_FILLED | DRAW_ADD);
       BRSL_Circle(60, 47, 43, 0xFFFFFF, BRSL_OUTLINE);
     }},
    {"BRSL_Ellipse",
     [](BRSL_SurfaceDesc *) {
       for (int32_t i = 0; i < 6; i++) {
         BRSL_Ellipse(60, 46, 56 - i * 9, 12 + i * 6, kInk[i], BRSL_FILLED | DRAW_HALF);
       }
       BRSL_Ellipse(60, 46, 57, 43, 0xFFFFFF, BRSL_OUTLINE);
     }},
    {"BRSL_OpenCircle",
     [](BRSL_SurfaceDesc *) {
       for (int32_t r = 4; r < 44; r += 3) BRSL_OpenCircle(60, 45, r, kInk[r / 3 % 6], 0);
     }},
    {"BRSL_OpenEllipse",
     [](BRSL_SurfaceDesc *) {
       for (int32_t i = 0; i < 15; i++)
         BRSL_OpenEllipse(60, 45, 3 + i * 4, 43 - i * 3, kInk[i % 6], 0);
     }},
    {"BRSL_OpenEllipseFX",
     [](BRSL_SurfaceDesc *) {
       for (int32_t i = 0; i < 24; i++) {
         const int32_t x = int32_t(60 + 26 * std::cos(i * 0.2618));
         const int32_t y = int32_t(45 + 16 * std::sin(i * 0.2618));
         BRSL_OpenEllipseFX(x, y, 32, 24, 0x503830, DRAW_ADD, 0);
       }
     }},
    {"BRSL_FilledEllipse",
     [](BRSL_SurfaceDesc *) {
       BRSL_FilledEllipse(20, 24, 46, 34, Packed(kInk[4]), 0);
       BRSL_FilledEllipse(104, 70, 52, 40, Packed(kInk[0]), DRAW_HALF);
     }},
    {"BRSL_FilledEllipseNC",
     [](BRSL_SurfaceDesc *) {
       for (int32_t i = 0; i < 7; i++) {
         BRSL_FilledEllipseNC(60, 75 - i * 10, 52 - i * 6, 12 - i, Packed(kInk[(i + 2) % 6]), 0);
       }
     }},
    {"BRSL_WriteLine",
     [](BRSL_SurfaceDesc *) {
       Fan([](int32_t x, int32_t y, uint32_t ink) { BRSL_WriteLine(60, 82, x, y, ink, 0); });
     }},
    {"BRSL_WriteDrawModeLine",
     [](BRSL_SurfaceDesc *) {
       for (int32_t i = 0; i < 27; i++) {
         BRSL_WriteDrawModeLine(8, 8 + i * 74 / 26, 8 + i * 4, 82, Packed(0x305870), DRAW_ADD);
         BRSL_WriteDrawModeLine(112, 82 - i * 74 / 26, 112 - i * 4, 8, Packed(0x704828), DRAW_ADD);
       }
     }},
    {"BRSL_WriteLine_32Bit",
     [](BRSL_SurfaceDesc *) {
       for (int32_t i = 0; i < 7; i++) {
         for (int32_t k = i + 1; k < 7; k++) {
           const double a = i * 0.8976 - 1.5708, b = k * 0.8976 - 1.5708;
           BRSL_WriteLine_32Bit(int32_t(60 + 52 * std::cos(a)), int32_t(47 + 40 * std::sin(a)),
                                int32_t(60 + 52 * std::cos(b)), int32_t(47 + 40 * std::sin(b)),
                                kInk[(i + k) % 6], 0);
         }
       }
     }},
};

}  // namespace

std::span<const Picture> ShapePictures() { return kPictures; }

}  // namespace brisal::docs
