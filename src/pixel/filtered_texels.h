#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <utility>

#include "pixel/blend_bytes.h"
#include "pixel/gathered_texels.h"
#include "pixel/texel_loads.h"
#include "pixel/texel_pairs.h"

// Reading the texels along a path filtered: each is blended with the one to its right, the one below and
// the one below that to its right.

namespace brisal {

// Filters the texels of a path, `Compressed` where transparent neighbours count as black.
template <class F, bool Compressed, bool Gathers, int ColumnBytes, int VectorBytes = ColumnBytes>
class TexelFilter {
 public:
  BRISAL_INLINE explicit TexelFilter(const TexelPath &path) : path_(path) {}

  // Writes n filtered texels, and the own ones as they are stored. Returns whether one of those is the key.
  BRISAL_INLINE bool Run(int n, uint32_t *texels, uint32_t *stored) const {
    if constexpr (VectorBytes > 16) {
      using Narrower = TexelFilter<F, Compressed, Gathers, ColumnBytes, VectorBytes / 2>;
      if (n < kLanes) return Narrower(path_).Run(n, texels, stored);
    }
    // Only at its ends does a straight path lie at the edge of the texture.
    int begin = 0;
    while (begin < n && !HasNeighbours(begin)) ++begin;
    int end = n;
    while (end > begin && !HasNeighbours(end - 1)) --end;
    bool hasKey = false;
    if (NearRows::Hold(path_) && end - begin >= kLanes) {
      hasKey = FilterInside(begin, end, texels, stored);
    } else {
      begin = end = n;
    }
    for (const auto &edge : {std::pair(0, begin), std::pair(end, n)}) {
      hasKey |= FilterAtEdges(edge.first, edge.second, texels, stored);
    }
    return hasKey;
  }

 private:
  using V = Vector<uint32_t, VectorBytes>;
  using AllPairs = Pairs<F, V, ColumnBytes, Compressed>;
  static constexpr int kLanes = VectorBytes / 4;

  BRISAL_INLINE bool HasNeighbours(int i) const {
    const TexelPath place = From(path_, i);
    return Whole(place.u) + 1 < path_.width && Whole(place.v) + 1 < path_.height;
  }

  BRISAL_INLINE bool FilterInside(int begin, int end, uint32_t *texels, uint32_t *stored) const {
#if BRISAL_HAS_AVX512
    if constexpr (Gathers && VectorBytes == 64) {
      return Filter<GatheredRows>(begin, end, texels, stored);
    } else if constexpr (VectorBytes == 64) {
      if (PackedRows::Hold<F>(path_)) return Filter<PackedRows>(begin, end, texels, stored);
    }
#endif
    return Filter<NearRows>(begin, end, texels, stored);
  }

  // At least kLanes texels; the last ones may be filtered twice.
  template <class Rows>
  BRISAL_INLINE bool Filter(int begin, int end, uint32_t *texels, uint32_t *stored) const {
    using Places = PlacesOf<Rows, F, VectorBytes>;
    const int last = end - kLanes;
    const TexelPath inside = From(path_, begin);
    Places places(inside);
    Coordinates<VectorBytes> coordinates(inside);
    V keys = {};
    for (int i = begin; i < last; i += kLanes) {
      keys |= FilterGroup(places, coordinates, texels + i, stored + i);
      places.Advance(kLanes);
      coordinates.Advance(kLanes);
    }
    const TexelPath rest = From(path_, last);
    keys |= FilterGroup(Places(rest), Coordinates<VectorBytes>(rest), texels + last, stored + last);
    return HasBits(keys);
  }

  // Returns ones where an own texel is the key.
  template <class Places>
  BRISAL_INLINE V FilterGroup(const Places &places, const Coordinates<VectorBytes> &coordinates,
                              uint32_t *texels, uint32_t *stored) const {
    AllPairs top, bottom;
    Load(places, top, bottom);
    StoreVector(Bytes(texels), Blend(top, bottom, coordinates.U(), coordinates.V()));
    StoreVector(Bytes(stored), top.Own());
    return As<uint32_t>(top.Own() == path_.storedKey);
  }

  BRISAL_INLINE void Load(const GatheredPlaces<F, VectorBytes> &places, AllPairs &top,
                          AllPairs &bottom) const {
    const V distances = places.Get();
    top.Gather(path_.address, distances);
    bottom.Gather(path_.address + path_.pitch, distances);
  }

  template <class Places>
  BRISAL_INLINE void Load(const Places &places, AllPairs &top, AllPairs &bottom) const {
    const typename Places::template Distances<kLanes> distances(places);
    const auto *const distance = &distances;
    const uint8_t *const address = path_.address;
    const uint8_t *const below = address + path_.pitch;
    const auto topAt = [=](size_t i) __attribute__((always_inline)) {
      return Pair<F>::Load(address + (*distance)[i]);
    };
    const auto bottomAt = [=](size_t i) __attribute__((always_inline)) {
      return Pair<F>::Load(below + (*distance)[i]);
    };
    AllPairs::Load(topAt, bottomAt, top, bottom);
  }

  // Texels that may lie in the texture's last column or row: those are repeated.
  BRISAL_INLINE bool FilterAtEdges(int begin, int end, uint32_t *texels, uint32_t *stored) const {
    using One = Vector<uint32_t, 16>;
    using OnePair = Pairs<F, One, ColumnBytes, Compressed>;
    bool hasKey = false;
    for (int i = begin; i < end; ++i) {
      const TexelPath place = From(path_, i);
      const int32_t column = Whole(place.u);
      const int32_t row = Whole(place.v);
      const ptrdiff_t across = column + 1 < path_.width ? F::kBytes : 0;
      const uint8_t *const texel = TexelAt<F>(path_, column, row);
      const uint8_t *const below = texel + (row + 1 < path_.height ? path_.pitch : 0);
      const auto topAt = [=](size_t) __attribute__((always_inline)) {
        return Pair<F>::Of(F::Load(texel), F::Load(texel + across));
      };
      const auto bottomAt = [=](size_t) __attribute__((always_inline)) {
        return Pair<F>::Of(F::Load(below), F::Load(below + across));
      };
      OnePair top, bottom;
      OnePair::Load(topAt, bottomAt, top, bottom);
      texels[i] = Blend(top, bottom, Splat<One>(place.u), Splat<One>(place.v))[0];
      stored[i] = top.Own()[0];
      hasKey |= stored[i] == path_.storedKey;
    }
    return hasKey;
  }

  template <class P, class W>
  BRISAL_INLINE W Blend(const P &top, const P &bottom, W u, W v) const {
    return P::Blend(top, bottom, u, v, path_.texelKey);
  }

  TexelPath path_;
};

}  // namespace brisal
