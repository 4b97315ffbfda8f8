#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "pixel/format.h"
#include "pixel/gathered_texels.h"
#include "pixel/instructions.h"
#include "pixel/texel_places.h"

// Reading the texels along a path, as they are stored.

namespace brisal {

// Whether the path runs along a row of the texture by such steps. One comparison: of two, GCC makes one of
// a longer word, which it puts together in memory and waits for.
BRISAL_INLINE bool StepsBy(const TexelPath &path, uint32_t du) {
  return ((path.du ^ du) | path.dv) == 0;
}

// Whether it runs texel by texel.
BRISAL_INLINE bool IsStraight(const TexelPath &path) { return StepsBy(path, kOneTexel); }

template <class F, class Places, class Take>
BRISAL_INLINE void ForEachPlace(const TexelPath &path, ptrdiff_t n, Take take) {
  constexpr int kLanes = Places::kLanes;
  Places places(path);
  for (ptrdiff_t i = 0; i < n; i += kLanes, places.Advance(kLanes)) {
    const typename Places::template Distances<kLanes> distance(places);
    if (n - i >= kLanes) {
      for (int lane = 0; lane < kLanes; ++lane) take(i + lane, path.address + distance[lane]);
    } else {
      for (int lane = 0; lane < n - i; ++lane) take(i + lane, path.address + distance[lane]);
    }
  }
}

// Calls take(i, address) for each of n texels.
template <class F, int ColumnBytes, class Take>
BRISAL_INLINE void ForEachTexel(const TexelPath &path, ptrdiff_t n, Take take) {
  WithRows<F, ColumnBytes>(
      path, [=](auto rows) __attribute__((always_inline)) {
        ForEachPlace<F, PlacesOf<decltype(rows), F, kMostPlaceBytes<ColumnBytes>>>(path, n, take);
      });
}

// Half of the lanes, from First on, each of them twice.
template <int First, class V, size_t... I>
BRISAL_INLINE V Twice(V lanes, std::index_sequence<I...>) {
  return __builtin_shufflevector(lanes, lanes, (First + I / 2)...);
}

// Whether every eight pixels of the path come from eight neighbours in a row, all within its reach.
constexpr int kStretched = 8;

BRISAL_INLINE bool IsStretched(const TexelPath &path, int n) {
  if (path.dv != 0 || path.du > kOneTexel || n < kStretched) return false;
  const uint32_t last = path.u + path.du * static_cast<uint32_t>(n - 1);
  return Whole(last) - Whole(path.u) >= kStretched - 1;
}

// Calls take(i, base, place) for eight pixels at a time of a stretched path: pixel i + k shows column
// place[k] >> 16, one of the eight from base on. The last eight may overlap those before them.
template <class Take>
BRISAL_INLINE void ForEachStretch(const TexelPath &path, int n, Take take) {
  using V = Vector<uint32_t, 4 * kStretched>;
  const int32_t lastBase =
      Whole(path.u + path.du * static_cast<uint32_t>(n - 1)) - (kStretched - 1);
  const V ramp = Splat<V>(path.du) * LaneNumbers<V>(std::make_index_sequence<kStretched>{});
  const int last = n - kStretched;
  for (int i = 0;; i += kStretched) {
    if (i > last) i = last;
    const uint32_t u = path.u + path.du * static_cast<uint32_t>(i);
    take(i, Whole(u) < lastBase ? Whole(u) : lastBase, Splat<V>(u) + ramp);
    if (i == last) return;
  }
}

// Where rows of texels are stretched by permuting words.
template <class F, int VectorBytes>
constexpr bool kPermutes = F::kBytes == 4 && VectorBytes >= 32;

// Copies a stretched row of words. False where it is not one.
BRISAL_INLINE bool CopiesStretched(const TexelPath &path, int n, uint8_t *to) {
  if (!IsStretched(path, n)) return false;
  const uint8_t *row = path.address + Whole(path.v) * path.pitch;
  ForEachStretch(
      path, n, [=](int i, int32_t base, auto place) __attribute__((always_inline)) {
        using V = decltype(place);
        const V texels = LoadVector<V>(row + ptrdiff_t{base} * 4);
        V permuted;
        Permute(texels, (place >> 16) - static_cast<uint32_t>(base), permuted);
        StoreVector(to + ptrdiff_t{i} * 4, permuted);
      });
  return true;
}

// Whether the path shows every texel of a row twice.
constexpr uint32_t kHalfTexel = kOneTexel / 2;

BRISAL_INLINE bool IsDoubled(const TexelPath &path) {
  return StepsBy(path, kHalfTexel) && path.u % kHalfTexel == 0;
}

// Copies a doubled row. False where it is not one.
template <class F, int VectorBytes>
BRISAL_INLINE bool CopiesDoubled(const TexelPath &path, int n, uint8_t *to) {
  if (!IsDoubled(path)) return false;
  const uint8_t *from = TexelAt<F>(path, Whole(path.u), Whole(path.v));
  if (path.u % kOneTexel != 0 && n > 0) {
    F::Store(to, F::Load(from));
    from += F::kBytes;
    to += F::kBytes;
    --n;
  }
  using Word = std::conditional_t<F::kBytes == 2, uint16_t, uint32_t>;
  using V = Vector<Word, VectorBytes>;
  constexpr int kLanes = VectorBytes / F::kBytes;
  int i = 0;
  for (; i + 2 * kLanes <= n; i += 2 * kLanes, from += VectorBytes, to += 2 * VectorBytes) {
    const V texels = LoadVector<V>(from);
    StoreVector(to, Twice<0>(texels, std::make_index_sequence<kLanes>{}));
    StoreVector(to + VectorBytes, Twice<kLanes / 2>(texels, std::make_index_sequence<kLanes>{}));
  }
  for (; i < n; ++i, to += F::kBytes) {
    F::Store(to, F::Load(from));
    if ((i & 1) != 0) from += F::kBytes;
  }
  return true;
}

// Loads n texels as vectors of them are stored. False where the path does not run along a row or skips
// texels.
template <class F, int VectorBytes>
BRISAL_INLINE bool LoadVectors(const TexelPath &path, int n, uint8_t *to) {
  if (CopiesDoubled<F, VectorBytes>(path, n, to)) return true;
  if constexpr (kPermutes<F, VectorBytes>) return CopiesStretched(path, n, to);
  return false;
}

// False where no piece of the path can be loaded so.
template <class F, int VectorBytes>
BRISAL_INLINE bool MayLoadVectors(const TexelPath &path, ptrdiff_t n) {
  return IsDoubled(path) || (kPermutes<F, VectorBytes> && IsStretched(path, static_cast<int>(n)));
}

// What a processor stores under a mask it cannot load again before it is in the cache: whole vectors.
template <class F>
BRISAL_INLINE void LoadGathered(const TexelPath &path, int n, uint32_t *stored) {
  ForEachGathered<F>(
      path, n, [stored](ptrdiff_t i, auto texels, uint16_t) __attribute__((always_inline)) {
        StoreVector(reinterpret_cast<uint8_t *>(stored + i), texels);
      });
}

// Calls take(i, texel) for each of n texels of a straight path, as they are stored.
template <class F, class Take>
BRISAL_INLINE void ForEachStraight(const TexelPath &path, int n, Take take) {
  const uint8_t *const first = TexelAt<F>(path, Whole(path.u), Whole(path.v));
  for (int i = 0; i < n; ++i) take(i, F::Load(first + i * F::kBytes));
}

// Loads n texels as they are stored. There is room for a multiple of sixteen.
template <class F, int VectorBytes, bool Gathers = false>
BRISAL_INLINE void LoadStored(const TexelPath &path, int n, uint32_t *stored) {
  if (IsStraight(path)) {
    return ForEachStraight<F>(path, n, [stored](int i, uint32_t texel) { stored[i] = texel; });
  }
  if constexpr (F::kBytes == 4) {
    if (LoadVectors<F, VectorBytes>(path, n, reinterpret_cast<uint8_t *>(stored))) return;
  }
  if constexpr (Gathers) {
    if (GatheredRows::Hold<F>(path)) return LoadGathered<F>(path, n, stored);
  }
  ForEachTexel<F, VectorBytes>(
      path, n, [stored](ptrdiff_t i, const uint8_t *texel) __attribute__((always_inline)) {
        stored[i] = F::Load(texel);
      });
}

}  // namespace brisal
