#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "pixel/instructions.h"
#include "pixel/run.h"
#include "pixel/texel_places.h"

namespace brisal {

#if BRISAL_HAS_AVX512
// A source of the texels along a row of a texture, at steps of up to two texels either way: neighbours are
// loaded as one vector of 64 bytes and permuted. What lies beside the texels of a group is not read.
template <class F>
class RowTexels {
  using Word = std::conditional_t<F::kBytes == 2, uint16_t, uint32_t>;
  static constexpr int kTableBytes = 64;

 public:
  // Whether all texels of a group of so many bytes are in one such vector.
  template <int VectorBytes>
  BRISAL_INLINE static bool Reach(const TexelPath &path) {
    constexpr uint32_t kLongest = kOneTexel * (kTableBytes / VectorBytes);
    return path.dv == 0 && path.du + kLongest <= 2 * kLongest;
  }

  BRISAL_INLINE explicit RowTexels(const TexelPath &path)
      : row_(TexelAt<F>(path, 0, Whole(path.v))), u_(path.u), du_(path.du) {}

  template <int VectorBytes>
  class Cursor {
   public:
    using G = Group<F, VectorBytes>;

    BRISAL_INLINE Cursor(const uint8_t *row, uint32_t u, uint32_t du)
        : row_(row), u_(u), du_(du), steps_(Splat<Words>(du) * WordNumbers()) {}

    BRISAL_INLINE G Get() const {
      const uint32_t last = u_ + du_ * (G::kPixels - 1);
      const int32_t left = std::min(Whole(u_), Whole(last));
      const int32_t right = std::max(Whole(u_), Whole(last));
      Vector<uint8_t, kTableBytes> neighbours;
      LoadFirst(row_ + ptrdiff_t{left} * F::kBytes, (right - left + 1) * F::kBytes, neighbours);
      Vector<Word, VectorBytes> texels;
      PermuteLanes(As<Word>(neighbours), Columns(u_ - static_cast<uint32_t>(left) * kOneTexel),
                   texels);
      return {{As<typename F::Lane>(texels)}};
    }

    BRISAL_INLINE G Ahead(ptrdiff_t pixels) const {
      return Cursor(row_, u_ + du_ * static_cast<uint32_t>(pixels), du_).Get();
    }

    BRISAL_INLINE void Advance() { u_ += du_ * G::kPixels; }

   private:
    using Words = Vector<uint32_t, VectorBytes>;

    // Which pixel a word's place belongs to: every second one where two pixels share a word.
    BRISAL_INLINE static Words WordNumbers() {
      return LaneNumbers<Words>(std::make_index_sequence<VectorBytes / 4>{}) * (4 / F::kBytes);
    }

    // Of the texels, counted from where u is 0.
    BRISAL_INLINE Vector<Word, VectorBytes> Columns(uint32_t u) const {
      const Words places = Splat<Words>(u) + steps_;
      if constexpr (F::kBytes == 4) {
        return places >> 16;
      } else {
        return As<Word>(HighHalves(places + Splat<Words>(du_), places >> 16));
      }
    }

    const uint8_t *row_;
    uint32_t u_;
    uint32_t du_;
    Words steps_;
  };

  template <int VectorBytes>
  BRISAL_INLINE Cursor<VectorBytes> Start() const {
    return {row_, u_, du_};
  }

 private:
  const uint8_t *row_;
  uint32_t u_;
  uint32_t du_;
};

template <class F, int VectorBytes, class R>
BRISAL_INLINE bool CombinesGroupsAlongRow(const TexelPath &path, ptrdiff_t n, uint8_t *pixels,
                                          const R &rule) {
  if (n < Group<F, VectorBytes>::kPixels) return false;
  if (!RowTexels<F>::template Reach<VectorBytes>(path)) return false;
  CombineGroups<F, VectorBytes>(pixels, pixels, n, rule, RowTexels<F>(path));
  return true;
}

// Combines n pixels with the texels along a row. False where they are too few, or too far apart.
template <class F, class R>
BRISAL_INLINE bool CombinesAlongRow(const TexelPath &path, ptrdiff_t n, uint8_t *pixels,
                                    const R &rule) {
  return CombinesGroupsAlongRow<F, 64>(path, n, pixels, rule) ||
         CombinesGroupsAlongRow<F, 32>(path, n, pixels, rule);
}

// Triples of a vector of them, of which there are sixteen numbers.
BRISAL_INLINE Vector<uint8_t, 64> PermuteTriples(const Vector<uint8_t, 64> &triples,
                                                 const Vector<uint32_t, 64> &numbers) {
  const auto first = numbers + (numbers << 1);
  const auto bytes = (first | first << 8 | first << 16) + 0x020100;
  Vector<uint8_t, 64> thirdsOfWords = {};
  for (int i = 0; i < 48; ++i) thirdsOfWords[i] = static_cast<uint8_t>(i / 3 * 4 + i % 3);
  Vector<uint8_t, 64> from, permuted;
  PermuteBytes(As<uint8_t>(bytes), thirdsOfWords, from);
  PermuteBytes(triples, from, permuted);
  return permuted;
}

// Calls store(i, bytes, pixels) for vectors of the n texels along a row of a texture of 24 bits. False
// where they are too far apart.
template <class Store>
BRISAL_INLINE bool ForTriplesAlongRow(const TexelPath &path, ptrdiff_t n, Store store) {
  // So many lie in 21 texels, which a vector of 64 bytes has.
  const bool isNear = path.du + kOneTexel <= 2 * kOneTexel;
  if (path.dv != 0 || path.du + 2 * kOneTexel > 4 * kOneTexel) return false;
  const ptrdiff_t pixels = isNear ? 16 : 8;
  using Words = Vector<uint32_t, 64>;
  const Words steps = Splat<Words>(path.du) * LaneNumbers<Words>(std::make_index_sequence<16>{});
  const uint8_t *const row = TexelAt<Rgb24>(path, 0, Whole(path.v));
  uint32_t u = path.u;
  for (ptrdiff_t i = 0; i < n; i += pixels, u += path.du * static_cast<uint32_t>(pixels)) {
    const ptrdiff_t rest = std::min(n - i, pixels);
    const uint32_t last = u + path.du * static_cast<uint32_t>(rest - 1);
    const int32_t left = std::min(Whole(u), Whole(last));
    const int32_t right = std::max(Whole(u), Whole(last));
    Vector<uint8_t, 64> neighbours;
    LoadFirst(row + ptrdiff_t{left} * 3, (right - left + 1) * 3, neighbours);
    const Words columns = (Splat<Words>(u - static_cast<uint32_t>(left) * kOneTexel) + steps) >> 16;
    store(i, rest * 3, PermuteTriples(neighbours, columns));
  }
  return true;
}
#endif

}  // namespace brisal
