#pragma once

#include <cstdint>
#include <utility>

#include "pixel/lanes.h"

// Colours between others: what bilinear filters of all kinds are made of.

namespace brisal {

BRISAL_INLINE const uint8_t *Bytes(const uint32_t *colours) {
  return reinterpret_cast<const uint8_t *>(colours);
}

BRISAL_INLINE uint8_t *Bytes(uint32_t *colours) { return reinterpret_cast<uint8_t *>(colours); }

// The weights of right-hand neighbours in a vector of words, and what a row's step between vectors is.
template <class V>
struct Fractions {
  static constexpr uint32_t kLanes = sizeof(V) / 4;

  BRISAL_INLINE Fractions(uint32_t u, uint32_t du)
      : place(Splat<V>(u) + Splat<V>(du) * LaneNumbers<V>(std::make_index_sequence<kLanes>{})),
        step(Splat<V>(du * kLanes)) {}

  BRISAL_INLINE V Get() const { return (place >> 8) & 255u; }
  BRISAL_INLINE void Advance() { place += step; }

  V place;
  V step;
};

// A weight for both halves of each word.
template <class V>
BRISAL_INLINE auto InHalves(V weight) {
  return As<uint16_t>(weight | weight << 16);
}

// Blends bytes from one vector of words to another by weights below 256, both halves of a word by one.
template <class V, class H>
BRISAL_INLINE V BlendBytes(V from, V to, H weight) {
  const auto a = As<uint16_t>(from);
  const auto b = As<uint16_t>(to);
  const auto even = (a << 8) + ((b & 0xFF) - (a & 0xFF)) * weight;
  const auto odd = (a & 0xFF00) + ((b >> 8) - (a >> 8)) * weight;
  return As<uint32_t>((even >> 8) | (odd & 0xFF00));
}

}  // namespace brisal
