#include "tools/gallery/landscape.h"

#include <algorithm>
#include <vector>

#include "tools/gallery/noise.h"
#include "tools/gallery/rounded.h"

// Places are fractions of the picture: u grows to the right, v downwards, both 0 to 1.

namespace brisal::tools {

namespace {

struct Light {
  float r, g, b;
};

Light operator+(Light a, Light b) { return {a.r + b.r, a.g + b.g, a.b + b.b}; }
Light operator*(Light a, float k) { return {a.r * k, a.g * k, a.b * k}; }
Light Mix(Light a, Light b, float t) { return a * (1 - t) + b * t; }

constexpr float kSunU = 0.66f, kSunV = 0.355f;
constexpr float kShore = 0.635f;
constexpr Light kSunlight = {1.0f, 0.86f, 0.58f};
constexpr Light kHaze = {0.93f, 0.70f, 0.56f};

float Step(float from, float to, float x) {
  return Smooth(std::clamp((x - from) / (to - from), 0.0f, 1.0f));
}

class Scenery {
 public:
  explicit Scenery(float aspect) : aspect_(aspect) {}

  Light At(float u, float v) const {
    Light light = v < kShore ? Land(u, v) : Water(u, v);
    light = Bank(light, u, v);
    return Pines(light, u, v);
  }

 private:
  float SunDistance(float u, float v) const {
    const float across = (u - kSunU) * aspect_, down = v - kSunV;
    return std::sqrt(across * across + down * down);
  }

  Light Sky(float u, float v) const {
    const Light zenith = {0.16f, 0.30f, 0.52f}, middle = {0.55f, 0.62f, 0.72f};
    const float t = v / kShore;
    Light sky = Mix(zenith, middle, Step(0.0f, 0.55f, t));
    sky = Mix(sky, kHaze, Step(0.35f, 0.95f, t));
    const float d = SunDistance(u, v);
    sky = Clouds(sky, u, v, d);
    sky = sky + kSunlight * (0.55f * Exp(-d * 5.5f) + 0.25f * Exp(-d * 18.0f));
    return Mix({1.0f, 1.0f, 0.94f}, sky, Step(0.036f, 0.042f, d));
  }

  Light Clouds(Light sky, float u, float v, float sunDistance) const {
    const float spread = 1.0f / (0.25f + kShore - v);
    const float x = (u - 0.5f) * aspect_ * spread * 1.1f, y = spread * 2.6f;
    const float density = Fractal(x, y, 11, 5);
    const float cover = Step(0.47f, 0.72f, density);
    const float lit = std::clamp(0.35f + 1.1f * Exp(-sunDistance * 2.2f), 0.0f, 1.0f);
    const Light cloud = Mix({0.60f, 0.55f, 0.62f}, {1.0f, 0.83f, 0.68f}, lit);
    return Mix(sky, cloud, cover * 0.75f);
  }

  // The height of the skyline of a row of hills; 0 is the farthest.
  float Ridge(int32_t hill, float u) const {
    static constexpr float kTop[] = {0.395f, 0.475f, 0.545f, 0.60f};
    static constexpr float kSwing[] = {0.20f, 0.15f, 0.11f, 0.06f};
    static constexpr float kBumps[] = {2.2f, 2.6f, 3.4f, 5.0f};
    const auto seed = static_cast<uint32_t>(hill) * 31 + 5;
    const float x = u * aspect_ * kBumps[hill] + static_cast<float>(hill) * 7.3f;
    const float shape = Fractal(x, 0.5f, seed, hill == 0 ? 6 : 5) - 0.5f;
    return kTop[hill] - kSwing[hill] * shape;
  }

  Light Land(float u, float v) const {
    static constexpr Light kSlopes[] = {
        {0.42f, 0.45f, 0.58f}, {0.30f, 0.38f, 0.44f}, {0.19f, 0.30f, 0.27f}, {0.11f, 0.20f, 0.14f}};
    Light light = Sky(u, v);
    const float sun = Exp(-std::fabs(u - kSunU) * 3.0f);
    for (int32_t hill = 0; hill < 4; hill++) {
      const float below = v - Ridge(hill, u);
      if (below < 0) continue;
      const float far = static_cast<float>(3 - hill) / 3;
      const float wood = Fractal(u * aspect_ * 40, v * 70, 77 + static_cast<uint32_t>(hill), 3);
      Light slope = kSlopes[hill] * (0.8f + 0.45f * wood * (1.1f - 0.7f * far));
      slope = slope + kSunlight * (0.16f * sun * Exp(-below * 45));
      light = Mix(slope, kHaze, (0.06f + 0.34f * far) * Step(0.0f, 0.13f, below));
    }
    return light;
  }

