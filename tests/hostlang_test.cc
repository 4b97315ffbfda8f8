// The functions for the host language against plain formulas, and the generator against its
// definition.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include "brisal/brisal.h"
#include "reference/random_numbers.h"
#include "support/random.h"
#include "support/sanitizers.h"

namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr uint32_t kFrom = 0xAA1080FF, kTo = 0x55F00880;

using Channels = std::function<double(double, double)>;

int Byte(uint32_t colour, int shift) { return static_cast<int>(colour >> shift & 0xFF); }

// The colour whose channels are f of the channels, limited to 0-255; alpha 0.
uint32_t PerChannel(uint32_t colour1, uint32_t colour2, const Channels &f) {
  uint32_t result = 0;
  for (int shift : {0, 8, 16}) {
    const double channel = f(Byte(colour1, shift), Byte(colour2, shift));
    result |= static_cast<uint32_t>(std::clamp(std::floor(channel), 0.0, 255.0)) << shift;
  }
  return result;
}

uint32_t Blended(uint32_t colour1, uint32_t colour2, int64_t level) {
  if (level < 1) return colour1;
  if (level > 254) return colour2;
  return PerChannel(colour1, colour2, [level](double c1, double c2) {
    return c1 + std::floor((c2 - c1) * static_cast<double>(level) / 256);
  });
}

reference::Generator Seeded(uint32_t seed, uint32_t carry) {
  return {seed, seed, seed, seed, carry};
}

std::vector<float> Numbers(const std::function<float(float)> &draw) {
  std::vector<float> numbers;
  for (int i = 0; i < 400; i++) numbers.push_back(draw(i % 2 ? 0.25f : 4e9f));
  return numbers;
}

// Before any test draws.
const std::vector<float> numbersAtLoad = Numbers(TQ_Rnd);

TEST(Colours, EqualPlainFormulas) {
  Random random(1);
  const int32_t factors[] = {INT32_MIN, -1, 0, 1, 255, 256, 257, 512, INT32_MAX};
  for (int i = 0; i < Scaled(200000); i++) {
    const uint32_t a = static_cast<uint32_t>(random.Next());
    const uint32_t b = static_cast<uint32_t>(random.Next());
    ASSERT_EQ(TQ_RGB_ALPHA_ADD(a, b), PerChannel(a, b, std::plus<double>()));
    ASSERT_EQ(TQ_RGB_ALPHA_SUB(a, b), PerChannel(a, b, std::minus<double>()));
    ASSERT_EQ(TQ_RGB_ALPHA_MULT(a, b),
              PerChannel(a, b, [](double c1, double c2) { return c1 * (c2 + 1) / 256; }));
    ASSERT_EQ(TQ_RGB_ALPHA_50(a, b), PerChannel(a, b, [](double c1, double c2) {
                return std::floor(c1 / 2) + std::floor(c2 / 2);
              }));
    ASSERT_EQ(TQ_RGB_ALPHA_OR(a, b) - TQ_RGB_ALPHA_AND(a, b), TQ_RGB_ALPHA_XOR(a, b));
    ASSERT_EQ(TQ_RGB_ALPHA_OR(a, b) + TQ_RGB_ALPHA_AND(a, b), a + b);
    const double factor = random.OneIn(2) ? random.Pick(factors) : random.Between(-999, 99999);
    ASSERT_EQ(TQ_RGB_SCALE(a, static_cast<int32_t>(factor)),
              PerChannel(a, 0, [factor](double c, double) { return c * factor / 256; }))
        << factor;
    const int32_t level = random.OneIn(9) ? random.Pick(factors) : random.Between(-3, 258);
    ASSERT_EQ(TQ_RGB_ALPHA_BLEND_Variable(a, b, level), Blended(a, b, level)) << level;

    const int grey = (28 * Byte(a, 16) + 63 * Byte(a, 8) + 9 * Byte(a, 0)) / 100;
    ASSERT_EQ(TQ_RGB_GREY(a), static_cast<uint32_t>(grey) * 0x10101);
    ASSERT_EQ(TQ_ARGB(TQ_RGBA(a) - 256, TQ_RGBR(a) + 512, TQ_RGBG(a), TQ_RGBB(a)), a);
    ASSERT_EQ(TQ_RGB(TQ_RGBR(a), TQ_RGBG(a) + 256, TQ_RGBB(a) - 256), a & 0xFFFFFF);
    ASSERT_EQ(TQ_RGB_565to888(b << 16 | TQ_RGB_888to565(a)), a & 0xF8FCF8);
    ASSERT_EQ(TQ_RGB_555to888(b << 15 | TQ_RGB_888to555(a)), a & 0xF8F8F8);
  }
}

