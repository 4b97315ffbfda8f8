#include "hostlang/colours.h"

#include <algorithm>
#include <cmath>

#include "hostlang/random.h"

namespace brisal {

namespace {

template <class F>
uint32_t PerChannel(uint32_t colour, F f) {
  return Colour(f(RedOf(colour)), f(GreenOf(colour)), f(BlueOf(colour)));
}

template <class F>
uint32_t PerChannel(uint32_t a, uint32_t b, F f) {
  return Colour(f(RedOf(a), RedOf(b)), f(GreenOf(a), GreenOf(b)), f(BlueOf(a), BlueOf(b)));
}

// The integer part of a level, limited to what BlendColours tells apart.
int32_t BlendLevel(long double level) {
  if (!(level >= 1)) return 0;  // not-a-numbers, too
  return static_cast<int32_t>(std::min(level, 255.0L));
}

}  // namespace

uint32_t Colour(int32_t red, int32_t green, int32_t blue) { return Colour(0, red, green, blue); }

uint32_t Colour(int32_t alpha, int32_t red, int32_t green, int32_t blue) {
  const auto byte = [](int32_t channel) { return static_cast<uint32_t>(channel) & 0xFF; };
  return byte(alpha) << 24 | byte(red) << 16 | byte(green) << 8 | byte(blue);
}

uint32_t ColourWithIntensity(int32_t red, int32_t green, int32_t blue) {
  const uint32_t sum = 225 * static_cast<uint32_t>(red) + 723 * static_cast<uint32_t>(green) +
                       76 * static_cast<uint32_t>(blue);
  const int32_t intensity = static_cast<int32_t>(sum) >> 10;
  return Colour(std::min(intensity, 255), red, green, blue);
}

int32_t AlphaOf(uint32_t colour) { return static_cast<int32_t>(colour >> 24); }
int32_t RedOf(uint32_t colour) { return static_cast<int32_t>(colour >> 16 & 0xFF); }
int32_t GreenOf(uint32_t colour) { return static_cast<int32_t>(colour >> 8 & 0xFF); }
int32_t BlueOf(uint32_t colour) { return static_cast<int32_t>(colour & 0xFF); }

uint32_t RandomColour(RandomState &state) {
  const auto channel = [&state] { return static_cast<int32_t>(RandomUpTo(state, 255)); };
  const int32_t red = channel();
  const int32_t green = channel();
  const int32_t blue = channel();
  return Colour(red, green, blue);
}

uint32_t GreyOf(uint32_t colour) {
  const int32_t grey = (280 * RedOf(colour) + 630 * GreenOf(colour) + 90 * BlueOf(colour)) / 1000;
  return Colour(grey, grey, grey);
}

uint32_t FadeColour(uint32_t colour, float percent) {
  if (!(percent >= 1)) return 0;
  // Whole percents up to 500 times a float are exact in double.
  const double whole = std::min(std::floor(percent), 500.0f);
  const int32_t level = static_cast<int32_t>(whole * 0.01f * 256);
  return PerChannel(colour, [level](int32_t c) { return std::min((c * level) >> 8, 255); });
}

uint32_t ScaleColour(uint32_t colour, int32_t factor) {
  return PerChannel(colour, [factor](int32_t c) {
    const int64_t scaled = (int64_t{c} * factor) >> 8;
    return static_cast<int32_t>(std::clamp<int64_t>(scaled, 0, 255));
  });
}

uint32_t BlendColours(uint32_t colour1, uint32_t colour2, int32_t level) {
  if (level < 1) return colour1;
  if (level > 254) return colour2;
  return PerChannel(colour1, colour2,
                    [level](int32_t c1, int32_t c2) { return c1 + (((c2 - c1) * level) >> 8); });
}

uint32_t BlendColoursByPercent(uint32_t colour1, uint32_t colour2, float percent) {
  return BlendColours(colour1, colour2,
                      BlendLevel(static_cast<long double>(percent) * 0.01 * 255.0));
}

uint32_t BlendColoursByDepth(uint32_t colour1, uint32_t colour2, float depth, float nearDepth,
                             float farDepth) {
  const double low = std::min(nearDepth, farDepth);
  const double high = std::max(nearDepth, farDepth);
  if (depth < low) return colour1;
  if (depth > high) return colour2;
  return BlendColours(colour1, colour2, BlendLevel(256.0 / (high - low) * (depth - low)));
}

uint32_t AddColours(uint32_t colour1, uint32_t colour2) {
  return PerChannel(colour1, colour2,
                    [](int32_t c1, int32_t c2) { return std::min(c1 + c2, 255); });
}

uint32_t SubtractColours(uint32_t colour1, uint32_t colour2) {
  return PerChannel(colour1, colour2, [](int32_t c1, int32_t c2) { return std::max(c1 - c2, 0); });
}

uint32_t MultiplyColours(uint32_t colour1, uint32_t colour2) {
  return PerChannel(colour1, colour2, [](int32_t c1, int32_t c2) { return (c1 * (c2 + 1)) >> 8; });
}

uint32_t HalveColours(uint32_t colour1, uint32_t colour2) {
  return ((colour1 & 0xFEFEFE) + (colour2 & 0xFEFEFE)) >> 1;
}

}  // namespace brisal
