#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "pixel/instructions.h"
#include "pixel/texel_places.h"

// Texels along a path, sixteen at a time by one instruction, for processors that are fast at it.

namespace brisal {

// The distances of the next texels from the texture's first one.
template <class F, int VectorBytes>
class GatheredPlaces {
 public:
  using Words = Vector<uint32_t, VectorBytes>;

  BRISAL_INLINE explicit GatheredPlaces(const TexelPath &path)
      : factors_(Splat<Words>(NearRows::Factors<F>(path))), coordinates_(path) {}

  BRISAL_INLINE Words Get() const {
    Words distances;
    MultiplyAdd(As<uint16_t>(coordinates_.Whole()), As<uint16_t>(factors_), distances);
    return distances;
  }

  BRISAL_INLINE void Advance(int n) { coordinates_.Advance(n); }

 private:
  Words factors_;
  Coordinates<VectorBytes> coordinates_;
};

// What is gathered: words with a texel in them. Each kind knows of which textures it may read them, and
// makes stored texels of them.

template <class Words>
class WholeWords {
 public:
  BRISAL_INLINE static bool Hold(const TexelPath &) { return true; }

  BRISAL_INLINE explicit WholeWords(const TexelPath &path) : address_(path.address) {}

  BRISAL_INLINE Words Get(const Words &distances, uint16_t mask) const {
    Words words;
    GatherWords(address_, distances, mask, words);
    return words;
  }

 private:
  const uint8_t *address_;
};

// A 16-bit texel is half of a word that lies at a place of its size: such a word is never on a page that the
// texel is not on.
template <class Words>
class WordsOfHalves {
 public:
  BRISAL_INLINE static bool Hold(const TexelPath &path) {
    const uintptr_t places =
        reinterpret_cast<uintptr_t>(path.address) | static_cast<uintptr_t>(path.pitch);
    return places % 2 == 0;
  }

  BRISAL_INLINE explicit WordsOfHalves(const TexelPath &path) {
    const uintptr_t beyond = reinterpret_cast<uintptr_t>(path.address) % 4;
    address_ = path.address - beyond;
    beyond_ = Splat<Words>(static_cast<uint32_t>(beyond));
  }

  BRISAL_INLINE Words Get(const Words &distances, uint16_t mask) const {
    const Words places = distances + beyond_;
    Words words;
    GatherWords(address_, places & ~3u, mask, words);
    RotateWords(words, places << 3, words);
    return words & 0xFFFFu;
  }

 private:
  const uint8_t *address_;
  Words beyond_;
};

// Three bytes are read with the one behind them, or the one before. Between rows less than a page apart that
// one is on a page of either row; at an end of the texture it has to be on the texel's.
template <class Words>
class WordsOfTriples {
 public:
  BRISAL_INLINE static bool Hold(const TexelPath &path) {
    const ptrdiff_t between =
        (path.pitch < 0 ? -path.pitch : path.pitch) - ptrdiff_t{3} * path.width;
    const uintptr_t first = RowAt(path, path.pitch < 0 ? path.height - 1 : 0);
    return path.width > 0 && path.height > 0 && between < kPage &&
           (MayReadBehind(path) || first % kPage != 0);
  }

  BRISAL_INLINE explicit WordsOfTriples(const TexelPath &path) {
    const bool behind = MayReadBehind(path);
    address_ = path.address - (behind ? 0 : 1);
    // From red, green and blue in memory to 0x00RRGGBB; the fourth byte goes to the top.
    const Words numbers = LaneNumbers<Words>(std::make_index_sequence<sizeof(Words) / 4>{});
    order_ = As<uint8_t>(numbers * 0x04040404u + (behind ? 0x03000102u : 0x00010203u));
  }

  BRISAL_INLINE Words Get(const Words &distances, uint16_t mask) const {
    Words words;
    GatherWords(address_, distances, mask, words);
    Bytes ordered;
    PermuteBytes(As<uint8_t>(words), order_, ordered);
    return As<uint32_t>(ordered) & 0xFFFFFFu;
  }

 private:
  using Bytes = Vector<uint8_t, sizeof(Words)>;
  static constexpr ptrdiff_t kPage = 4096;

  BRISAL_INLINE static uintptr_t RowAt(const TexelPath &path, ptrdiff_t row) {
    return reinterpret_cast<uintptr_t>(path.address) + static_cast<uintptr_t>(row * path.pitch);
  }

  BRISAL_INLINE static bool MayReadBehind(const TexelPath &path) {
    const uintptr_t last = RowAt(path, path.pitch < 0 ? 0 : path.height - 1);
    return (last + 3 * static_cast<uintptr_t>(path.width)) % kPage != 0;
  }

  const uint8_t *address_;
  Bytes order_;
};

template <class F, class Words>
using GatheredWords = std::conditional_t<
    F::kBytes == 2, WordsOfHalves<Words>,
    std::conditional_t<F::kBytes == 3, WordsOfTriples<Words>, WholeWords<Words>>>;

// Rows whose texels are gathered.
struct GatheredRows {
  template <class F>
  BRISAL_INLINE static bool Hold(const TexelPath &path) {
    return NearRows::Hold(path) && GatheredWords<F, Vector<uint32_t, 64>>::Hold(path);
  }

  template <class F, int VectorBytes>
  using Places = GatheredPlaces<F, VectorBytes>;
};

// The next texels, and those of them that a mask has, read as they are stored.
template <class F, int VectorBytes = 64>
class GatheredTexels {
 public:
  using Words = Vector<uint32_t, VectorBytes>;
  static constexpr int kLanes = VectorBytes / 4;

  BRISAL_INLINE explicit GatheredTexels(const TexelPath &path) : words_(path), places_(path) {}

  BRISAL_INLINE Words Get(uint16_t mask) const { return words_.Get(places_.Get(), mask); }

  BRISAL_INLINE void Advance() { places_.Advance(kLanes); }

 private:
  GatheredWords<F, Words> words_;
  GatheredPlaces<F, VectorBytes> places_;
};

// Calls take(i, texels, mask) for the texels from the i-th on that the mask has, up to n of them.
template <class F, class Take>
BRISAL_INLINE void ForEachGathered(const TexelPath &path, ptrdiff_t n, Take take) {
  using Texels = GatheredTexels<F>;
  Texels texels(path);
  for (ptrdiff_t i = 0; i < n; i += Texels::kLanes, texels.Advance()) {
    const ptrdiff_t rest = n - i;
    const uint32_t mask = rest < Texels::kLanes ? (1u << rest) - 1 : 0xFFFF;
    take(i, texels.Get(static_cast<uint16_t>(mask)), static_cast<uint16_t>(mask));
  }
}

}  // namespace brisal
