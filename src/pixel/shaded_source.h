#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "pixel/fixed_colour.h"
#include "pixel/run.h"

namespace brisal {

template <class V, size_t... I>
BRISAL_INLINE V LaneNumbers(std::index_sequence<I...>) {
  return V{I...};
}

// Words of three bytes moved together within each 16 bytes, of which 12 are left.
template <class V>
BRISAL_INLINE V Compact(V words) {
  if constexpr (sizeof(V) == 32) {
    const auto b = As<uint8_t>(words);
    return As<uint32_t>(__builtin_shufflevector(b, b, 0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 3, 3,
                                                3, 3, 16, 17, 18, 20, 21, 22, 24, 25, 26, 28, 29,
                                                30, 19, 19, 19, 19));
  } else {
    // The plain set has no byte shuffle: pair the words, then the pairs, by shifts.
    static_assert(sizeof(V) == 16);
    const auto wide = As<uint64_t>(words);
    const auto pairs = (wide & 0xFFFFFFu) | ((wide >> 8) & 0xFFFFFF000000u);
    const auto swapped = __builtin_shufflevector(pairs, pairs, 1, 0);
    const auto low = pairs | swapped << 48;
    return As<uint32_t>(__builtin_shufflevector(low, pairs >> 16, 0, 3));
  }
}

// Word number `word` of a stream of compacted vectors, as an index into the pair of vectors
// (part, part + 1), where lanes 3 and 7 are empty.
constexpr int StreamLane(int lanes, int part, int word) {
  const int stream = part * lanes + word;
  const int used = lanes * 3 / 4;
  const int within = stream % used;
  return (stream / used - part) * lanes + within / 3 * 4 + within % 3;
}

template <int Part, class V, size_t... I>
BRISAL_INLINE V StreamPart(V a, V b, std::index_sequence<I...>) {
  return __builtin_shufflevector(a, b, StreamLane(sizeof...(I), Part, I)...);
}

// A source whose colour changes linearly along a span.
template <class F>
class Shaded {
  // Channels stand in 16.16, for 16-bit pixels in 8.24: the high halves of words are then all that
  // such a pixel is made of.
  static constexpr int kShift = F::kBytes == 2 ? 8 : 0;

 public:
  Shaded() = default;

  // Between the whole parts of two colours, in n pixels.
  BRISAL_INLINE Shaded(FixedColour left, FixedColour right, ptrdiff_t n)
      : start_((left & 0xFF0000u) << kShift),
        step_(StepBetween(left & 0xFF0000u, right & 0xFF0000u, Reciprocal(n)) << kShift) {}

  // The same span from a later pixel on.
  BRISAL_INLINE Shaded From(int64_t pixel) const {
    Shaded later = *this;
    later.start_ += Times(step_, pixel);
    return later;
  }

  BRISAL_INLINE auto One(ptrdiff_t i) const {
    const FixedColour c = (start_ + Times(step_, i)) >> kShift;
    uint8_t stored[4];
    F::Store(stored, F::Pack(Xrgb32::FromFixed(c[2], c[1], c[0])));
    return LoadOne<F>(stored);
  }

  template <int VectorBytes>
  class Cursor {
   public:
    using G = Group<F, VectorBytes>;
    // Three-byte pixels are joined in whole 16 bytes at the least.
    using V = Vector < uint32_t, F::kBytes == 3 && VectorBytes<16 ? 16 : VectorBytes>;
    static constexpr uint32_t kLanes = sizeof(V) / 4;
    using LaneSequence = std::make_index_sequence<kLanes>;
    static constexpr uint32_t kPixelsPerLane = F::kBytes == 2 ? 2 : 1;

    BRISAL_INLINE explicit Cursor(const Shaded &source) : step_(source.step_) {
      const V numbers = LaneNumbers<V>(LaneSequence{}) * kPixelsPerLane;
      // Sources lie in memory, where broadcasts cost next to nothing.
      const uint32_t *start = reinterpret_cast<const uint32_t *>(&source.start_);
      const uint32_t *step = reinterpret_cast<const uint32_t *>(&source.step_);
      blue_ = Splat<V>(start[0]) + Splat<V>(step[0]) * numbers;
      green_ = Splat<V>(start[1]) + Splat<V>(step[1]) * numbers;
      red_ = Splat<V>(start[2]) + Splat<V>(step[2]) * numbers;
    }

    BRISAL_INLINE G Get() const {
      G group;
      if constexpr (F::kBytes == 4) {
        group.part[0] = As<uint8_t>(Words());
      } else if constexpr (F::kBytes == 2) {
        // Lanes hold every second pixel; the ones between them are a step away.
        const Cursor odd = Moved(step_);
        group.part[0] = F::FromFixed(Halves(red_, odd.red_), Halves(green_, odd.green_),
                                     Halves(blue_, odd.blue_));
      } else if constexpr (VectorBytes >= 16) {
        const V a = Triples(0);
        const V b = Triples(1);
        const V c = Triples(2);
        const V d = Triples(3);
        group.part[0] = As<uint8_t>(StreamPart<0>(a, b, LaneSequence{}));
        group.part[1] = As<uint8_t>(StreamPart<1>(b, c, LaneSequence{}));
        group.part[2] = As<uint8_t>(StreamPart<2>(c, d, LaneSequence{}));
      } else {
        uint8_t bytes[2 * sizeof(V)];
        StoreVector(bytes, Triples(0));
        if constexpr (VectorBytes == 8) StoreVector(bytes + 12, Triples(1));
        group = G::Load(bytes);
      }
      return group;
    }

    BRISAL_INLINE G Ahead(ptrdiff_t pixels) const { return Moved(Times(step_, pixels)).Get(); }

    BRISAL_INLINE void Advance() { *this = Moved(step_ * G::kPixels); }

   private:
    BRISAL_INLINE Cursor Moved(FixedColour way) const {
      Cursor moved = *this;
      moved.blue_ += SplatLane<V, 0>(way);
      moved.green_ += SplatLane<V, 1>(way);
      moved.red_ += SplatLane<V, 2>(way);
      return moved;
    }

    BRISAL_INLINE static auto Halves(V even, V odd) {
      return As<uint16_t>(HighHalves(odd, even >> 16));
    }

    BRISAL_INLINE V Words() const { return F::FromFixed(red_, green_, blue_); }

    BRISAL_INLINE V Triples(uint32_t vector) const {
      return Compact(Moved(step_ * (vector * kLanes)).Words());
    }

    FixedColour step_;
    V blue_;
    V green_;
    V red_;
  };

  template <int VectorBytes>
  BRISAL_INLINE auto Start() const {
    return Cursor<VectorBytes>(*this);
  }

 private:
  FixedColour start_;
  FixedColour step_;
};

}  // namespace brisal
