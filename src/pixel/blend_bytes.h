#pragma once

#include <cstdint>
#include <utility>

#include "pixel/instructions.h"
#include "pixel/lanes.h"

// Colours between others: what bilinear filters of all kinds are made of.

namespace brisal {

BRISAL_INLINE const uint8_t *Bytes(const uint32_t *colours) {
  return reinterpret_cast<const uint8_t *>(colours);
}

BRISAL_INLINE uint8_t *Bytes(uint32_t *colours) { return reinterpret_cast<uint8_t *>(colours); }

// Twice the weight that lies in bits 8-15 of 16.16 places, for both halves of each word.
template <class V>
BRISAL_INLINE auto TwiceInHalves(V place) {
  const V weight = (place >> 7) & 0x1FEu;
  return As<int16_t>(weight | weight << 16);
}

// The weights of right-hand neighbours in a vector of words, and what a row's step between vectors is.
template <class V>
struct Fractions {
  static constexpr uint32_t kLanes = sizeof(V) / 4;

  BRISAL_INLINE Fractions(uint32_t u, uint32_t du)
      : place(Splat<V>(u) + Splat<V>(du) * LaneNumbers<V>(std::make_index_sequence<kLanes>{})),
        step(Splat<V>(du * kLanes)) {}

  BRISAL_INLINE auto Get() const { return TwiceInHalves(place); }
  BRISAL_INLINE void Advance() { place += step; }

  V place;
  V step;
};

// The even and the odd bytes of words, in 16-bit lanes.
template <class H>
struct Halves {
  H even;
  H odd;
};

template <class V>
BRISAL_INLINE auto Split(V words) {
  const auto halves = As<int16_t>(words);
  return Halves<Vector<int16_t, sizeof(V)>>{halves & 0xFF, As<int16_t>(As<uint16_t>(words) >> 8)};
}

template <class V, class H>
BRISAL_INLINE V Join(const Halves<H> &halves) {
  return As<uint32_t>(halves.even | halves.odd << 8);
}

// Blends lanes below 256 from one to the other by weights below 256, which come doubled: so 16 bits hold
// both factors, with their sign.
template <class H>
BRISAL_INLINE H BlendLanes(H from, H to, H twice) {
  H part;
  MultiplyHigh((to - from) << 7, twice, part);
  return from + part;
}

template <class H>
BRISAL_INLINE Halves<H> BlendHalves(const Halves<H> &from, const Halves<H> &to, H twice) {
  return {BlendLanes(from.even, to.even, twice), BlendLanes(from.odd, to.odd, twice)};
}

// Blends bytes from one vector of words to another.
template <class V, class H>
BRISAL_INLINE V BlendBytes(V from, V to, H twice) {
  return Join<V>(BlendHalves(Split(from), Split(to), twice));
}

}  // namespace brisal
