#pragma once

#include <cstdint>
#include <type_traits>

#include "pixel/format.h"

// What a blit makes of a stored source pixel s and the target pixel d that it lands on.

namespace brisal {

template <class T, class S>
constexpr bool kSameStorage = std::is_same_v<T, S> || (T::kBytes == 4 && S::kBytes == 4);

template <class T, class S>
BRISAL_INLINE uint32_t Convert(uint32_t s) {
  if constexpr (kSameStorage<T, S>) return s;
  return T::Pack(S::Widen(s));
}

// Leaves out the pixels whose stored source value is the key.
template <class T, class S>
struct CopyUnlessKey {
  BRISAL_INLINE static uint32_t Combine(uint32_t d, uint32_t s, uint32_t key) {
    return s == key ? d : Convert<T, S>(s);
  }
};

// Leaves out the pixels whose converted value is the key.
template <class T, class S>
struct CopyUnlessConvertedKey {
  BRISAL_INLINE static uint32_t Combine(uint32_t d, uint32_t s, uint32_t key) {
    const uint32_t converted = Convert<T, S>(s);
    return converted == key ? d : converted;
  }
};

// d + floor((s - d) * a / 2^Bits) on the channel under `mask`, whose product may use all 32 bits.
template <int Bits>
BRISAL_INLINE uint32_t BlendField(uint32_t d, uint32_t s, uint32_t a, uint32_t mask) {
  const uint32_t one = 1u << Bits;
  return (((d & mask) * (one - a) + (s & mask) * a) >> Bits) & mask;
}

// Blends a source into 24 bits by its own alpha, which is opaque from kOpaque on.
template <class T, uint32_t kOpaque>
struct BlendAlpha {
  BRISAL_INLINE static uint32_t Combine(uint32_t d, uint32_t s, uint32_t) {
    const uint32_t a = s >> 24;
    const uint32_t blended = BlendField<8>(d, s, a, 0xFF00FF) | BlendField<8>(d, s, a, 0xFF00);
    const uint32_t shown = a >= kOpaque ? Convert<T, Argb32>(s) : blended;
    return a == 0 ? d : shown;
  }
};

}  // namespace brisal
