#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "pixel/run.h"

namespace brisal {

// A packed colour of three bytes, in their order in memory.
BRISAL_INLINE uint32_t TripleOf(uint32_t packed) { return __builtin_bswap32(packed) >> 8; }

// The pixel at the start of a word of memory, as LoadOne gives it.
template <class F>
BRISAL_INLINE auto FirstOf(uint32_t word) {
  Vector<typename F::Lane, F::kBytes == 2 ? 2 : 4> pixel;
  std::memcpy(&pixel, &word, sizeof pixel);
  return pixel;
}

// One pixel of a packed colour, as LoadOne gives it.
template <class F>
BRISAL_INLINE auto OneOf(uint32_t packed) {
  return FirstOf<F>(F::kBytes == 3 ? TripleOf(packed) : packed);
}

// Words of 24-bit pixels repeat after three.
template <class V, int First, size_t... I>
BRISAL_INLINE V RepeatedWords(Vector<uint32_t, 16> three, std::index_sequence<I...>) {
  if constexpr (sizeof(V) > 32) {
    // Widened in steps: GCC would go by way of memory.
    const auto twice = __builtin_shufflevector(three, three, 0, 1, 2, 3, 0, 1, 2, 3);
    const auto wide = __builtin_shufflevector(twice, twice, (I % 8)...);
    return As<uint8_t>(__builtin_shufflevector(wide, wide, ((First + I) % 3)...));
  } else {
    return As<uint8_t>(__builtin_shufflevector(three, three, ((First + I) % 3)...));
  }
}

// A source of one packed colour, repeated. What it repeats is made with it, as GCC would make it for every
// row; its groups in registers, as small jobs would wait for what they have just stored.
template <class F>
class Flat {
 public:
  BRISAL_INLINE explicit Flat(uint32_t packed) {
    if constexpr (F::kBytes == 3) {
      // The first two words; the third is what begins at their third byte.
      const uint64_t pair = TripleOf(packed) * (1 | uint64_t{1} << 24 | uint64_t{1} << 48);
      words_[0] = static_cast<uint32_t>(pair);
      words_[1] = static_cast<uint32_t>(pair >> 32);
      words_[2] = static_cast<uint32_t>(pair >> 16);
    } else {
      words_[0] = F::kBytes == 2 ? (packed & 0xFFFF) * 0x10001u : packed;
    }
  }

  BRISAL_INLINE uint32_t Word() const requires(F::kBytes != 3) { return words_[0]; }
  BRISAL_INLINE Flat Behind(ptrdiff_t) const { return *this; }
  BRISAL_INLINE auto One(ptrdiff_t) const { return FirstOf<F>(words_[0]); }

  template <int VectorBytes>
  struct Cursor {
    BRISAL_INLINE const Group<F, VectorBytes> &Get() const { return group; }
    BRISAL_INLINE const Group<F, VectorBytes> &Ahead(ptrdiff_t) const { return group; }
    BRISAL_INLINE void Advance() {}
    Group<F, VectorBytes> group;
  };

  template <int VectorBytes>
  BRISAL_INLINE Cursor<VectorBytes> Start() const {
    using G = Group<F, VectorBytes>;
    using V = typename G::V;
    if constexpr (F::kBytes == 3) {
      constexpr int kWords = VectorBytes / 4;
      constexpr auto kLanes = std::make_index_sequence<kWords>{};
      if constexpr (VectorBytes == 4) {
        using Word = Vector<uint32_t, 4>;
        return {{{As<uint8_t>(Word{words_[0]}), As<uint8_t>(Word{words_[1]}),
                  As<uint8_t>(Word{words_[2]})}}};
      }
      const Vector<uint32_t, 16> three = {words_[0], words_[1], words_[2], 0};
      return {{{RepeatedWords<V, 0>(three, kLanes), RepeatedWords<V, kWords % 3>(three, kLanes),
                RepeatedWords<V, 2 * kWords % 3>(three, kLanes)}}};
    } else {
      return {{{As<typename F::Lane>(Splat<Vector<uint32_t, VectorBytes>>(words_[0]))}}};
    }
  }

 private:
  // What pixels of the colour repeat in memory.
  uint32_t words_[F::kBytes == 3 ? 3 : 1];
};

template <class F, class R>
constexpr bool kPaysInParts<Flat<F>, R> = R::kReadsTarget;

}  // namespace brisal
