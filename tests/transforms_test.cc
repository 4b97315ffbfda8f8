// Vertex transforms and the calculator: worked values, layouts, and where numbers are rounded.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "brisal/brisal.h"

namespace {

using Floats = std::vector<float>;

BRSL_Transform Still() {
  BRSL_Transform t{};
  t.scaleX = t.scaleY = t.scaleZ = 1;
  t.factorX = t.factorY = 100;
  return t;
}

TEST(Transforms, WorkedValues) {
  const Floats v = {1, 2, 3};
  Floats out(5);
  BRSL_Transform object = Still();
  BRSL_Transform camera = Still();
  const auto look = [&] {
    RotateVertexListToCamera(&camera, &object, v.data(), 12, out.data(), 20, 1);
    return out;
  };
  EXPECT_EQ(look(), (Floats{1, -2, 3, 100.0f / 3, -200.0f / 3}));
  camera.x = 10, camera.y = 20, camera.z = 30;
  EXPECT_EQ(look(), (Floats{-9, 18, -27, 0, 0}));
  // A camera that turns by 90 degrees to its right sees what lies at +x ahead.
  camera = Still();
  camera.angleY = 90;
  object.x = 8;
  EXPECT_NEAR(look()[2], 9, 1e-5);
  EXPECT_NEAR(out[0], -3, 1e-5);
  const Floats seen = look();
  object.order = 2;
  EXPECT_EQ(look(), seen) << "nothing is written";

  object = {0, 10, 20, 30, 0, 0, 0, 2, 3, 4, 1, 0, 0, 0};
  RotateVertexList(&object, v.data(), 12, out.data(), 12, 1);
  EXPECT_EQ(Floats(out.begin(), out.begin() + 3), (Floats{12, 26, 42}));

  // Points nearer than 1 are not projected.
  object = Still();
  object.output = 1;
  for (float z : {1.0f, std::nextafter(1.0f, 0.0f), -5.0f, std::nanf("")}) {
    object.z = z;
    const Floats point = {3, 4, 0};
    RotateVertexList(&object, point.data(), 12, out.data(), 20, 1);
    EXPECT_EQ(out[3], z == 1 ? 300 : 0) << z;
    EXPECT_EQ(out[4], z == 1 ? 400 : 0) << z;
  }
}

// Orders, and the sense in which each axis turns.
TEST(Transforms, TurnAboutEachAxis) {
  const Floats v = {1, 2, 3};
  const auto turned = [&](auto rotate, float ax, float ay, float az) {
    Floats out(3);
    rotate(v.data(), 12, out.data(), 12, 10.0f, 20.0f, 30.0f, ax, ay, az, 1);
    for (float &c : out) c = std::round(c);
    return out;
  };
  const auto xyz = [](auto... args) { RotateVertexListXYZ(args...); };
  const auto zyx = [](auto... args) { RotateVertexListZYX(args...); };
  EXPECT_EQ(turned(xyz, 90, 0, 0), (Floats{11, 17, 32}));
  EXPECT_EQ(turned(xyz, 0, 90, 0), (Floats{13, 22, 29}));
  EXPECT_EQ(turned(xyz, 0, 0, 90), (Floats{8, 21, 33}));
  EXPECT_EQ(turned(zyx, 0, 90, 0), turned(xyz, 0, 90, 0));
  EXPECT_EQ(turned(xyz, 90, 0, 90), (Floats{8, 17, 31})) << "z first";
  EXPECT_EQ(turned(zyx, 90, 0, 90), (Floats{13, 21, 32})) << "x first";
}

TEST(Transforms, AnyStrideAndPlace) {
  // In place, with a word of the host behind each vertex, at an odd address.
  std::vector<uint8_t> bytes(1 + 3 * 16, 0x5A);
  for (int i = 0; i < 3; i++) {
    const float v[] = {1.0f + i, 2, 3};
    std::memcpy(&bytes[1 + 16 * i], v, sizeof v);
  }
  const std::vector<uint8_t> before = bytes;
  BRSL_Transform t = Still();
  t.x = 4;
  RotateVertexList(&t, &bytes[1], 16, &bytes[1], 16, 3);
  for (int i = 0; i < 3; i++) {
    float x;
    std::memcpy(&x, &bytes[1 + 16 * i], sizeof x);
    EXPECT_EQ(x, 5.0f + i);
    EXPECT_EQ(std::memcmp(&bytes[5 + 16 * i], &before[5 + 16 * i], 12), 0);
  }
  // One source vertex for all, written backwards.
  const Floats a = {0, 0, 0}, b = {8, 16, 32};
  Floats out(9);
  LerpVertexList(a.data(), 0, b.data(), 0, &out[6], -12, 3, 0.25f);
  EXPECT_EQ(out, (Floats{2, 4, 8, 2, 4, 8, 2, 4, 8}));
  const Floats points = {1, 2, 3, 4, 5, 6};
  for (const int32_t count : {-1, 0, 2}) {
    out.assign(8, 0);
    Rotate2DVertexList(points.data(), 8, out.data(), 8, 1, 1, 0, 2, 3, count);
    Floats expected = {4, 9, 8, 15, 12, 21, 0, 0};
    std::fill(expected.begin() + 2 * (count + 1), expected.end(), 0.0f);
    EXPECT_EQ(out, expected) << count;
  }
  const Floats untouched = out;
  for (const int32_t count : {0, -1, INT32_MIN}) {
    RotateVertexList(&t, points.data(), 12, out.data(), 12, count);
    RotateVertexListToCamera(&t, &t, points.data(), 12, out.data(), 20, count);
    LerpVertexList(a.data(), 0, b.data(), 0, out.data(), 12, count, 1);
  }
  RotateVertexList(nullptr, points.data(), 12, out.data(), 12, 1);
  RotateVertexListToCamera(nullptr, &t, points.data(), 12, out.data(), 20, 1);
  RotateVertexListXYZ(nullptr, 12, out.data(), 12, 0, 0, 0, 0, 0, 0, 1);
  Rotate2DVertexList(points.data(), 8, nullptr, 8, 0, 0, 0, 1, 1, 1);
  LerpVertexList(a.data(), 0, nullptr, 0, out.data(), 12, 1, 1);
  EXPECT_EQ(out, untouched);
}

// Entries of a matrix are floats, everything after them is not until it is stored.
TEST(Transforms, RoundOnceAfterTheMatrix) {
  const Floats v = {16777216, 16777214, 1};
  Floats out(3);
  RotateVertexListXYZ(v.data(), 12, out.data(), 12, 0, -1.5f, 0, 0, 0, 45, 1);
  const double c = static_cast<float>(std::cos(45 * 0.017453292519444445L));
  const double s = static_cast<float>(std::sin(45 * 0.017453292519444445L));
  EXPECT_EQ(out[0], static_cast<float>(c * v[0] - s * v[1]));
  EXPECT_EQ(out[1], static_cast<float>(s * v[0] + c * v[1] - 1.5));
  const Floats a = {1e8f, 1, 0}, b = {-1e8f, 3, 0};
  LerpVertexList(a.data(), 12, b.data(), 12, out.data(), 12, 1, 0.3f);
  EXPECT_EQ(out[0], static_cast<float>(1e8 + -2e8 * double{0.3f}));
}

struct Program {
  std::vector<int32_t> words;
  int32_t count;
  float result;
};

TEST(Calculator, RunsPrograms) {
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  const Program programs[] = {
      {{0, 1, 1, 3, 2, 5, 0}, 3, 50},
      {{1, 7, 1, 2}, 2, 13},
      {{0, 14, 1, 1}, 2, 5},
      {{2, 2, 1, 4, 0}, 2, 3.5f},
      {{1, 6, 0, 2, 2}, 2, -1},
      {{0, 10, 2, 20, 65, -3, 60, 25}, 6, 10},
      {{0, 21, 3}, 1, 3},
      {{0, 33, 4, 22, 3}, 2, 1},  // 2 * sin 90 - cos 0
      {{2, 61, 5, 62, 5, 63, 5, 64, 5}, 4, 10},
      {{2, 64, 3}, 1, 0},
      {{2, 54, 3}, 1, 0},
      {{2, 4, 3}, 1, kInfinity},
      {{2, 34, 3}, 1, kInfinity},
      {{2}, 0, 10},
      {{2}, INT32_MIN, 10},
  };
  for (const Program &program : programs) {
    Floats variables = {2, 3, 10, 0, 90, 16};
    const float result = TQ_FastCalc(variables.data(), program.words.data(), program.count);
    EXPECT_EQ(result, program.result) << "program " << &program - programs;
    EXPECT_EQ(variables[0], program.count == 3 ? 50 : 2);
  }
  EXPECT_EQ(TQ_FastCalc(nullptr, programs[0].words.data(), 0), 0);

  Floats variables = {-4, 0};
  const int32_t root[] = {1, 61, 0};
  EXPECT_TRUE(std::isnan(TQ_FastCalc(variables.data(), root, 1)));
}

TEST(Calculator, RoundsOnceAnInstruction) {
  int different = 0;
  for (int i = 0; i < 400; i++) {
    Floats variables = {0.001f * static_cast<float>(i) - 1, static_cast<float>(i)};
    const int32_t cosine[] = {0, 21, 1}, power[] = {1, 6, 0};
    const long double exact = std::cos(variables[1] * 0.017453292519444445L);
    EXPECT_EQ(TQ_FastCalc(variables.data(), cosine, 1), static_cast<float>(variables[0] + exact));
    EXPECT_EQ(TQ_FastCalc(variables.data(), power, 1), TQ_Power(variables[1], variables[0]));
    different += static_cast<float>(variables[0] + exact) != variables[0] + TQ_Cos(variables[1]);
  }
  EXPECT_GT(different, 0) << "the cosine is not rounded by itself";

  // The generator is the one of TQ_Rnd. Small words leave no carry behind.
  const auto seed = [] {
    TQ_Randomize(1);
    TQ_Rnd(7);
    TQ_Randomize(5);
  };
  seed();
  const float first = TQ_Rnd(7);
  const float second = TQ_Rnd(7);
  seed();
  Floats variables = {0, 7};
  const int32_t random[] = {0, 51, 1, 51, 1};
  EXPECT_EQ(TQ_FastCalc(variables.data(), random, 2), first + second);
}

}  // namespace
