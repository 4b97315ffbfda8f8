#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "pixel/convert_source.h"
#include "pixel/format.h"
#include "pixel/rules.h"
#include "pixel/run.h"

// Colours with alpha as a source for targets of fewer bits, and the blending by their alpha.

namespace brisal {

// Packed colours, and their alpha at the target's precision.
template <class V>
struct ColourAlpha {
  V colour;
  V alpha;
};

// Colours in halves: alpha above red, green above blue.
template <class V>
struct ColourHalves {
  V alphaRed;
  V greenBlue;
};

// A source of colours in halves.
class ArgbHalves {
 public:
  BRISAL_INLINE explicit ArgbHalves(const uint8_t *first) : first_(first) {}

  BRISAL_INLINE auto One(ptrdiff_t i) const {
    using V = Vector<uint16_t, 2>;
    const uint32_t s = Argb32::Load(first_ + 4 * i);
    return ColourHalves<V>{V{static_cast<uint16_t>(s >> 16)}, V{static_cast<uint16_t>(s)}};
  }

  template <int VectorBytes>
  struct Cursor {
    struct Parts {
      ColourHalves<Vector<uint16_t, VectorBytes>> part[1];
    };

    BRISAL_INLINE Parts Get() const { return Ahead(0); }

    BRISAL_INLINE Parts Ahead(ptrdiff_t pixels) const {
      using W = Vector<uint32_t, VectorBytes>;
      const W a = Held(LoadVector<W>(at + 4 * pixels));
      const W b = Held(LoadVector<W>(at + 4 * pixels + VectorBytes));
      return {{{HighWords(a, b), CutWords(a, b)}}};
    }

    BRISAL_INLINE void Advance() { at += 2 * VectorBytes; }

    const uint8_t *at;
  };

  template <int VectorBytes>
  BRISAL_INLINE Cursor<VectorBytes> Start() const {
    return {first_};
  }

 private:
  const uint8_t *first_;
};

// A source for 16-bit formats, whose colours come packed where vectors are short.
template <class T>
class ArgbTo16 {
 public:
  BRISAL_INLINE explicit ArgbTo16(const uint8_t *first) : first_(first) {}

  BRISAL_INLINE auto One(ptrdiff_t i) const {
    using V = Vector<uint16_t, 2>;
    const uint32_t s = Argb32::Load(first_ + 4 * i);
    return ColourAlpha<V>{V{static_cast<uint16_t>(T::Pack(s))},
                          V{static_cast<uint16_t>(s >> (32 - T::kAlphaBits))}};
  }

  template <int VectorBytes>
  struct PackedCursor {
    struct Parts {
      ColourAlpha<Vector<uint16_t, VectorBytes>> part[1];
    };

    BRISAL_INLINE Parts Get() const { return Ahead(0); }

    BRISAL_INLINE Parts Ahead(ptrdiff_t pixels) const {
      using W = Vector<uint32_t, VectorBytes>;
      constexpr int kShift = 32 - T::kAlphaBits;
      const W a = Held(LoadVector<W>(at + 4 * pixels));
      const W b = Held(LoadVector<W>(at + 4 * pixels + VectorBytes));
      return {{{CutWords(T::Pack(a), T::Pack(b)), CutWords(a >> kShift, b >> kShift)}}};
    }

    BRISAL_INLINE void Advance() { at += 2 * VectorBytes; }

    const uint8_t *at;
  };

  template <int VectorBytes>
  BRISAL_INLINE auto Start() const {
    if constexpr (VectorBytes >= 32) {
      return ArgbHalves::Cursor<VectorBytes>{first_};
    } else {
      return PackedCursor<VectorBytes>{first_};
    }
  }

 private:
  const uint8_t *first_;
};

// Blends colours in halves into 16-bit pixels by the top bits of their alpha, of which the values from
// kOpaque on are full. A channel is the sum of two products, in bytes from their tops on. kTexels are not cut
// to the target's bits before.
template <class T, int kBits, int kOpaque, bool kTexels>
struct OverHalves {
  static constexpr bool kReadsTarget = true;

  template <class V>
  BRISAL_INLINE V operator()(V d, const ColourHalves<V> &s) const {
    using Red = typename T::Red;
    using Green = typename T::Green;
    using Blue = typename T::Blue;
    d = Held(d);
    const V alpha = s.alphaRed >> (16 - kBits);
    const V weight = alpha >= kOpaque ? Splat<V>(static_cast<uint16_t>(1 << kBits)) : alpha;
    const V weights = weight * 255 + (1 << kBits);  // the rest of one, and the weight above it
    const V red = (d >> (Red::kShift + Red::kBits - 8)) & 0xFF;
    const V green = (d >> (Green::kShift + Green::kBits - 8)) & 0xFF;
    const V blue = (d << (8 - Blue::kBits)) & 0xFF;
    const V redPairs = (s.alphaRed << 8 | red) & kPairs<Red>;
    const V greenPairs = ((s.greenBlue & 0xFF00) | green) & kPairs<Green>;
    const V bluePairs = (s.greenBlue << 8 | blue) & kPairs<Blue>;
    const V blended = Sum<Red>(redPairs, weights) | Sum<Green>(greenPairs, weights) |
                      Sum<Blue>(bluePairs, weights);
    return alpha == 0 ? d : blended;
  }

