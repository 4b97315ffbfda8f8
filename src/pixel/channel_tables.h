#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "pixel/convert_source.h"
#include "pixel/instructions.h"
#include "pixel/rules.h"

// Rules of 16-bit pixels by lookup, where one colour meets many of them.

namespace brisal {

// The rules that take more instructions than a lookup.
template <class R>
constexpr bool kPaysTables = false;
template <class F>
constexpr bool kPaysTables<Alpha<F>> = kIs16<F>;
template <class F>
constexpr bool kPaysTables<Add<F>> = kIs16<F>;
template <class F>
constexpr bool kPaysTables<Mult<F>> = kIs16<F>;

// A rule for one colour. What it makes of each value of each channel is in two tables of bytes, in which one
// instruction looks up both bytes of every pixel.
template <class F, class R>
class Tabled {
 public:
  static constexpr bool kReadsTarget = true;

  BRISAL_INLINE Tabled(const R &rule, uint32_t packed) : rule_(rule) {
    using Red = typename F::Red;
    const Pixels colour = Splat<Pixels>(static_cast<uint16_t>(packed));
    const auto numbers = LaneNumbers<Pixels>(std::make_index_sequence<32>{});
    const Pixels low = rule(numbers << Red::kShift | numbers << Green::kShift | numbers, colour);
    const Pixels high = Green::kBits > 5 ? rule((numbers + 32) << Green::kShift, colour) : low;
    Join((low & Red::kMask) >> 8, low & F::Blue::kMask, redAndBlue_);
    Join((low & Green::kMask) >> Green::kShift, (high & Green::kMask) >> Green::kShift, green_);
  }

  // Narrower vectors are too few pixels for it.
  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    if constexpr (sizeof(V) == 64) return LookUp(Held(d));
    return rule_(d, s);
  }

 private:
  using Pixels = Vector<uint16_t, 64>;
  using Bytes = Vector<uint8_t, 64>;
  using Green = typename F::Green;

  template <class V>
  BRISAL_INLINE V LookUp(V d) const {
    // The value of red in the high byte; in the low one blue's, behind the values of red.
    const V blue = (d & 0x1F) | 0x20;
    const V both = ((d >> (F::Red::kShift - 8)) & 0x1F00) | blue;
    Bytes redAndBlue, green;
    PermuteBytes(redAndBlue_, As<uint8_t>(both), redAndBlue);
    PermuteBytes(green_, As<uint8_t>(d >> Green::kShift), green);
    return As<uint16_t>(redAndBlue) | ((As<uint16_t>(green) << Green::kShift) & Green::kMask);
  }

  BRISAL_INLINE static void Join(Pixels first, Pixels second, Bytes &table) {
    table = EveryOther<0>(As<uint8_t>(first), As<uint8_t>(second), std::make_index_sequence<64>{});
  }

  R rule_;
  Bytes redAndBlue_;
  Bytes green_;
};

// Calls draw(rule) with the rule, or with its tables where that pays for so many pixels of a colour.
template <class F, int VectorBytes, class R, class Draw>
BRISAL_INLINE void WithTables(const R &rule, uint32_t packed, int64_t pixels, Draw draw) {
  if constexpr (VectorBytes == 64 && kPaysTables<R>) {
    constexpr int64_t kManyPixels = 512;
    if (pixels >= kManyPixels) return draw(Tabled<F, R>(rule, packed));
  }
  draw(rule);
}

}  // namespace brisal
