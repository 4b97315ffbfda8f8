// The generator of random numbers as its definition puts it.
#pragma once

#include <cmath>
#include <cstdint>

namespace reference {

struct Generator {
  uint32_t x = 30903, y = 30903, z = 30903, w = 30903, carry = 0;

  void Seed(int32_t seed) {
    if (seed != 0) x = y = z = w = static_cast<uint32_t>(seed);
  }

  uint32_t Next() {
    x = 69069 * x + 1;
    y ^= y << 13, y ^= y >> 17, y ^= y << 5;
    const uint32_t t = carry + 2 * w + z;
    carry = ((carry >> 2) + (z >> 2) + (w >> 3)) >> 30;
    z = w, w = t;
    return x + y + w;
  }

  float Draw(float max) {
    const double m = double{max} + double{0.99f};
    if (max == 0 || std::isnan(max)) return max;
    if (m <= 0) return static_cast<float>(m + 1);
    if (max < 0) return 0;
    double drawn;
    do {
      drawn = Next() * 2.3283064365959952e-10 * m;
    } while (drawn > max);
    return static_cast<float>(drawn);
  }

  uint32_t Colour() {
    uint32_t colour = 0;
    for (int i = 0; i < 3; i++) colour = colour << 8 | static_cast<uint32_t>(Draw(255));
    return colour;
  }
};

}  // namespace reference
