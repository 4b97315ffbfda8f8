#include "hostlang/random.h"

#include <cmath>

namespace brisal {

uint32_t NextRandom(RandomState &state) {
  state.x = 69069 * state.x + 1;

  state.y ^= state.y << 13;
  state.y ^= state.y >> 17;
  state.y ^= state.y << 5;

  const uint32_t sum = state.carry + 2 * state.w + state.z;
  state.carry = ((state.carry >> 2) + (state.z >> 2) + (state.w >> 3)) >> 30;
  state.z = state.w;
  state.w = sum;

  return state.x + state.y + state.w;
}

void Randomize(RandomState &state, uint32_t seed) {
  if (seed == 0) return;
  state.x = state.y = state.z = state.w = seed;
}

float RandomUpTo(RandomState &state, float max) {
  constexpr double kOnePart = 2.3283064365959952e-10;  // of 4294967297
  constexpr double kMargin = 0.99f;

  if (max == 0) return 0;
  const double span = max + kMargin;
  if (span <= 0) return static_cast<float>(span + 1.0);
  // No draw is up to a negative number, nor to what is not a number.
  if (max < 0) return 0;
  if (std::isnan(max)) return max;
  double drawn;
  do {
    drawn = NextRandom(state) * kOnePart * span;
  } while (!(drawn <= max));
  return static_cast<float>(drawn);
}

}  // namespace brisal
