#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "pixel/fixed_point.h"
#include "pixel/run.h"
#include "pixel/triples.h"

namespace brisal {

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
    using V =
        std::conditional_t<F::kBytes == 3, TripleWords<VectorBytes>, Vector<uint32_t, VectorBytes>>;
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
      } else {
        group = JoinTriples<F, VectorBytes>([this](int k) __attribute__((always_inline)) {
          return Moved(Times(step_, k * kLanes)).Words();
        });
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

template <class F, class R>
constexpr bool kPaysInParts<Shaded<F>, R> = true;

}  // namespace brisal
