#pragma once

#include <cstdint>

#include "core/reciprocal.h"
#include "pixel/lanes.h"

namespace brisal {

// The channels of a colour in 16.16: lanes blue, green and red, and one of no meaning.
using FixedColour = Vector<uint32_t, 16>;

// A colour 0x00RRGGBB.
BRISAL_INLINE FixedColour Fixed(uint32_t colour) {
  return (Splat<FixedColour>(colour) << FixedColour{16, 8, 0, 0}) & 0xFF0000u;
}

// The whole parts as a colour, where each is at most 255.
BRISAL_INLINE uint32_t Whole(FixedColour fixed) {
  const auto bytes = __builtin_convertvector(fixed >> 16, Vector<uint8_t, 4>);
  uint32_t colour;
  std::memcpy(&colour, &bytes, sizeof colour);
  return colour;
}

// The step that leads from one colour to the other in as many steps as `perStep` divides by. Channels
// differ by less than 2^24, so the product needs no check.
BRISAL_INLINE FixedColour StepBetween(FixedColour from, FixedColour to, Reciprocal perStep) {
  using Doubles = Vector<double, 32>;
  const auto way = __builtin_convertvector(As<int32_t>(to - from), Doubles);
  return As<uint32_t>(
      __builtin_convertvector(way * Splat<Doubles>(perStep.Value()), Vector<int32_t, 16>));
}

BRISAL_INLINE FixedColour Times(FixedColour step, int64_t count) {
  return step * Splat<FixedColour>(static_cast<uint32_t>(count));
}

}  // namespace brisal
