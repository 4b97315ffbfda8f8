#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "pixel/run.h"

// Pixels of three bytes, made of words and back.

namespace brisal {

// Where byte i of compacted words comes from.
constexpr size_t CompactedFrom(size_t i) {
  const size_t within = i % 16;
  return i - within + (within < 12 ? within / 3 * 4 + within % 3 : 3);
}

template <class V, size_t... I>
BRISAL_INLINE V CompactBytes(V words, std::index_sequence<I...>) {
  const auto b = As<uint8_t>(words);
  return As<uint32_t>(__builtin_shufflevector(b, b, CompactedFrom(I)...));
}

// Words whose low three bytes count, moved together within each 16 bytes, of which 12 are left.
template <class V>
BRISAL_INLINE V Compact(V words) {
  if constexpr (sizeof(V) > 16) {
    return CompactBytes(words, std::make_index_sequence<sizeof(V)>{});
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

// The vectors of words that a group of three-byte pixels is made of: compacting takes 16 bytes at the
// least.
template <int VectorBytes>
using TripleWords = Vector<uint32_t, (VectorBytes < 16 ? 16 : VectorBytes)>;

// A group of three-byte pixels. words(k) gives the k-th vector of them, in words whose low three bytes
// are a pixel as it lies in memory.
template <class F, int VectorBytes, class Words>
BRISAL_INLINE Group<F, VectorBytes> JoinTriples(Words words) {
  using V = TripleWords<VectorBytes>;
  if constexpr (VectorBytes >= 16) {
    using Lanes = std::make_index_sequence<sizeof(V) / 4>;
    const V a = Compact(words(0));
    const V b = Compact(words(1));
    const V c = Compact(words(2));
    const V d = Compact(words(3));
    return {{As<uint8_t>(StreamPart<0>(a, b, Lanes{})), As<uint8_t>(StreamPart<1>(b, c, Lanes{})),
             As<uint8_t>(StreamPart<2>(c, d, Lanes{}))}};
  } else if constexpr (VectorBytes == 8) {
    const V a = Compact(words(0));
    const V b = Compact(words(1));
    return {{As<uint8_t>(__builtin_shufflevector(a, b, 0, 1)),
             As<uint8_t>(__builtin_shufflevector(a, b, 2, 4)),
             As<uint8_t>(__builtin_shufflevector(a, b, 5, 6))}};
  } else {
    using Word = Vector<uint32_t, 4>;
    const V a = Compact(words(0));
    return {{As<uint8_t>(Word{a[0]}), As<uint8_t>(Word{a[1]}), As<uint8_t>(Word{a[2]})}};
  }
}

template <class V, size_t... I>
BRISAL_INLINE V SwapBytes(V words, std::index_sequence<I...>) {
  const auto b = As<uint8_t>(words);
  const Vector<uint8_t, sizeof(V)> zero = {};
  return As<uint32_t>(__builtin_shufflevector(
      b, zero, (I % 4 < 3 ? I / 4 * 4 + 2 - I % 4 : I / 4 * 4 + sizeof(V))...));
}

// Words with their first and third byte exchanged, and the fourth 0.
template <class V>
BRISAL_INLINE V SwapRedBlue(V words) {
  if constexpr (sizeof(V) > 16) {
    return SwapBytes(words, std::make_index_sequence<sizeof(V)>{});
  } else {
    return ((words >> 16) & 0xFFu) | (words & 0xFF00u) | ((words & 0xFFu) << 16);
  }
}

template <class V, size_t... I>
BRISAL_INLINE auto Joined(V low, V high, std::index_sequence<I...>) {
  return __builtin_shufflevector(low, high, I...);
}

// As many pixels of three bytes as V has words, as colours 0x00RRGGBB. Nothing behind them is read.
template <class V>
BRISAL_INLINE V LoadTriples(const uint8_t *p) {
  if constexpr (sizeof(V) == 64) {
    using Half = Vector<uint32_t, 32>;
    return Joined(LoadTriples<Half>(p), LoadTriples<Half>(p + 24),
                  std::make_index_sequence<sizeof(V) / 4>{});
  } else if constexpr (sizeof(V) == 32) {
    // The second half is read with its end at the end of its 16 bytes.
    using Half = Vector<uint8_t, 16>;
    const Half low = LoadVector<Half>(p);
    const Half high = LoadVector<Half>(p + 8);
    const auto both =
        __builtin_shufflevector(low, high, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16,
                                17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31);
    const Vector<uint8_t, sizeof(V)> zero = {};
    return As<uint32_t>(__builtin_shufflevector(both, zero, 2, 1, 0, 32, 5, 4, 3, 32, 8, 7, 6, 32,
                                                11, 10, 9, 32, 22, 21, 20, 48, 25, 24, 23, 48, 28,
                                                27, 26, 48, 31, 30, 29, 48));
  } else {
    constexpr int kPixels = sizeof(V) / 4;
    uint32_t words[kPixels];
    for (int i = 0; i + 1 < kPixels; ++i) words[i] = Xrgb32::Load(p + 3 * i);
    if constexpr (kPixels == 1) {
      words[0] = Rgb24::Load(p);
      return LoadVector<V>(reinterpret_cast<const uint8_t *>(words));
    } else {
      words[kPixels - 1] = Xrgb32::Load(p + 3 * kPixels - 4) >> 8;
      return SwapRedBlue(LoadVector<V>(reinterpret_cast<const uint8_t *>(words)));
    }
  }
}

}  // namespace brisal
