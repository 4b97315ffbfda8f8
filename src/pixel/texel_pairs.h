#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#include "pixel/blend_bytes.h"
#include "pixel/format.h"
#include "pixel/gather.h"
#include "pixel/instructions.h"
#include "pixel/lanes.h"

// Texels and those to their right, in vectors, and how the pairs of two rows are blended by their place.
// Where `Compressed`, neighbours that are the mask colour count as black.

namespace brisal {

// One pair as it is stored: the texel itself in the low half.
template <class F>
struct Pair {
  static constexpr int kBits = F::kBytes == 2 ? 16 : 32;
  using Word = std::conditional_t<F::kBytes == 2, uint32_t, uint64_t>;

  static Word Of(uint32_t own, uint32_t right) { return own | Word{right} << kBits; }

  // From neighbours in memory, nothing but whose bytes is read.
  static Word Load(const uint8_t *texel) {
    if constexpr (F::kBytes == 3) {
      uint32_t first, last;
      std::memcpy(&first, texel, sizeof first);
      std::memcpy(&last, texel + 2, sizeof last);
      return Of(__builtin_bswap32(first) >> 8, __builtin_bswap32(last) & 0xFFFFFF);
    } else {
      Word both;
      std::memcpy(&both, texel, sizeof both);
      return both;
    }
  }
};

// Pairs of texels of more than 16 bits, parted.
template <class F, class V, int ColumnBytes, bool Compressed>
class WidePairs {
 public:
  // topAt(i) and bottomAt(i) are the i-th pairs of two rows.
  template <class TopAt, class BottomAt>
  BRISAL_INLINE static void Load(TopAt topAt, BottomAt bottomAt, WidePairs &top,
                                 WidePairs &bottom) {
    Vector<uint64_t, sizeof(V)> topLow, topHigh, bottomLow, bottomHigh;
    GatherTwo<ColumnBytes>(Twos<0>(topAt), Twos<0>(bottomAt), topLow, bottomLow);
    GatherTwo<ColumnBytes>(Twos<2>(topAt), Twos<2>(bottomAt), topHigh, bottomHigh);
    top.Part(As<uint32_t>(topLow), As<uint32_t>(topHigh));
    bottom.Part(As<uint32_t>(bottomLow), As<uint32_t>(bottomHigh));
  }

  BRISAL_INLINE V Own() const { return own_; }

  BRISAL_INLINE static V Blend(const WidePairs &top, const WidePairs &bottom, V u, V v,
                               uint32_t texelKey) {
    const auto across = TwiceInHalves(u);
    const auto above =
        BlendHalves(Split(F::Widen(top.own_)), Neighbour(top.right_, texelKey), across);
    const auto below =
        BlendHalves(Neighbour(bottom.own_, texelKey), Neighbour(bottom.right_, texelKey), across);
    return Join<V>(BlendHalves(above, below, TwiceInHalves(v)));
  }

 private:
  static constexpr size_t kLanes = sizeof(V) / 4;

  // Two of every four pairs: no word changes its half when they are parted.
  template <size_t First, class WordAt>
  BRISAL_INLINE static auto Twos(WordAt wordAt) {
    return [=](size_t i) __attribute__((always_inline)) {
      return wordAt(i / 2 * 4 + i % 2 + First);
    };
  }

  BRISAL_INLINE void Part(V low, V high) {
    own_ = EveryOther<0>(low, high, std::make_index_sequence<kLanes>{});
    right_ = EveryOther<1>(low, high, std::make_index_sequence<kLanes>{});
  }

  // Of floats, since GCC would take three instructions for one where words are integers.
  template <size_t First, size_t... I>
  BRISAL_INLINE static V EveryOther(V low, V high, std::index_sequence<I...>) {
    return As<uint32_t>(__builtin_shufflevector(
        As<float>(low), As<float>(high), (I / 4 * 4 + I % 4 / 2 * kLanes + I % 2 * 2 + First)...));
  }

  BRISAL_INLINE static auto Neighbour(V stored, uint32_t texelKey) {
    const V texels = F::Widen(stored);
    if constexpr (!Compressed) return Split(texels);
    return Split(texels & ~As<uint32_t>(texels == texelKey));
  }

  V own_;
  V right_;
};

// Pairs of 16-bit texels, each in a word: the products of both channels by weights that add up to 256 are
// one instruction.
template <class F, class V, int ColumnBytes, bool Compressed>
class WordPairs {
 public:
  template <class TopAt, class BottomAt>
  BRISAL_INLINE static void Load(TopAt topAt, BottomAt bottomAt, WordPairs &top,
                                 WordPairs &bottom) {
    GatherTwo<ColumnBytes>(topAt, bottomAt, top.words_, bottom.words_);
  }

  // Those at distances from a row's first texel, in bytes.
  BRISAL_INLINE void Gather(const uint8_t *row, const V &distances) {
    GatherWords(row, distances, 0xFFFF, words_);
  }

  BRISAL_INLINE V Own() const { return words_ & 0xFFFFu; }

  BRISAL_INLINE static V Blend(const WordPairs &top, const WordPairs &bottom, V u, V v,
                               uint32_t texelKey) {
    const H key = Splat<H>(static_cast<uint16_t>(F::Pack(texelKey)));
    const Rows rows = {top.Without(key, 0xFFFF0000), bottom.Without(key, 0xFFFFFFFF), Weights(u),
                       Weights(v)};
    const V red = rows.template Channel<typename F::Red>();
    const V green = rows.template Channel<typename F::Green>();
    const V blue = rows.template Channel<typename F::Blue>();
    return (red & 0xFF00u) << 8 | (green & 0xFF00u) | blue >> 8;
  }

 private:
  using H = Vector<uint16_t, sizeof(V)>;

  // The weights of a pair, from bits 8-15 of a 16.16 place.
  BRISAL_INLINE static H Weights(V place) {
    const V right = (place >> 8) & 0xFFu;
    return As<uint16_t>((right << 16) - right + 256u);
  }

  // The pairs, black where a texel of those that count is the key.
  BRISAL_INLINE H Without(H key, uint32_t counts) const {
    const H texels = As<uint16_t>(words_);
    if constexpr (!Compressed) return texels;
    const auto isKey = As<uint32_t>((texels & kUsed) == key) & counts;
    return texels & ~As<uint16_t>(isKey);
  }

  struct Rows {
    H top;
    H bottom;
    H across;
    H down;

    // 256 times the blended channel, as a byte.
    template <class C>
    BRISAL_INLINE V Channel() const {
      V above, below, blended;
      MultiplyAdd(Byte<C>(top), across, above);
      MultiplyAdd(Byte<C>(bottom), across, below);
      MultiplyAdd(As<uint16_t>(HighHalves(below << 8, above >> 8)), down, blended);
      return blended;
    }

    template <class C>
    BRISAL_INLINE static H Byte(H texels) {
      constexpr int kDown = C::kShift + C::kBits - 8;
      constexpr uint16_t kMask = 0xFF << (8 - C::kBits) & 0xFF;
      if constexpr (kDown < 0) return (texels << -kDown) & kMask;
      return (texels >> (kDown < 0 ? 0 : kDown)) & kMask;
    }
  };

  static constexpr uint16_t kUsed = F::Red::kMask | F::Green::kMask | F::Blue::kMask;

  V words_;
};

template <class F, class V, int ColumnBytes, bool Compressed>
using Pairs = std::conditional_t<kIs16<F>, WordPairs<F, V, ColumnBytes, Compressed>,
                                 WidePairs<F, V, ColumnBytes, Compressed>>;

}  // namespace brisal