  Light Water(float u, float v) const {
    const float depth = (v - kShore) / (1 - kShore);
    const float fine = 1.0f / (0.06f + depth);
    const float wave = Fractal(u * aspect_ * 6 * fine, 26 * fine, 301, 4) - 0.5f;
    const float mirrored = kShore - (v - kShore) * 1.05f + wave * (0.02f + 0.07f * depth);
    Light light = Land(u + wave * 0.02f, std::clamp(mirrored, 0.0f, kShore));
    light = Mix(light * 0.82f, {0.09f, 0.20f, 0.29f}, 0.18f + 0.38f * depth);
    const float column = std::fabs(u - kSunU) * aspect_ / (0.035f + 0.12f * depth);
    const float glitter = Step(0.05f, 0.22f, wave) * Exp(-column * column);
    const float shoreline = Exp(-depth * 60) * 0.18f;
    return light + kSunlight * (0.75f * glitter + shoreline + 0.10f * Exp(-column));
  }

  // Grass in the near corner.
  Light Bank(Light light, float u, float v) const {
    const float blades = 0.035f * Hash(static_cast<int32_t>(u * aspect_ * 420), 3, 9) +
                         0.05f * Noise(u * aspect_ * 14, 0, 21);
    const float top = 0.90f + 0.13f * u * u * 2.2f - blades;
    const float below = v - top;
    if (below < 0) return light;
    const float tuft = Fractal(u * aspect_ * 60, v * 24, 55, 3);
    const Light grass = Mix({0.05f, 0.09f, 0.05f}, {0.27f, 0.27f, 0.10f}, tuft * tuft * 1.3f);
    return Mix(grass + kSunlight * (0.10f * Exp(-below * 60)), grass, Step(0, 0.05f, below));
  }

  Light Pines(Light light, float u, float v) const {
    struct Pine {
      float u, foot, height;
    };
    static constexpr Pine kPines[] = {
        {0.045f, 0.93f, 0.62f}, {0.125f, 0.92f, 0.44f}, {0.195f, 0.925f, 0.27f}};
    for (const Pine &pine : kPines) {
      const float up = (pine.foot - v) / pine.height;
      if (up < 0 || up > 1) continue;
      const float side = std::fabs(u - pine.u) * aspect_ / pine.height;
      const float tier = (1 - up) * 17 - std::floor((1 - up) * 17);
      const float ragged =
          0.7f + 0.6f * Hash(static_cast<int32_t>(v * 330), u < pine.u ? 1 : 2, 41);
      const float reach = up < 0.06f ? 0.012f : (1 - up) * (0.09f + 0.075f * tier) * ragged;
      if (side > reach + 0.004f) continue;
      const float needles = Fractal(u * aspect_ * 130, v * 110, 13, 2);
      const float warm = u > pine.u ? 0.10f * side / (reach + 0.004f) : 0.0f;
      light = Light{0.045f, 0.085f, 0.065f} * (0.6f + needles) + kSunlight * warm;
    }
    return light;
  }

  float aspect_;
};

uint32_t Byte(float light, float grain) {
  return static_cast<uint32_t>(std::clamp(light * 255 + grain, 0.0f, 255.0f));
}

}  // namespace

host::Image Landscape(int32_t width, int32_t height) {
  const auto w = static_cast<float>(width), h = static_cast<float>(height);
  const Scenery scenery(w / h);
  host::Image image(width, height, BRSL_FORMAT_A32);
  std::vector<uint32_t> row(static_cast<size_t>(width));
  for (int32_t y = 0; y < height; y++) {
    for (int32_t x = 0; x < width; x++) {
      const float u = (static_cast<float>(x) + 0.5f) / w, v = (static_cast<float>(y) + 0.5f) / h;
      const Light light = scenery.At(u, v);
      const float grain = (Hash(x, y, 999) - 0.5f) * 5 + 0.5f;
      row[static_cast<size_t>(x)] = 0xFF000000 | Byte(light.r, grain) << 16 |
                                    Byte(light.g, grain) << 8 | Byte(light.b, grain);
    }
    image.SetRow(y, row.data());
  }
  return image;
}

}  // namespace brisal::tools
