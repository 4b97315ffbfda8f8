#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "pixel/format.h"
#include "pixel/run.h"
#include "pixel/triples.h"

namespace brisal {

// Every other lane of two vectors, from the first on or from the second.
template <int First, class V, size_t... I>
BRISAL_INLINE V EveryOther(V a, V b, std::index_sequence<I...>) {
  return __builtin_shufflevector(a, b, (2 * I + First)...);
}

// Words cut to their low halves, and to their high ones.
template <class W>
BRISAL_INLINE auto CutWords(W a, W b) {
  constexpr auto kLanes = std::make_index_sequence<sizeof(W) / 2>{};
  return EveryOther<0>(As<uint16_t>(a), As<uint16_t>(b), kLanes);
}

template <class W>
BRISAL_INLINE auto HighWords(W a, W b) {
  constexpr auto kLanes = std::make_index_sequence<sizeof(W) / 2>{};
  return EveryOther<1>(As<uint16_t>(a), As<uint16_t>(b), kLanes);
}

// As many pixels as V has words, widened to colours.
template <class S, class V>
BRISAL_INLINE V LoadColours(const uint8_t *p) {
  if constexpr (S::kBytes == 4) {
    return LoadVector<V>(p);
  } else if constexpr (S::kBytes == 2) {
    if constexpr (sizeof(V) == 16) {
      // The plain set has no conversion, but interleaves.
      const auto pixels = As<uint16_t>(Vector<uint64_t, 16>{LoadVector<uint64_t>(p), 0});
      const Vector<uint16_t, 16> zero = {};
      return S::Widen(
          As<uint32_t>(__builtin_shufflevector(pixels, zero, 0, 8, 1, 9, 2, 10, 3, 11)));
    } else {
      return S::Widen(__builtin_convertvector(LoadVector<Vector<uint16_t, sizeof(V) / 2>>(p), V));
    }
  } else {
    return LoadTriples<V>(p);
  }
}

// Pixels of one 16-bit format in the other: green gains a bit, or loses one.
template <class V>
BRISAL_INLINE V Resized(Rgb565, V pixels555) {
  return ((pixels555 << 1) & 0xFFC0) | (pixels555 & 0x1F);
}

template <class V>
BRISAL_INLINE V Resized(Rgb555, V pixels565) {
  return ((pixels565 >> 1) & 0x7FE0) | (pixels565 & 0x1F);
}

// A source of pixels in memory in another format than the target's.
template <class T, class S>
class Converted {
 public:
  BRISAL_INLINE explicit Converted(const uint8_t *first) : first_(first) {}

  // Where pixels become wider, most of the work is storing them.
  BRISAL_INLINE Converted Behind(ptrdiff_t pixels) const requires(T::kBytes == 4) {
    return Converted(first_ + pixels * S::kBytes);
  }

  BRISAL_INLINE auto One(ptrdiff_t i) const {
    uint8_t stored[4];
    T::Store(stored, T::Pack(S::Widen(S::Load(first_ + i * S::kBytes))));
    return LoadOne<T>(stored);
  }

  template <int VectorBytes>
  struct Cursor {
    using G = Group<T, VectorBytes>;

    BRISAL_INLINE G Get() const { return Ahead(0); }

    BRISAL_INLINE G Ahead(ptrdiff_t pixels) const {
      const uint8_t *from = at + pixels * S::kBytes;
      if constexpr (T::kBytes == 4) {
        return {{As<uint8_t>(Colours<Vector<uint32_t, VectorBytes>>(from, 0))}};
      } else if constexpr (T::kBytes == 2 && S::kBytes == 2) {
        return {{Resized(T{}, LoadVector<typename G::V>(from))}};
      } else if constexpr (T::kBytes == 2) {
        using V = Vector<uint32_t, VectorBytes>;
        return {{CutWords(T::Pack(Colours<V>(from, 0)), T::Pack(Colours<V>(from, 1)))}};
      } else {
        return JoinTriples<T, VectorBytes>([from](int k) __attribute__((always_inline)) {
          return SwapRedBlue(Colours<TripleWords<VectorBytes>>(from, k));
        });
      }
    }

    BRISAL_INLINE void Advance() { at += G::kPixels * S::kBytes; }

    const uint8_t *at;

   private:
    // The k-th vector of colours.
    template <class V>
    BRISAL_INLINE static V Colours(const uint8_t *from, int k) {
      return LoadColours<S, V>(from + k * ptrdiff_t{sizeof(V) / 4} * S::kBytes);
    }
  };

  template <int VectorBytes>
  BRISAL_INLINE Cursor<VectorBytes> Start() const {
    return {first_};
  }

 private:
  const uint8_t *first_;
};

}  // namespace brisal
