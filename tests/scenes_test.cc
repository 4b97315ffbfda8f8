// Captured scenes against the calls that they stand for.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <string>

#include "brisal/brisal.h"
#include "support/picture.h"
#include "support/random.h"
#include "support/sanitizers.h"

namespace {

using Numbers = std::array<int32_t, 16>;

// Coordinates first: x and y in turn, radii after them.
struct Command {
  const char *name;
  int points;
  int radii;
  std::function<void(Scene_Record *, const Numbers &)> capture;
  std::function<void(const Scene_Record *, int32_t, int32_t)> render;
  std::function<void(const Numbers &)> draw;
};

constexpr uint32_t kColours[] = {0x80FF4020, 0xFFFF00, 0x102030, 0xFF3080FF};

BRSL_SurfaceDesc *texture = nullptr;
TPD_Pipeline *pipeline = nullptr;

// Texels of vertices, and the flags, come with the points.
const Command kCommands[] = {
    {"box", 2, 0,
     [](Scene_Record *r, const Numbers &n) {
       Scene_Write_Capture_Box(r, n[15], n[0], n[1], n[2], n[3], 0, kColours[0]);
     },
     Scene_Render_Captured_Box,
     [](const Numbers &n) { BRSL_Box(n[0], n[1], n[2], n[3], kColours[0], n[15]); }},
    {"shaded box", 2, 0,
     [](Scene_Record *r, const Numbers &n) {
       Scene_Write_Capture_ShadeBox(r, n[15], n[0], n[1], n[2], n[3], 0, kColours[0], kColours[1],
                                    kColours[2], kColours[3]);
     },
     Scene_Render_Captured_ShadeBox,
     [](const Numbers &n) {
       BRSL_ShadeBox(n[0], n[1], n[2], n[3], kColours[0], kColours[1], kColours[2], kColours[3],
                     n[15]);
     }},
    {"circle", 1, 1,
     [](Scene_Record *r, const Numbers &n) {
       Scene_Write_Capture_Circle(r, n[15], n[0], n[1], 0, n[2], kColours[1]);
     },
     Scene_Render_Captured_Circle,
     [](const Numbers &n) { BRSL_Circle(n[0], n[1], n[2], kColours[1], n[15]); }},
    {"ellipse", 1, 2,
     [](Scene_Record *r, const Numbers &n) {
       Scene_Write_Capture_Ellipse(r, n[15], n[0], n[1], 0, n[2], n[3], kColours[1]);
     },
     Scene_Render_Captured_Ellipse,
     [](const Numbers &n) { BRSL_Ellipse(n[0], n[1], n[2], n[3], kColours[1], n[15]); }},
    {"triangle", 3, 0,
     [](Scene_Record *r, const Numbers &n) {
       Scene_Write_Capture_Tri(r, n[15], n[0], n[1], n[2], n[3], n[4], n[5], 0, kColours[2], 1);
     },
     Scene_Render_Captured_Polygon,
     [](const Numbers &n) { BRSL_Tri(n[0], n[1], n[2], n[3], n[4], n[5], kColours[2], n[15]); }},
    {"Gouraud quad", 4, 0,
     [](Scene_Record *r, const Numbers &n) {
       Scene_Write_Capture_QuadG(r, n[15], n[0], n[1], kColours[0], n[2], n[3], kColours[1], n[4],
                                 n[5], kColours[2], n[6], n[7], kColours[3], 0, 2);
     },
     Scene_Render_Captured_PolygonG,
     [](const Numbers &n) {
       BRSL_QuadG(n[0], n[1], kColours[0], n[2], n[3], kColours[1], n[4], n[5], kColours[2], n[6],
                  n[7], kColours[3], n[15]);
     }},
    {"textured triangle", 3, 0,
     [](Scene_Record *r, const Numbers &n) {
       Scene_Write_Capture_TriT(r, 0, n[0], n[1], 0, 0, n[2], n[3], 15, 3, n[4], n[5], 2, 11, 0, 0,
                                1);
     },
     [](const Scene_Record *r, int32_t dx, int32_t dy) {
       Scene_Render_Captured_PolygonT(r, dx, dy, texture, pipeline);
     },
     [](const Numbers &n) {
       BRSL_TriT(texture, n[0], n[1], 0, 0, n[2], n[3], 15, 3, n[4], n[5], 2, 11, pipeline);
     }},
    {"textured quad", 4, 0,
     [](Scene_Record *r, const Numbers &n) {
       Scene_Write_Capture_QuadT(r, 0, n[0], n[1], 0, 0, n[2], n[3], 15, 0, n[4], n[5], 15, 11,
                                 n[6], n[7], 0, 11, 0, 0, 2);
     },
     [](const Scene_Record *r, int32_t dx, int32_t dy) {
       Scene_Render_Captured_PolygonT(r, dx, dy, texture, pipeline);
     },
     [](const Numbers &n) {
       BRSL_QuadT(texture, n[0], n[1], 0, 0, n[2], n[3], 15, 0, n[4], n[5], 15, 11, n[6], n[7], 0,
                  11, pipeline);
     }},
    {"Gouraud row", 2, 0,
     [](Scene_Record *r, const Numbers &n) {
       Scene_Write_Capture_GouraudStripH(r, 0, n[0], kColours[0], n[2], kColours[3], n[1], 0);
     },
     Scene_Render_Captured_GouraudStripH,
     [](const Numbers &n) { BRSL_HoriGouraudStrip(n[0], kColours[0], n[2], kColours[3], n[1]); }},
    {"Gouraud column", 2, 0,
     [](Scene_Record *r, const Numbers &n) {
       Scene_Write_Capture_GouraudStripV(r, 0, n[1], kColours[0], n[3], kColours[3], n[0], 0);
     },
     Scene_Render_Captured_GouraudStripV,
     [](const Numbers &n) { BRSL_VertGouraudStrip(n[1], kColours[0], n[3], kColours[3], n[0]); }},
    {"texture row", 2, 0,
     [](Scene_Record *r, const Numbers &n) {
       Scene_Write_Capture_TextureStripH(r, 0, n[0], 0, 0x8000, n[2], 0xF0000, 0xB0000, n[1], 0, 0);
     },
     [](const Scene_Record *r, int32_t dx, int32_t dy) {
       Scene_Render_Captured_TextureStripH(r, dx, dy, texture);
     },
     [](const Numbers &n) {
       BRSL_HoriTextureStrip(texture, n[0], 0, 0x8000, n[2], 0xF0000, 0xB0000, n[1]);
     }},
    {"texture column", 2, 0,
     [](Scene_Record *r, const Numbers &n) {
       Scene_Write_Capture_TextureStripV(r, 0, n[1], 0, 0x8000, n[3], 0xF0000, 0xB0000, n[0], 0, 0);
     },
     [](const Scene_Record *r, int32_t dx, int32_t dy) {
       Scene_Render_Captured_TextureStripV(r, dx, dy, texture);
     },
     [](const Numbers &n) {
       BRSL_VertTextureStrip(texture, n[1], 0, 0x8000, n[3], 0xF0000, 0xB0000, n[0]);
     }},
};

class Scenes : public testing::Test {
 protected:
  // A target of 60x50 with a viewport inside, and a texture of its format.
  void Prepare(int32_t format, uint64_t seed) {
    Layout layout;
    layout.format = format;
    layout.width = 60;
    layout.height = 50;
    layout.pitch = 60 * kFormatBytes[format] + 3;
    layout.seed = seed;
    layout.viewport = {7, 5, 51, 42};
    target_ = std::make_unique<Picture>(layout);
    layout.width = 16;
    layout.height = 12;
    sheet_ = std::make_unique<Picture>(layout);
    Target(*target_);
    BRSL_FreeSurfaceDesc(texture);
    texture = BRSL_AllocSurfaceDesc(format, sheet_->Address(), layout.pitch, 16, 12);
    pipeline_.reset(TPD_Alloc());
    pipeline = pipeline_.get();
  }