TEST(Colours, PercentAndDepthGiveLevels) {
  for (int quarters = -50; quarters <= 2500; quarters++) {
    const float percent = static_cast<float>(quarters) / 4;
    ASSERT_EQ(TQ_RGB_ALPHA_BLEND(kFrom, kTo, percent), Blended(kFrom, kTo, quarters * 255 / 400))
        << percent;
    const int whole = std::min(quarters / 4, 500);  // times a little less than 2.56
    const int level = whole < 1 ? 0 : (whole * 256 - 1) / 100;
    ASSERT_EQ(TQ_RGB_FADE(kFrom, percent),
              PerChannel(kFrom, 0, [level](double c, double) { return c * level / 256; }))
        << percent;
  }
  Random random(2);
  for (int i = 0; i < 20000; i++) {
    const int low = random.Between(-5000, 5000), size = 1 << random.Between(0, 12);
    const int depth = low + random.Between(-size, 2 * size);
    const float near = static_cast<float>(low), far = static_cast<float>(low + size);
    const uint32_t cued = Blended(kFrom, kTo, int64_t{256} * (depth - low) / size);
    const float at = static_cast<float>(depth);
    ASSERT_EQ(TQ_RGB_DEPTH_CUE(kFrom, kTo, at, near, far), cued) << at << near << far;
    ASSERT_EQ(TQ_RGB_DEPTH_CUE(kFrom, kTo, at, far, near), cued);
  }
}

TEST(Colours, Extremes) {
  EXPECT_EQ(TQ_RGB_With_AlphaIntensity(255, 255, 255), 0xFFFFFFFF);
  EXPECT_EQ(TQ_RGB_With_AlphaIntensity(255, 0, 0), 0x38FF0000u);
  EXPECT_EQ(TQ_RGB_With_AlphaIntensity(300, 300, 300), 0xFF2C2C2Cu);
  EXPECT_EQ(TQ_RGB_With_AlphaIntensity(INT32_MAX, INT32_MIN, 0) & 0xFFFFFF, 0xFF0000u);
  for (float percent : {-kInfinity, -1e30f, kNan, 0.39f}) {
    EXPECT_EQ(TQ_RGB_ALPHA_BLEND(kFrom, kTo, percent), kFrom);
    EXPECT_EQ(TQ_RGB_FADE(kFrom, percent), 0u);
  }
  for (float percent : {1e30f, kInfinity}) {
    EXPECT_EQ(TQ_RGB_ALPHA_BLEND(kFrom, kTo, percent), kTo);
    EXPECT_EQ(TQ_RGB_FADE(0xFF010203, percent), 0x04090Eu);
  }
  EXPECT_EQ(TQ_RGB_DEPTH_CUE(kFrom, kTo, 5, 5, 5), kFrom);
  EXPECT_EQ(TQ_RGB_DEPTH_CUE(kFrom, kTo, 55, 10, 100), Blended(kFrom, kTo, 128));
  EXPECT_EQ(TQ_RGB_DEPTH_CUE(kFrom, kTo, 3e38f, -3e38f, 3e38f), kTo);
  EXPECT_EQ(TQ_RGB_DEPTH_CUE(kFrom, kTo, 1e-45f, 0, 1e-45f), kTo);
  EXPECT_EQ(TQ_RGB_DEPTH_CUE(kFrom, kTo, kNan, 1, 2), kFrom);
  EXPECT_EQ(TQ_RGB_DEPTH_CUE(kFrom, kTo, 1, -kInfinity, kInfinity), kFrom);
}

TEST(Maths, TrigonometryPowersAndLogarithms) {
  Random random(3);
  for (int i = 0; i < 20000; i++) {
    const float degrees = static_cast<float>(random.Between(-2000000, 2000000)) / 1024;
    const double angle = degrees * 0.017453292519444445;
    ASSERT_NEAR(TQ_Cos(degrees), std::cos(angle), 6e-8);
    ASSERT_NEAR(TQ_Sin(degrees), std::sin(angle), 6e-8);
    ASSERT_FLOAT_EQ(TQ_Tan(degrees), static_cast<float>(std::tan(angle)));
    const float x =
        std::ldexp(static_cast<float>(random.Between(1, 1 << 24)), random.Between(-140, 100));
    ASSERT_FLOAT_EQ(TQ_Log(x), static_cast<float>(std::log(double{x})));
    ASSERT_FLOAT_EQ(TQ_Log10(x), static_cast<float>(std::log10(double{x})));
  }
  EXPECT_NEAR(TQ_Cos(90), 4.49e-11, 1e-13);
  EXPECT_TRUE(std::isnan(TQ_Cos(kInfinity)));
  EXPECT_GT(TQ_Tan(90), 2e10f);
  EXPECT_LT(TQ_Tan(90), kInfinity);
  for (auto logarithm : {TQ_Log, TQ_Log10}) {
    EXPECT_EQ(logarithm(0), -kInfinity);
    EXPECT_EQ(logarithm(kInfinity), kInfinity);
    EXPECT_TRUE(std::isnan(logarithm(-1)));
  }
  EXPECT_EQ(TQ_Power(-2, 3), -8);
  EXPECT_EQ(TQ_Power(kNan, 0), 1);
  EXPECT_EQ(TQ_Power(-0.0f, -1), -kInfinity);
  EXPECT_EQ(TQ_Power(10, 39), kInfinity);
  EXPECT_EQ(TQ_Power(10, -2), 0.01f);
}