 private:
  // The bits of a channel at the top of both bytes.
  template <class C>
  static constexpr uint16_t kPairs = 0x0101 * (0xFF00 >> C::kBits & 0xFF) | (kTexels ? 0xFF00 : 0);

  template <class C, class V>
  BRISAL_INLINE static V Sum(V pairs, V weights) {
    constexpr int kDown = kBits + 8 - C::kBits - C::kShift;
    V sums;
    MultiplyAddBytes(pairs, weights, sums);
    if constexpr (C::kShift == 0) return sums >> kDown;
    if constexpr (kDown > 0) return (sums >> kDown) & C::kMask;
    return (sums << -kDown) & C::kMask;
  }
};

// Blends colours into 16-bit pixels by their alpha.
template <class T>
struct Over16 : OverHalves<T, T::kAlphaBits, (1 << T::kAlphaBits) - 1, false> {
  static constexpr int kBits = T::kAlphaBits;
  using OverHalves<T, kBits, (1 << kBits) - 1, false>::operator();

  template <class C, class V>
  BRISAL_INLINE static V Channel(V d, V s, V a) {
    constexpr int kLift = C::template kLift<kBits>;
    return C::template FromLifted<kBits>(
        (C::Value(d) * static_cast<uint16_t>(1 << kBits) + (C::Value(s) - C::Value(d)) * a)
        << kLift);
  }

  template <class V>
  BRISAL_INLINE V operator()(V d, const ColourAlpha<V> &s) const {
    const V blended = Channel<typename T::Red>(d, s.colour, s.alpha) |
                      Channel<typename T::Green>(d, s.colour, s.alpha) |
                      Channel<typename T::Blue>(d, s.colour, s.alpha);
    const V shown = s.alpha == (1 << kBits) - 1 ? s.colour : blended;
    return s.alpha == 0 ? d : shown;
  }
};

// Blends 32-bit pixels by the source's alpha, which is opaque from kOpaque on, and leaves out a key.
template <uint32_t kOpaque>
struct Over32 {
  static constexpr bool kReadsTarget = true;
  explicit Over32(uint32_t maskColour) : key(maskColour) {}

  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    const auto dd = As<uint32_t>(d);
    const auto ss = As<uint32_t>(s);
    if constexpr (sizeof(V) == 64) return As<uint8_t>(ByPairs(dd, ss));
    const auto alpha = ss >> 24;
    const auto weight = As<uint16_t>(alpha | alpha << 16);
    const auto op = [&](auto x, auto y) __attribute__((always_inline)) {
      return x * 256 + (y - x) * weight;
    };
    using Words = std::remove_const_t<decltype(ss)>;
    // Without alpha all of the pixel stays, its top byte too.
    const auto kept = alpha == 0 ? Splat<Words>(0xFFFFFFFFu) : Splat<Words>(0xFFFFFFu);
    const auto blended = As<uint32_t>(HighBytes(d, s, op)) & kept;
    const auto shown = As<int32_t>(alpha) >= static_cast<int32_t>(kOpaque) ? ss : blended;
    return As<uint8_t>(ss == key ? dd : shown);
  }

 private:
  // The same in fewer instructions, which narrower vectors do not have all of.
  template <class W>
  BRISAL_INLINE W ByPairs(W d, W s) const {
    const W shown = s >= kOpaque << 24 ? s : BlendPairs(d, s);
    // Held, or GCC would join both comparisons lane by lane.
    const W unlessKey = Held(s == key ? d : shown);
    return s < 0x1000000u ? d : unlessKey;
  }

  // Blends by an alpha above 0, with sums of two products. Channels are taken less 128, so that the sums
  // fit into 16 bits with their sign.
  template <class W>
  BRISAL_INLINE static W BlendPairs(W d, W s) {
    const auto alphas = TopBytes(As<uint8_t>(s), std::make_index_sequence<sizeof(W)>{});
    const auto weights = (As<uint16_t>(alphas) ^ 0xFF) + 1;  // 256 - alpha, and alpha above it
    const auto target = As<uint16_t>(d ^ 0x80808080u);
    const auto source = As<uint16_t>(s ^ 0x80808080u);
    std::remove_const_t<decltype(target)> even, odd;
    MultiplyAddBytes(weights, (target & 0xFF) | source << 8, even);
    MultiplyAddBytes(weights, target >> 8 | (source & 0xFF00), odd);
    return (As<uint32_t>(even >> 8) | (As<uint32_t>(odd) & 0xFF00u)) ^ 0x808080u;
  }

  // Each word's top byte in all of its bytes.
  template <class V, size_t... I>
  BRISAL_INLINE static V TopBytes(V words, std::index_sequence<I...>) {
    return __builtin_shufflevector(words, words, (I | 3)...);
  }

  uint32_t key;
};

}  // namespace brisal