  void TearDown() override {
    BRSL_FreeSurfaceDesc(texture);
    texture = nullptr;
  }

  std::unique_ptr<Picture> target_, sheet_;
  std::unique_ptr<TPD_Pipeline, int32_t(BRSL_CALL *)(TPD_Pipeline *)> pipeline_{nullptr, TPD_Free};
};

// Strips are left out where their ends come in the wrong order and only the second shows, outlined
// boxes where only their excluded right column or bottom row does.
bool ShowsInEveryOrder(const Command &command, const Numbers &n) {
  const std::string name = command.name;
  if (name.ends_with("row") || name.ends_with("column")) return n[0] < n[2] && n[1] < n[3];
  return name != "box" || (std::max(n[0], n[2]) != 7 && std::max(n[1], n[3]) != 5);
}

TEST_F(Scenes, RenderedCommandsEqualDirectCalls) {
  constexpr int32_t kFlags[] = {1, 2, BRSL_FILLED | DRAW_ADD, BRSL_OUTLINE | DRAW_XOR,
                                BRSL_FILLED | DRAW_HALF};
  for (const Command &command : kCommands) {
    for (int seed = 0; seed < Scaled(1500); seed++) {
      Random random(seed);
      Prepare(random.Between(1, 5), seed);
      const int32_t dx = random.Pick({0, -3000, 100000}), dy = random.Pick({0, 77, -100000});
      Numbers scene{}, direct{};
      for (int i = 0; i < 2 * command.points; i++) {
        direct[i] = random.Between(-30, 90);
        scene[i] = direct[i] + (i % 2 ? dy - 5 : dx - 7);
      }
      for (int i = 0; i < command.radii; i++) {
        scene[2 + i] = direct[2 + i] = random.Between(0, 40);
      }
      scene[15] = direct[15] = random.Pick(kFlags);
      if (!ShowsInEveryOrder(command, direct)) continue;
      Picture expected = *target_;
      Scene_Record record;
      std::memset(&record, 0x5A, sizeof record);
      command.capture(&record, scene);
      command.render(&record, dx, dy);
      Picture actual = *target_;
      *target_ = expected;
      command.draw(direct);
      ASSERT_EQ(Difference(actual, *target_), "") << command.name << ", seed " << seed;
    }
  }
}

TEST_F(Scenes, WhatLiesAtTheViewportsEdges) {
  Prepare(4, 1);
  const auto draws = [&](const auto &render) {
    const std::vector<uint8_t> before = target_->Bytes();
    render();
    const bool drew = target_->Bytes() != before;
    target_->Bytes() = before;
    return drew;
  };
  Scene_Record r;
  const auto circle = [&](int32_t radius) {
    Scene_Write_Capture_Circle(&r, BRSL_OUTLINE | DRAW_XOR, -5, 10, 0, radius, 0xFFFFFF);
    return draws([&] { Scene_Render_Captured_Circle(&r, 0, 0); });
  };
  EXPECT_FALSE(circle(5));
  EXPECT_FALSE(circle(-5)) << "radii have no sign";
  EXPECT_TRUE(circle(6));

  for (int32_t y : {-1, 0, 36, 37}) {
    Scene_Write_Capture_GouraudStripH(&r, 0, 3, 0x123456, 9, 0x654321, y, 0);
    EXPECT_EQ(draws([&] { Scene_Render_Captured_GouraudStripH(&r, 0, 0); }), y == 0 || y == 36);
    EXPECT_EQ(Scene_Render_Check_Object_Visible(&r, 0, 0), y == 0 || y == 36);
  }
  // Backwards, a strip that ends on the viewport's left edge begins there; only textures get through.
  Scene_Write_Capture_TextureStripH(&r, 0, 9, 0, 0, 0, 0xF0000, 0, 4, 0, 0);
  EXPECT_TRUE(draws([&] { Scene_Render_Captured_TextureStripH(&r, 0, 0, texture); }));
  EXPECT_FALSE(draws([&] { Scene_Render_Captured_GouraudStripH(&r, 0, 0); }));
  EXPECT_FALSE(draws([&] { Scene_Render_Captured_TextureStripH(&r, 1, 0, texture); }));

  Scene_Poke_Bounding_Box(&r, 44, 37, 0, 0);
  EXPECT_TRUE(r.left == 0 && r.top == 0 && r.right == 44 && r.bottom == 37);
  for (int32_t step : {-1, 1}) {
    EXPECT_TRUE(Scene_Render_Check_Object_Visible(&r, 43 * step, 36 * step));
    EXPECT_FALSE(Scene_Render_Check_Object_Visible(&r, 44 * step, 0));
    EXPECT_FALSE(Scene_Render_Check_Object_Visible(&r, 0, 37 * step));
  }
  // Places wrap around, distances stay.
  Scene_Write_Capture_Circle(&r, 0, INT32_MAX - 2, 10, 0, 8, 0xFFFFFF);
  EXPECT_LT(r.vertices[1].x, 0);
  EXPECT_TRUE(draws([&] { Scene_Render_Captured_Circle(&r, INT32_MAX - 20, 0); }));
  // The longest distance is no radius.
  r.vertices[0].x = 0;
  for (int32_t end : {INT32_MIN, INT32_MIN + 1}) {
    r.vertices[1].x = end;
    EXPECT_EQ(draws([&] { Scene_Render_Captured_Circle(&r, 0, 0); }), end != INT32_MIN);
  }
}

// Any contents and offsets: the test is that nothing is written outside and nothing overflows.
TEST_F(Scenes, AnyRecordKeepsToTheViewport) {
  constexpr int32_t kNumbers[] = {INT32_MIN, -40000, -1, 0, 3, 30, 40000, INT32_MAX};
  for (int seed = 0; seed < Scaled(4000); seed++) {
    Random random(seed);
    Prepare(random.Between(0, 5), seed);
    const std::vector<uint8_t> before = target_->Bytes();
    Scene_Record r;
    const auto number = [&] { return random.OneIn(2) ? random.Pick(kNumbers) : seed % 50; };
    for (size_t at = 0; at < sizeof r; at += 4) {
      const int32_t word = number();
      std::memcpy(reinterpret_cast<uint8_t *>(&r) + at, &word, sizeof word);
    }
    r.vertexCount =
        random.OneIn(3) ? random.Pick({INT32_MIN, -1, 0, 1, 9, INT32_MAX}) : random.Between(2, 4);
    r.flags &= 0xFFF3;
    BRSL_SetBufferViewPort(20, 20, 20, 20);
    for (const Command &command : kCommands) command.render(&r, number(), number());
    ASSERT_EQ(target_->Bytes(), before) << "seed " << seed;
    BRSL_SetBufferViewPort(0, 0, 60, 50);
    for (const Command &command : kCommands) command.render(&r, number(), number());
  }
}

TEST_F(Scenes, RecordsHoldWhatWasCaptured) {
  Scene_Record r;
  std::memset(&r, 0x77, sizeof r);
  Scene_Write_Capture_SpriteNC(&r, 5, 6, 7, 8);
  EXPECT_EQ(r.flags, 0x77777777);
  EXPECT_EQ(r.left, 0x77777777);
  EXPECT_TRUE(r.marker == 1 && r.code == SCENE_SPRITE && r.image == 5 && r.hostA == 8);
  EXPECT_TRUE(r.vertices[0].firstX == 6 && r.vertices[0].x == 6 && r.vertices[0].y == 7);

  const float kInfinity = std::numeric_limits<float>::infinity();
  Scene_Write_Capture_Dot(&r, 3, -0.5f, 2.7f, 9, 0xFF);
  EXPECT_TRUE(r.left == -1 && r.top == 2 && r.right == 0 && r.bottom == 3);
  Scene_Write_Capture_Dot(&r, 3, kInfinity, std::nanf(""), 9, 0xFF);
  EXPECT_TRUE(r.left == INT32_MAX && r.right == INT32_MIN && r.top == INT32_MIN);

  Scene_Write_Capture_Box(&r, BRSL_FILLED, 30, 40, 10, 20, 0, 0xFF);
  EXPECT_TRUE(r.vertices[0].x == 10 && r.vertices[0].y == 20 && r.vertices[1].x == 30);
  Scene_Write_Capture_Tri(&r, 0, 1, 2, 3, -4, 5, 6, 0, 0xFF, 1);
  EXPECT_EQ(r.right, 30) << "the box stays";
  Scene_Write_Capture_QuadT(&r, 0, 1, 2, 0, 0, 3, -4, 0, 0, 5, 6, 0, 0, -7, 8, 9, 10, 0, 11, 2);
  EXPECT_TRUE(r.left == -7 && r.top == -4 && r.right == 5 && r.bottom == 8);
  EXPECT_TRUE(r.code == SCENE_POLYGON_T && r.vertexCount == 4 && r.image == 11);
  EXPECT_TRUE(r.vertices[3].tu == 9 && r.vertices[3].tv == 10);
  Scene_Write_Capture_GouraudStripV(&r, 0, 8, 1, 3, 2, 50, 0);
  EXPECT_TRUE(r.vertices[1].x == 51 && r.top == 3 && r.bottom == 8 && r.right == 51);

  Scene_EdgeVectors edge;
  Scene_Poke_Edge_Vectors(&edge, 0, 0, 3, 4);
  EXPECT_TRUE(edge.normalX == -0.8f && edge.normalY == 0.6f && edge.negatedX == 0.8f);
  Scene_Poke_Edge_Vectors(&edge, 1e30f, 5, -1e30f, 5);
  EXPECT_TRUE(edge.normalX == 0 && edge.normalY == -1) << "squares beyond a float";
  EXPECT_FALSE(std::signbit(edge.normalX));
  Scene_Poke_Edge_Vectors(&edge, 2, 3, 2, 3);
  EXPECT_TRUE(edge.normalX == 0 && !std::signbit(edge.normalX) && std::signbit(edge.negatedX));
}

TEST_F(Scenes, NullRecordsAreIgnored) {
  Prepare(4, 1);
  for (const Command &command : kCommands) {
    command.capture(nullptr, {});
    command.render(nullptr, 0, 0);
  }
  Scene_Write_Capture_SpriteNC(nullptr, 0, 0, 0, 0);
  Scene_Poke_Bounding_Box(nullptr, 0, 0, 0, 0);
  Scene_Poke_Edge_Vectors(nullptr, 0, 0, 0, 0);
  SceneVert_iXYcombined(nullptr, 0, 0);
  EXPECT_EQ(Scene_Render_Check_Object_Visible(nullptr, 0, 0), 0);
}

}  // namespace