TEST(Maths, Wrapping) {
  Random random(4);
  for (int i = 0; i < 20000; i++) {
    const int low = random.Between(-999, 999), size = random.Between(1, 999);
    const int value = random.Between(-99999, 99999);
    const int wrapped = low + ((value - low) % size + size) % size;
    const float a = static_cast<float>(low) / 8, b = static_cast<float>(low + size) / 8;
    ASSERT_EQ(TQ_WrapValue(static_cast<float>(value) / 8, a, b), static_cast<float>(wrapped) / 8);
    ASSERT_EQ(TQ_WrapValue(static_cast<float>(value) / 8, b, a), static_cast<float>(wrapped) / 8);
    ASSERT_EQ(WrapAngle(static_cast<float>(value)), static_cast<float>((value % 360 + 360) % 360));
  }
  EXPECT_TRUE(std::signbit(WrapAngle(-720)));
  EXPECT_EQ(WrapAngle(3e38f), std::fmod(3e38f, 360.0f));
  EXPECT_EQ(TQ_WrapValue(-1e-30f, 0, 10), 0);  // rounds to 10, which wraps
  EXPECT_TRUE(std::isnan(TQ_WrapValue(1, 5, 5)));
  EXPECT_TRUE(std::isnan(TQ_WrapValue(kInfinity, 0, 1)));
  EXPECT_TRUE(std::isnan(TQ_WrapValue(0, 1, kNan)));
}

TEST(TestString, IsTheDocumentedText) {
  EXPECT_STREQ(TQ_TestString(), "0123456789abcdef0123456789abcdef");
}

TEST(RandomNumbers, FollowTheGenerator) {
  reference::Generator atLoad = Seeded(30903, 0);
  EXPECT_EQ(numbersAtLoad, Numbers([&](float max) { return atLoad.Draw(max); }));
  std::vector<uint32_t> carries = {0, 1};  // whichever the numbers so far have left
  for (int32_t seed : {30903, 1, -1, 77, 12345, INT32_MIN}) {
    TQ_Randomize(seed);
    TQ_Randomize(0);
    for (float max : {0.0f, -0.5f, -5.0f, kNan}) TQ_Rnd(max);  // none of which draws
    const std::vector<float> numbers = Numbers(TQ_Rnd);
    const uint32_t colour = TQ_RNDRGB();
    std::vector<uint32_t> carriesLeft;
    for (uint32_t carry : carries) {
      reference::Generator model = Seeded(static_cast<uint32_t>(seed), carry);
      if (numbers != Numbers([&](float max) { return model.Draw(max); })) continue;
      uint32_t expected = 0;
      for (int i = 0; i < 3; i++) expected = expected << 8 | static_cast<uint32_t>(model.Draw(255));
      EXPECT_EQ(colour, expected);
      carriesLeft.push_back(model.carry);
    }
    ASSERT_EQ(carriesLeft.size(), 1u) << seed;
    carries = carriesLeft;
  }
}

TEST(RandomNumbers, EdgesOfTheRange) {
  EXPECT_EQ(TQ_Rnd(0), 0);
  EXPECT_FLOAT_EQ(TQ_Rnd(-5), -3.01f);
  EXPECT_EQ(TQ_Rnd(-0.99f), 1);
  EXPECT_EQ(TQ_Rnd(-0.98f), 0);
  EXPECT_EQ(TQ_Rnd(kInfinity), kInfinity);
  EXPECT_TRUE(std::isnan(TQ_Rnd(kNan)));
  for (int i = 0; i < 1000; i++) EXPECT_LE(TQ_Rnd(0.01f), 0.01f);
}

}  // namespace
