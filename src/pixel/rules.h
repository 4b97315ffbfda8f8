#pragma once

#include <cstdint>
#include <type_traits>

#include "pixel/format.h"
#include "pixel/instructions.h"

// The draw modes as function objects over a format: rule(d, s) combines the target's lanes d with
// the written colour's lanes s. One pixel, a span and a shaded span all end here.

namespace brisal {

template <class F>
constexpr bool kIs16 = F::kBytes == 2;

// Applies Op to each channel of 16-bit pixels where it lies. The one at the top, which saturates with the
// lane, drops what it carried below.
template <class F, class Op, class V>
BRISAL_INLINE V EachChannelInPlace(V d, V s) {
  const auto apply = [ d, s ]<class C>(C) __attribute__((always_inline)) {
    const V channel = Op::template Apply<C::kTop>(d & C::kMask, s & C::kMask, C::kMask);
    return C::kTop ? channel & C::kMask : channel;
  };
  return apply(typename F::Red{}) | apply(typename F::Green{}) | apply(typename F::Blue{});
}

// The bits of a 32-bit pixel that are channels.
template <class F>
constexpr uint32_t kChannels32 = std::is_same_v<F, Texel32> ? 0xFFFFFFFF : 0xFFFFFF;

// Clears the top byte of 32-bit pixels where it is no channel; other formats have none.
template <class F, class V>
BRISAL_INLINE V WithoutTopByte(V pixels) {
  if constexpr (F::kBytes == 4 && kChannels32<F> != 0xFFFFFFFF) {
    return As<uint8_t>(As<uint32_t>(pixels) & kChannels32<F>);
  } else {
    return pixels;
  }
}

// Applies op to 8-bit channels in lanes of 16 bits, those at even places and those at odd places,
// and keeps the high byte of each result.
template <class V, class Op>
BRISAL_INLINE V HighBytes(V d, V s, Op op) {
  const auto dd = As<uint16_t>(Held(d));
  const auto ss = As<uint16_t>(s);
  const auto even = op(dd & 0xFF, ss & 0xFF) >> 8;
  const auto odd = op(dd >> 8, ss >> 8) & 0xFF00;
  return As<uint8_t>(even | odd);
}

template <class F>
struct Solid {
  static constexpr bool kReadsTarget = false;
  static constexpr bool kWholePixels = true;
  explicit Solid(uint32_t) {}

  template <class V>
  BRISAL_INLINE V operator()(V, V s) const {
    return s;
  }
};

template <class F>
struct Reading {
  static constexpr bool kReadsTarget = true;
  static constexpr bool kWholePixels = false;  // looks at channels
};

template <class F>
struct Alpha : Reading<F> {
  explicit Alpha(uint32_t inkAlpha) : alpha(static_cast<uint16_t>(inkAlpha)) {}

  // d + floor((s - d) * a / 256) without a negative number on the way; 8 bits of fraction remain.
  template <int Lift, class V>
  BRISAL_INLINE V Blend(V d, V s) const {
    return d * static_cast<uint16_t>((256 - alpha) << Lift) +
           s * static_cast<uint16_t>(alpha << Lift);
  }

  template <class C, class V>
  BRISAL_INLINE V BlendChannel(V d, V s) const {
    return C::template FromLifted<8>(Blend<C::template kLift<8>>(C::Value(d), C::Value(s)));
  }

  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    if constexpr (kIs16<F>) {
      d = Held(d);
      return BlendChannel<typename F::Red>(d, s) | BlendChannel<typename F::Green>(d, s) |
             BlendChannel<typename F::Blue>(d, s);
    } else {
      const auto op = [this](auto dd, auto ss) __attribute__((always_inline)) {
        return this->template Blend<0>(dd, ss);
      };
      return WithoutTopByte<F>(HighBytes(d, s, op));
    }
  }

  uint16_t alpha;
};

template <class F>
struct Half : Reading<F> {
  explicit Half(uint32_t) {}

  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    if constexpr (kIs16<F>) {
      return ((d >> 1) & F::kHalves) + ((s >> 1) & F::kHalves);
    } else if constexpr (F::kBytes == 3) {
      // In words, since not every width of vectors shifts bytes.
      const auto different = As<uint32_t>(d ^ s);
      return As<uint8_t>(As<uint32_t>(d & s) + ((different >> 1) & 0x7F7F7F7Fu));
    } else {
      constexpr uint32_t kHalves = kChannels32<F> & 0x7F7F7F7F;
      return As<uint8_t>(((As<uint32_t>(d) >> 1) & kHalves) + ((As<uint32_t>(s) >> 1) & kHalves));
    }
  }
};

// A mode that treats every channel alike: Op::Apply<whether a lane ends with the channel>(d, s, channel
// maximum).
template <class F, class Op>
struct ChannelRule : Reading<F> {
  explicit ChannelRule(uint32_t) {}

  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    if constexpr (kIs16<F>) {
      return EachChannelInPlace<F, Op>(Held(d), s);
    } else {
      return WithoutTopByte<F>(Op::template Apply<true>(d, s, uint8_t{255}));
    }
  }
};

struct SaturatingAdd {
  template <bool kTop, class V, class T>
  BRISAL_INLINE static V Apply(V d, V s, T max) {
    if constexpr (!kTop) return Least(d, max - s) + s;
    V sum;
    AddSaturated(d, s, sum);
    return sum;
  }
};

struct SaturatingSub {
  template <bool, class V, class T>
  BRISAL_INLINE static V Apply(V d, V s, T) {
    V difference;
    SubtractSaturated(d, s, difference);
    return difference;
  }
};

struct SaturatingRevSub {
  template <bool kTop, class V, class T>
  BRISAL_INLINE static V Apply(V d, V s, T max) {
    return SaturatingSub::Apply<kTop>(s, d, max);
  }
};

template <class F>
struct Add : ChannelRule<F, SaturatingAdd> {
  using ChannelRule<F, SaturatingAdd>::ChannelRule;
};

template <class F>
struct Sub : ChannelRule<F, SaturatingSub> {
  using ChannelRule<F, SaturatingSub>::ChannelRule;
};

template <class F>
struct RevSub : ChannelRule<F, SaturatingRevSub> {
  using ChannelRule<F, SaturatingRevSub>::ChannelRule;
};

template <class F>
struct Mult : Reading<F> {
  explicit Mult(uint32_t) {}

  template <class C, class V>
  BRISAL_INLINE static V Product(V d, V s) {
    return C::template FromLifted<C::kBits>(C::Value(d) *
                                            (C::Value(s) << C::template kLift<C::kBits>));
  }

  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    if constexpr (kIs16<F>) {
      d = Held(d);
      return Product<typename F::Red>(d, s) | Product<typename F::Green>(d, s) |
             Product<typename F::Blue>(d, s);
    } else {
      const auto op = [](auto dd, auto ss) __attribute__((always_inline)) { return dd * ss; };
      return WithoutTopByte<F>(HighBytes(d, s, op));
    }
  }
};

template <class F>
struct Bitwise : Reading<F> {
  static constexpr bool kWholePixels = true;
};

template <class F>
struct And : Bitwise<F> {
  explicit And(uint32_t) {}

  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    return d & s;
  }
};

template <class F>
struct Or : Bitwise<F> {
  explicit Or(uint32_t) {}

  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    return d | s;
  }
};

template <class F>
struct Xor : Bitwise<F> {
  explicit Xor(uint32_t) {}

  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    return d ^ s;
  }
};

}  // namespace brisal
