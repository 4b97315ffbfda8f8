#pragma once

#include <cstddef>
#include <cstdint>

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

// Rows whose texels are gathered. A 16-bit texel is then half of a word that lies at a place of its size:
// such a word is never on a page that the texel is not on.
struct GatheredRows {
  template <class F>
  BRISAL_INLINE static bool Hold(const TexelPath &path) {
    const uintptr_t places =
        reinterpret_cast<uintptr_t>(path.address) | static_cast<uintptr_t>(path.pitch);
    return NearRows::Hold(path) && (F::kBytes != 2 || places % 2 == 0);
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

  BRISAL_INLINE explicit GatheredTexels(const TexelPath &path)
      : address_(path.address), places_(path) {
    if constexpr (F::kBytes == 2) {
      const uintptr_t beyond = reinterpret_cast<uintptr_t>(address_) % 4;
      address_ -= beyond;
      beyond_ = Splat<Words>(static_cast<uint32_t>(beyond));
    }
  }

  BRISAL_INLINE Words Get(uint16_t mask) const {
    Words distances = places_.Get();
    Words words;
    if constexpr (F::kBytes == 4) {
      GatherWords(address_, distances, mask, words);
      return words;
    }
    distances += beyond_;
    GatherWords(address_, distances & ~3u, mask, words);
    RotateWords(words, distances << 3, words);
    return words & 0xFFFFu;
  }

  BRISAL_INLINE void Advance() { places_.Advance(kLanes); }

 private:
  const uint8_t *address_;
  Words beyond_;
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
