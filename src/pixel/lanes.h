#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

#include "core/cpu.h"

// Vectors of channels. The compiler's generic vectors are used throughout: the same source becomes
// whatever instructions the function that it is inlined into may use.

#define BRISAL_INLINE [[gnu::always_inline]] inline

namespace brisal {

template <class T, int Bytes>
struct VectorOf {
  typedef T type __attribute__((vector_size(Bytes)));
};

template <class T, int Bytes>
using Vector = typename VectorOf<T, Bytes>::type;

template <class V>
BRISAL_INLINE V LoadVector(const uint8_t *p) {
  V v;
  std::memcpy(&v, p, sizeof v);
  return v;
}

template <class V>
BRISAL_INLINE void StoreVector(uint8_t *p, V v) {
  std::memcpy(p, &v, sizeof v);
}

// Keeps what is used several times in a register: GCC would load the widest anew for each use.
template <class V>
BRISAL_INLINE V Held(V v) {
#if BRISAL_HAS_AVX512 && !defined(__clang__)
  if constexpr (sizeof(V) == 64) asm("" : "+v"(v));
#endif
  return v;
}

// The same bits as lanes of another type.
template <class T, class V>
BRISAL_INLINE auto As(V v) {
  return (Vector<T, sizeof(V)>)v;
}

// x in every lane. GCC makes a broadcast of an array filled in a loop; V{} + x, in a function whose own
// set has no such vector, would insert lane by lane.
template <class V, class T>
BRISAL_INLINE V Splat(T x) {
  T lanes[sizeof(V) / sizeof(T)];
  for (T &lane : lanes) lane = x;
  V v;
  std::memcpy(&v, lanes, sizeof v);
  return v;
}

template <class V>
BRISAL_INLINE bool HasBits(V v) {
  uint64_t bits = 0;
  for (size_t i = 0; i < sizeof(V) / 8; ++i) bits |= As<uint64_t>(v)[i];
  return bits != 0;
}

// 0, 1, 2 ... as many as there are numbers I.
template <class V, size_t... I>
BRISAL_INLINE V LaneNumbers(std::index_sequence<I...>) {
  return V{I...};
}

template <class V, int Lane, class W, size_t... I>
BRISAL_INLINE V SplatLaneOf(W lanes, std::index_sequence<I...>) {
  return __builtin_shufflevector(lanes, lanes, (0 * I + Lane)...);
}

// One lane of `lanes` in every lane.
template <class V, int Lane, class W>
BRISAL_INLINE V SplatLane(W lanes) {
  // GCC widens by way of memory where that is more than twice as wide.
  if constexpr (sizeof(V) > 2 * sizeof(W)) return Splat<V>(lanes[Lane]);
  return SplatLaneOf<V, Lane>(lanes, std::make_index_sequence<sizeof(V) / sizeof(lanes[0])>{});
}

// The high 16 bits of each word from one vector, the low ones from another whose high ones are 0. Where
// the set has a blend of 16-bit lanes, that is one instruction.
template <class V>
BRISAL_INLINE V HighHalves(V high, V low) {
  if constexpr (sizeof(V) == 32) {
    return As<uint32_t>(__builtin_shufflevector(As<uint16_t>(high), As<uint16_t>(low), 16, 1, 18, 3,
                                                20, 5, 22, 7, 24, 9, 26, 11, 28, 13, 30, 15));
  } else {
    return (high & 0xFFFF0000u) | low;
  }
}

template <class V>
BRISAL_INLINE V Min(V a, V b) {
  return a < b ? a : b;
}

template <class V>
BRISAL_INLINE V Max(V a, V b) {
  return a > b ? a : b;
}

// The smaller of 16-bit lanes below 0x8000, where the signed instruction is the one that every set has.
template <class V>
BRISAL_INLINE V Least(V a, V b) {
  return As<uint16_t>(Min(As<int16_t>(a), As<int16_t>(b)));
}

}  // namespace brisal
