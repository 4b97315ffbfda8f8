#include "tools/gallery/pictures.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "tools/gallery/noise.h"
#include "tools/gallery/rounded.h"

namespace brisal::tools {

namespace {

using host::Image;

constexpr float kPi = 3.14159265f;

// Channels from 0 to 1.
struct Paint {
  float r, g, b;
  float a = 1;
};

constexpr Paint kClear{0, 0, 0, 0};

Paint FromRgb(uint32_t colour) {
  return {static_cast<float>(colour >> 16 & 0xFF) / 255,
          static_cast<float>(colour >> 8 & 0xFF) / 255, static_cast<float>(colour & 0xFF) / 255};
}

Paint Lit(const Paint &paint, float light) {
  return {paint.r * light, paint.g * light, paint.b * light, paint.a};
}

Paint Between(const Paint &p, const Paint &q, float t) {
  return {Mix(p.r, q.r, t), Mix(p.g, q.g, t), Mix(p.b, q.b, t), Mix(p.a, q.a, t)};
}

uint32_t Byte(float v) {
  return static_cast<uint32_t>(std::lround(std::clamp(v, 0.0f, 1.0f) * 255));
}

// What colour a pixel has that samples share; those without alpha do not count.
uint32_t Average(const Paint *samples, int32_t count) {
  float r = 0, g = 0, b = 0, a = 0;
  for (int32_t i = 0; i < count; i++) {
    r += samples[i].r * samples[i].a;
    g += samples[i].g * samples[i].a;
    b += samples[i].b * samples[i].a;
    a += samples[i].a;
  }
  if (a <= 0) return 0;
  return Byte(a / static_cast<float>(count)) << 24 | Byte(r / a) << 16 | Byte(g / a) << 8 |
         Byte(b / a);
}

// An image of at(u, v), u and v from 0 to 1, four samples to a pixel.
template <typename At>
Image Render(int32_t width, int32_t height, At at) {
  Image image(width, height, BRSL_FORMAT_A32);
  const auto w = static_cast<float>(width), h = static_cast<float>(height);
  for (int32_t y = 0; y < height; y++) {
    for (int32_t x = 0; x < width; x++) {
      Paint samples[4];
      for (int32_t i = 0; i < 4; i++) {
        const float dx = i % 2 ? 0.75f : 0.25f, dy = i / 2 ? 0.75f : 0.25f;
        samples[i] = at((static_cast<float>(x) + dx) / w, (static_cast<float>(y) + dy) / h);
      }
      image.Set(x, y, Average(samples, 4));
    }
  }
  return image;
}

Paint BalloonAt(float u, float v, int32_t livery) {
  static constexpr uint32_t kLiveries[4][3] = {{0xE04838, 0xF8E8C8, 0xF0A838},
                                               {0x2870B8, 0xF0F0E8, 0x38B0C8},
                                               {0xF0B030, 0x983070, 0xE05858},
                                               {0x389060, 0xF8E090, 0x205868}};
  const uint32_t *colours = kLiveries[livery % 4];
  const float x = 2 * u - 1;
  if (v > 0.90f)
    return std::fabs(x) < 0.115f && v < 0.985f ? Lit(FromRgb(0x805028), 1.1f - x * 3) : kClear;
  if (v > 0.80f) {
    const float rope = 0.10f + 0.05f * (0.90f - v) / 0.10f;
    return std::fabs(std::fabs(x) - rope) < 0.013f ? FromRgb(0x403020) : kClear;
  }
  // A ball above, a cone that touches it below.
  const float down = v - 0.40f;
  const float ball = down < 0.22f ? std::sqrt(std::max(0.0f, 0.152f - down * down)) * 2.2f : 0;
  const float cone = 0.708f - (v - 0.62f) * 3.05f;
  const float half = down < 0.22f ? ball : cone;
  if (half <= 0 || std::fabs(x) > half) return kClear;
  const float turn = Asin(x / half) / kPi + 0.5f;
  const auto gore = static_cast<int32_t>(turn * 10);
  const bool band = v > 0.36f && v < 0.46f;
  const float light = 0.55f + 0.55f * Sin(turn * kPi + 0.5f) * (1.15f - v * 0.55f);
  return Lit(FromRgb(band ? colours[2] : colours[gore % 2]), light);
}

Paint BubbleAt(float u, float v) {
  const float x = 2 * u - 1, y = 2 * v - 1;
  const float r = std::sqrt(x * x + y * y);
  const float edge = std::clamp((0.98f - r) * 14, 0.0f, 1.0f);
  if (edge <= 0) return {1, 1, 1, 0};
  const float film = kPi * 2 * (r * 1.2f + 0.25f * y - 0.15f * x);
  const Paint hue{0.65f + 0.35f * Sin(film), 0.65f + 0.35f * Sin(film + 2.1f),
                  0.75f + 0.25f * Sin(film + 4.2f)};
  const float gleam = Exp(-18 * ((x + 0.42f) * (x + 0.42f) + (y + 0.48f) * (y + 0.48f)));
  const float echo = 0.5f * Exp(-30 * ((x - 0.45f) * (x - 0.45f) + (y - 0.5f) * (y - 0.5f)));
  Paint paint = Between(hue, {1, 1, 1}, std::min(1.0f, gleam + echo));
  paint.a = edge * std::min(1.0f, 0.10f + 0.72f * r * r * r * r + 0.95f * gleam + 0.6f * echo);
  return paint;
}

// Distance from the edge of a wing, negative outside: an oval with its tip turned by angle.
float Wing(float x, float y, float cx, float cy, float angle, float length, float width) {
  const float dx = x - cx, dy = y - cy;
  const float along = (dx * Cos(angle) + dy * Sin(angle)) / length;
  const float across = (dy * Cos(angle) - dx * Sin(angle)) / (width * (1 + 0.35f * along));
  return 1 - std::sqrt(along * along + across * across);
}

bool Dot(float x, float y, float cx, float cy, float r) {
  return (x - cx) * (x - cx) + (y - cy) * (y - cy) < r * r;
}

Paint ButterflyAt(float u, float v, float spread) {
  const float side = std::fabs(2 * u - 1), y = 2 * v - 1;
  const float x = side / (0.18f + 0.82f * spread);
  const Paint dark = FromRgb(0x201818), pale = FromRgb(0xF8F0D8);
  const float body = Wing(side, y, 0, 0.05f, kPi / 2, 0.44f, 0.055f);
  if (body > 0) return Lit(FromRgb(0x504038), 0.6f + body);
  const float feeler = 0.05f + 0.22f * (-0.35f - y);
  if (y < -0.35f && y > -0.82f && std::fabs(side - feeler) < 0.014f) return dark;
  const float upper = Wing(x, y, 0.47f, -0.32f, -0.62f, 0.56f, 0.34f);
  const float lower = Wing(x, y, 0.34f, 0.40f, 0.95f, 0.44f, 0.29f);
  if (upper > 0) {
    if (Dot(x, y, 0.78f, -0.69f, 0.045f) || Dot(x, y, 0.88f, -0.56f, 0.04f) ||
        Dot(x, y, 0.64f, -0.75f, 0.035f))
      return pale;
    const bool vein = std::fabs(Wing(x, y, 0.47f, -0.32f, -0.62f, 0.56f, 0.11f)) < 0.055f;
    return upper < 0.17f || vein ? dark : FromRgb(kWing);
  }
  if (lower > 0) {
    if (lower < 0.13f) return dark;
    if (Dot(x, y, 0.43f, 0.50f, 0.075f)) return FromRgb(0x3060C0);
    return Between(FromRgb(0xC83828), FromRgb(0xF8D860), std::min(1.0f, lower * 1.1f));
  }
  return kClear;
}

Paint PlanetAt(float u, float v) {
  const float height = Fractal(u * 7 + 0.6f, v * 4.5f, 70, 6);
  const float pole = std::fabs(v - 0.5f) * 2 + 0.12f * (Fractal(u * 14, v * 8, 90, 3) - 0.5f);
  const float cloud = Fractal(u * 9 + v * 3, v * 11, 130, 5);
  Paint ground =
      height < 0.46f
          ? Between(FromRgb(0x082858), FromRgb(0x2880A8), Pow(height / 0.46f, 4.0f))
          : Between(FromRgb(0x507838), FromRgb(0xB89860), std::min(1.0f, (height - 0.46f) * 7));
  if (pole > 0.82f) ground = FromRgb(0xE8F0F8);
  return Between(ground, {1, 1, 1}, std::clamp((cloud - 0.57f) * 5, 0.0f, 0.8f));
}

// Noise on a grid of n units that joins itself.
float Ring(float u, float v, float n, uint32_t seed) {
  const float a = Fractal(u * n, v * n, seed, 4), b = Fractal((u - 1) * n, v * n, seed, 4);
  const float c = Fractal(u * n, (v - 1) * n, seed, 4),
              d = Fractal((u - 1) * n, (v - 1) * n, seed, 4);
  return Mix(Mix(a, b, u), Mix(c, d, u), v);
}

Paint StonesAt(float u, float v) {
  const auto row = static_cast<int32_t>(v * 4);
  const float shifted = u * 2 + (row % 2 ? 0.5f : 0.0f);
  const float column = std::floor(shifted);
  const float x = (shifted - column) * 2, y = v * 4 - static_cast<float>(row);
  const float edge = std::min({x, 2 - x, y, 1 - y}) + 0.09f * (Ring(u, v, 12, 7) - 0.5f);
  const float grain = Ring(u, v, 20, 3);
  if (edge < 0.05f) return Lit(FromRgb(0x605850), 0.6f + 0.5f * grain);
  const float tone = 0.75f + 0.35f * Hash(static_cast<int32_t>(column) % 2, row, 5);
  const float bevel = y < 0.14f || x < 0.12f ? 1.14f : y > 0.88f || x > 1.88f ? 0.8f : 1.0f;
  return Lit(FromRgb(0xC0B4A0), tone * bevel * (0.6f + 0.65f * grain));
}

Paint CrateAt(float u, float v) {
  const float edge = std::min({u, 1 - u, v, 1 - v});
  const float brace = std::min(std::fabs(u - v), std::fabs(u + v - 1));
  const bool frame = edge < 0.13f, bar = brace < 0.09f;
  const bool upright = frame && std::min(u, 1 - u) < std::min(v, 1 - v);
  const float grain = upright ? Fractal(u * 40, v * 5, 21, 3) : Fractal(u * 5, v * 40, 23, 3);
  const bool gap = !frame && !bar && std::fmod(v * 5, 1.0f) < 0.08f;
  const bool shadow =
      (!frame && edge < 0.16f) || (!frame && !bar && brace < 0.115f) || edge < 0.02f;
  const bool nail = Dot(std::min(u, 1 - u), std::min(v, 1 - v), 0.065f, 0.065f, 0.022f);
  const float light = gap || shadow || nail ? 0.4f : frame ? 1.05f : bar ? 0.95f : 0.78f;
  return Lit(FromRgb(0xC89858), light * (0.72f + 0.45f * grain));
}

Paint MarbleAt(float u, float v) {
  const bool white = (static_cast<int32_t>(u * 4) + static_cast<int32_t>(v * 4)) % 2 == 0;
  const float vein = std::fabs(Sin(9 * Ring(u, v, 3, white ? 51 : 57) + 5 * Ring(u, v, 8, 53)));
  const Paint stone = white ? FromRgb(0xF0E8DC) : FromRgb(0x38404C);
  return Lit(stone, 0.72f + 0.3f * std::sqrt(vein));
}

Paint SpectrumAt(float u, float v) {
  if (v > 0.8f) return {u, u, u};
  const float turn = u * kPi * 2, light = 1 - v / 0.8f;
  const auto channel = [&](float shift) {
    const float pure = std::clamp(0.5f + Cos(turn - shift), 0.0f, 1.0f);
    return light < 0.5f ? pure * light * 2 : Mix(pure, 1, light * 2 - 1);
  };
  return {channel(0), channel(kPi * 2 / 3), channel(kPi * 4 / 3)};
}

Paint SpotlightAt(float u, float v) {
  const float x = 2 * u - 1, y = 2 * v - 1;
  const float light = Smooth(std::clamp(1.05f - std::sqrt(x * x + y * y), 0.0f, 1.0f));
  return Lit({1.0f, 0.92f, 0.7f}, light);
}

// Round things that stand on the ground throw a shadow to the lower right.
Paint OnGround(float x, float y, float r, const Paint &colour, float bumps) {
  const float d = std::sqrt(x * x + y * y) * (1 + bumps * (Noise(x * 6 + 9, y * 6 + 9, 61) - 0.5f));
  if (d < r)
    return Lit(colour, 0.85f - 0.45f * (x + y) / r + 0.5f * (Noise(x * 14, y * 14, 63) - 0.5f));
  return Dot(x, y, 0.12f, 0.16f, r) ? FromRgb(0x243420) : kClear;
}

Paint HouseAt(float x, float y) {
  if (std::fabs(x) < 0.62f && y > -0.6f && y < 0.42f) {
    const float tiles = 0.85f + 0.15f * Cos(y * 40) + 0.06f * Cos(x * 30);
    return Lit(FromRgb(y < -0.09f ? 0xB04838 : 0x8C3430), tiles);
  }
  if (std::fabs(x) < 0.56f && y >= 0.42f && y < 0.72f) {
    return std::fabs(x) < 0.13f ? FromRgb(0x503020) : FromRgb(0xE8DCC0);
  }
  return x > -0.5f && x < 0.74f && y > -0.45f && y < 0.8f ? FromRgb(0x243420) : kClear;
}

// u and v from 0 to 1 in a tile.
Paint TileAt(int32_t tile, float u, float v) {
  const float x = 2 * u - 1, y = 2 * v - 1;
  const float grain = Ring(u, v, 9, 71);
  switch (tile) {
    case 0: return Lit(FromRgb(0x6C9C48), 0.75f + 0.5f * grain);
    case 1:
      return Lit(FromRgb(0x2C6CA8),
                 0.85f + 0.3f * Sin(kPi * 2 * (2 * v + 0.35f * Sin(kPi * 2 * u))) * grain);
    case 2: return Lit(FromRgb(0xD8C088), 0.85f + 0.3f * grain);
    case 3: return OnGround(x, y, 0.66f, FromRgb(0x3C7838), 0.5f);
    case 4: {
      const Paint left = OnGround(x + 0.4f, y - 0.25f, 0.34f, FromRgb(0x709830), 0.4f);
      return left.a > 0 ? left : OnGround(x - 0.35f, y + 0.25f, 0.42f, FromRgb(0x588838), 0.4f);
    }
    default: return HouseAt(x, y);
  }
}

}  // namespace

Image Balloon(int32_t size, int32_t livery) {
  return Render(size, size, [&](float u, float v) { return BalloonAt(u, v, livery); });
}

Image Bubble(int32_t size) { return Render(size, size, BubbleAt); }

Image Butterfly(int32_t size, float spread) {
  return Render(size, size, [&](float u, float v) { return ButterflyAt(u, v, spread); });
}

Image ButterflySheet(int32_t size) {
  return Render(size * 4, size * 2, [](float u, float v) {
    const float column = std::floor(u * 4), row = std::floor(v * 2);
    const float spread = 0.5f + 0.5f * Cos(kPi * (row * 4 + column) / 8);
    return ButterflyAt(u * 4 - column, v * 2 - row, spread);
  });
}

const Image &Planet() {
  static const Image image = Render(256, 128, PlanetAt);
  return image;
}

const Image &Coast() {
  static const Image image = Render(
      288, 432, [](float u, float v) { return PlanetAt(0.1f + 0.5f * u, 0.12f + 0.72f * v); });
  return image;
}

const Image &Stones() {
  static const Image image = Render(128, 128, StonesAt);
  return image;
}

const Image &Crate() {
  static const Image image = Render(64, 64, CrateAt);
  return image;
}

const Image &Marble() {
  static const Image image = Render(128, 128, MarbleAt);
  return image;
}

const Image &MapSheet() {
  static const Image image = Keyed(Render(6 * kTile, kTile, [](float u, float v) {
    const float tile = std::floor(u * 6);
    return TileAt(static_cast<int32_t>(tile), u * 6 - tile, v);
  }));
  return image;
}

Image Spectrum(int32_t width, int32_t height) { return Render(width, height, SpectrumAt); }

Image Spotlight(int32_t width, int32_t height) { return Render(width, height, SpotlightAt); }

Image Keyed(const Image &picture) {
  Image result(picture.Width(), picture.Height(), BRSL_FORMAT_A32);
  for (int32_t y = 0; y < picture.Height(); y++) {
    for (int32_t x = 0; x < picture.Width(); x++) {
      const uint32_t colour = picture.Get(x, y);
      result.Set(x, y, colour >> 31 ? colour | 0xFF000000 : kKeyColour);
    }
  }
  return result;
}

}  // namespace brisal::tools
