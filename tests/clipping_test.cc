// Clipping, without the reference: what a viewport shows is the unclipped drawing cut to it, and
// whatever the numbers, calls are prompt and keep to the viewport.
#include <gtest/gtest.h>

#include <cstring>
#include <ctime>
#include <vector>

#include "brisal/brisal.h"
#include "support/cases.h"
#include "support/random.h"
#include "support/sanitizers.h"

namespace {

constexpr int32_t kSide = 64;

Layout Square(Random &random) {
  Layout layout = RandomLayout(random, kSide, kSide);
  layout.format = random.Between(1, 5);
  layout.width = layout.height = kSide;
  layout.pitch = kSide * kFormatBytes[layout.format] + random.Between(0, 3);
  layout.viewport = {0, 0, kSide, kSide};
  return layout;
}

bool InViewport(const Layout &layout, int32_t x, int32_t y) {
  const reference::Rect &v = layout.viewport;
  return x >= v.left && x < v.right && y >= v.top && y < v.bottom;
}

// Replaces what lies outside the viewport by the picture's first state.
void RestoreOutside(Picture &picture, const Layout &viewportOf) {
  const std::vector<uint8_t> clean = Picture(picture.layout()).Bytes();
  const int32_t bpp = kFormatBytes[picture.layout().format];
  std::vector<uint8_t> cut = clean;
  const int64_t origin = picture.Address() - picture.Bytes().data();
  for (int32_t y = 0; y < kSide; y++) {
    for (int32_t x = 0; x < kSide; x++) {
      if (!InViewport(viewportOf, x, y)) continue;
      const int64_t at = origin + y * picture.layout().pitch + x * bpp;
      std::memcpy(cut.data() + at, picture.Bytes().data() + at, bpp);
    }
  }
  picture.Bytes() = cut;
}

// Functions whose clipped drawing is exactly the unclipped one. Gouraud rows are cut with eight
// bits of their colours left, filled ellipses move by a row.
bool ClipsExactly(const char *name) {
  for (const char *exact :
       {"BRSL_Dot", "BRSL_Box", "BRSL_OpenCircle", "BRSL_OpenEllipse", "BRSL_Tri", "BRSL_Quad"}) {
    if (!std::strcmp(name, exact)) return true;
  }
  return false;
}

// Coordinates stay in the buffer: left of it polygons round towards zero.
void RandomArguments(Random &random, Call &call) {
  for (int i = 0; call.function->kinds[i]; i++) {
    switch (call.function->kinds[i]) {
      case 'x':
      case 'y': call.args[i] = random.Between(0, kSide - 1); break;
      case 'r': call.args[i] = random.Between(1, kSide / 2); break;
      case 'c': call.args[i] = static_cast<int32_t>(random.Next()); break;
      case '0':
      case 's': call.args[i] = 0; break;
      case 'T':
      case 'P': call.args[i] = 1; break;
      case 'm': call.args[i] = 16 << random.Between(0, 8); break;
      default: call.args[i] = 16 << random.Between(0, 8) | random.Between(1, 2); break;
    }
  }
}

TEST(Clipping, ShowsTheUnclippedDrawingCutToTheViewport) {
  for (const Function &function : Functions()) {
    if (!ClipsExactly(function.name)) continue;
    for (int seed = 0; seed < Scaled(3000); seed++) {
      Random random(seed);
      Case whole{{.target = Square(random)}, {{&function, {}}}};
      RandomArguments(random, whole.calls[0]);
      Case cut = whole;
      reference::Rect &v = cut.layout.target.viewport;
      v = {random.Between(0, kSide), random.Between(0, kSide), kSide, kSide};
      v.right = random.Between(v.left, kSide);
      v.bottom = random.Between(v.top, kSide);
      std::vector<uint32_t> results;
      Picture expected = DrawWithLibrary(whole, results).target;
      Picture actual = DrawWithLibrary(cut, results).target;
      RestoreOutside(expected, cut.layout.target);
      ASSERT_EQ(Difference(actual, expected), "") << "seed " << seed << ", " << Describe(cut);
    }
  }
}

// Every place and radius around a small viewport, where one radius below 0 moves points to the side
// that the bounds do not tell of.
TEST(Clipping, OutlinesOfAnyRadiiKeepToTheViewport) {
  constexpr int32_t kWidth = 16, kLow = 5, kHigh = 11;
  const int32_t range = kWidth * kWidth * 49;
  for (int32_t i = 0; i < range; i++) {
    const int32_t cx = i % kWidth, cy = i / kWidth % kWidth, radii = i / (kWidth * kWidth);
    const int32_t rx = radii % 7 - 3, ry = radii / 7 - 3;
    std::vector<uint32_t> pixels(kWidth * kWidth);
    BRSL_SetBuffer(pixels.data(), 4 * kWidth, BRSL_FORMAT_X32);
    BRSL_SetBufferViewPort(kLow, kLow, kHigh, kHigh);
    BRSL_OpenEllipse(cx, cy, rx, ry, 0xFFFFFF, DRAW_NORMAL);
    BRSL_OpenEllipse(cx, cy, rx, ry, 0xFFFFFF, DRAW_XOR);
    for (int32_t at = 0; at < kWidth * kWidth; at++) {
      const int32_t x = at % kWidth, y = at / kWidth;
      const bool inside = kLow <= x && x < kHigh && kLow <= y && y < kHigh;
      ASSERT_TRUE(inside || pixels[at] == 0) << cx << ", " << cy << ", " << rx << ", " << ry;
    }
  }
}

TEST(Clipping, AnyNumbersArePromptAndKeepToTheViewport) {
  constexpr int32_t kNumbers[] = {INT32_MIN, INT32_MIN + 1, -(1 << 30),    -32769,   -1, 0, 20, 40,
                                  32768,     1 << 30,       INT32_MAX - 1, INT32_MAX};
  const std::clock_t start = std::clock();
  for (const Function &function : Functions()) {
    if (function.family >= Family::kText) continue;  // these have records and numbers of their own
    if (!std::strpbrk(function.kinds, "xr") || function.kinds[0] == 'A') continue;
    for (int seed = 0; seed < Scaled(800); seed++) {
      Random random(seed);
      Case c{{.target = Square(random), .source = Square(random)}, {{&function, {}}}};
      c.layout.target.viewport = {10, 15, 50, 55};
      RandomArguments(random, c.calls[0]);
      for (int i = 0; function.kinds[i]; i++) {
        if (std::strchr("xyrUVQ", function.kinds[i])) c.calls[0].args[i] = random.Pick(kNumbers);
      }
      std::vector<uint32_t> results;
      Picture actual = DrawWithLibrary(c, results).target, expected = actual;
      RestoreOutside(expected, c.layout.target);
      ASSERT_EQ(Difference(actual, expected), "") << Describe(c);
    }
  }
  EXPECT_LT((std::clock() - start) / CLOCKS_PER_SEC, 20) << "seconds of the processor";
}

}  // namespace
