#pragma once

#include <cmath>
#include <cstdint>

namespace brisal::tools {

// 0 to 1, the same for the same three numbers.
inline float Hash(int32_t x, int32_t y, uint32_t seed) {
  uint32_t v = static_cast<uint32_t>(x) * 0x9E3779B1u ^ static_cast<uint32_t>(y) * 0x85EBCA77u ^
               seed * 0xC2B2AE3Du;
  v = (v ^ v >> 15) * 0x2C1B3C6Du;
  v = (v ^ v >> 12) * 0x297A2D39u;
  return static_cast<float>((v ^ v >> 15) >> 8) / 16777215.0f;
}

inline float Smooth(float t) { return t * t * (3 - 2 * t); }

inline float Mix(float a, float b, float t) { return a + (b - a) * t; }

// Smooth noise, 0 to 1, with one bump to a unit.
inline float Noise(float x, float y, uint32_t seed) {
  const float fx = std::floor(x), fy = std::floor(y);
  const auto ix = static_cast<int32_t>(fx), iy = static_cast<int32_t>(fy);
  const float tx = Smooth(x - fx), ty = Smooth(y - fy);
  const float upper = Mix(Hash(ix, iy, seed), Hash(ix + 1, iy, seed), tx);
  const float lower = Mix(Hash(ix, iy + 1, seed), Hash(ix + 1, iy + 1, seed), tx);
  return Mix(upper, lower, ty);
}

// Noise with finer and fainter noise on top, 0 to 1.
inline float Fractal(float x, float y, uint32_t seed, int32_t octaves) {
  float sum = 0, weight = 0.5f, total = 0;
  for (int32_t i = 0; i < octaves; i++) {
    sum += weight * Noise(x, y, seed + static_cast<uint32_t>(i));
    total += weight;
    weight *= 0.5f;
    x *= 2.03f;
    y *= 2.03f;
  }
  return sum / total;
}

}  // namespace brisal::tools
