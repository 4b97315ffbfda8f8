#pragma once

#include <cstdint>

#include "core/reciprocal.h"
#include "pixel/instructions.h"
#include "pixel/lanes.h"

// Values in 16.16 that change together along an edge or a span, as lanes of a vector.

namespace brisal {

// The channels of a colour: blue, green and red, and a lane of no meaning.
using FixedColour = Vector<uint32_t, 16>;

// The coordinates of a texel, u and v, not negative.
using FixedTexel = Vector<uint32_t, 8>;

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

// The step that leads from one value to the other in as many steps as `perStep` divides by. Differences
// fit 32 bits, so the product needs no check.
template <class V>
BRISAL_INLINE V StepBetween(V from, V to, Reciprocal perStep) {
  using Doubles = Vector<double, 2 * sizeof(V)>;
  Doubles way;
  ToDoubles(As<int32_t>(to - from), way);
  return As<uint32_t>(
      __builtin_convertvector(way * Splat<Doubles>(perStep.Value()), Vector<int32_t, sizeof(V)>));
}

template <class V>
BRISAL_INLINE V Times(V step, int64_t count) {
  return step * Splat<V>(static_cast<uint32_t>(count));
}

}  // namespace brisal
