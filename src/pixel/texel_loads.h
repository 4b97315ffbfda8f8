#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "pixel/format.h"
#include "pixel/instructions.h"
#include "pixel/texel_kernels.h"

// Reading the texels along a path, as they are stored.

namespace brisal {

constexpr uint32_t kOneTexel = 0x10000;

BRISAL_INLINE int32_t Whole(uint32_t coordinate) { return static_cast<int32_t>(coordinate) >> 16; }

template <class F>
BRISAL_INLINE const uint8_t *TexelAt(const TexelPath &path, int32_t column, int32_t row) {
  return path.address + row * path.pitch + ptrdiff_t{column} * F::kBytes;
}

// The path from its i-th texel on.
BRISAL_INLINE TexelPath From(const TexelPath &path, ptrdiff_t i) {
  TexelPath rest = path;
  rest.u += path.du * static_cast<uint32_t>(i);
  rest.v += path.dv * static_cast<uint32_t>(i);
  return rest;
}

// Whether the path runs along a row of the texture, texel by texel.
BRISAL_INLINE bool IsStraight(const TexelPath &path) {
  return path.du == kOneTexel && path.dv == 0;
}

// Whether a row's distance is a factor for 16-bit lanes. Columns and rows, which are below 2^15, always
// are.
BRISAL_INLINE bool HasNearRows(const TexelPath &path) {
  return path.pitch == static_cast<int16_t>(path.pitch);
}

// Where the texels of a path are, as many at once as a vector has words. The path has near rows.
template <class F, int VectorBytes>
class NearTexels {
 public:
  using Words = Vector<uint32_t, VectorBytes>;
  static constexpr int kLanes = VectorBytes / 4;

  BRISAL_INLINE explicit NearTexels(const TexelPath &path)
      : factors_(static_cast<uint32_t>(path.pitch) << 16 | static_cast<uint32_t>(F::kBytes)),
        du_(path.du),
        dv_(path.dv) {
    const Words numbers = LaneNumbers<Words>(std::make_index_sequence<kLanes>{});
    u_ = Splat<Words>(path.u) + Splat<Words>(path.du) * numbers;
    v_ = Splat<Words>(path.v) + Splat<Words>(path.dv) * numbers;
  }

  // Their distances from the texture's first texel, which leave the vector two by two.
  BRISAL_INLINE void Take(ptrdiff_t *distance) const {
    Words distances;
    MultiplyAdd(As<uint16_t>(HighHalves(v_, u_ >> 16)), As<uint16_t>(Splat<Words>(factors_)),
                distances);
    int64_t pairs[kLanes / 2];
    if constexpr (VectorBytes == 16) {
      // GCC would take the upper pair by an instruction that waits for what its register held before.
      pairs[0] = As<int64_t>(distances)[0];
      pairs[1] = As<int64_t>(__builtin_shufflevector(distances, distances, 2, 3, 2, 3))[0];
    } else {
      StoreVector(reinterpret_cast<uint8_t *>(pairs), distances);
    }
    for (int i = 0; i < kLanes; i += 2) {
      distance[i] = static_cast<int32_t>(pairs[i / 2]);
      distance[i + 1] = static_cast<ptrdiff_t>(pairs[i / 2] >> 32);
    }
  }

  // The coordinates, 16.16.
  BRISAL_INLINE Words U() const { return u_; }
  BRISAL_INLINE Words V() const { return v_; }

  BRISAL_INLINE void Advance() {
    u_ += Splat<Words>(du_ * kLanes);
    v_ += Splat<Words>(dv_ * kLanes);
  }

 private:
  uint32_t factors_;
  uint32_t du_;
  uint32_t dv_;
  Words u_;
  Words v_;
};

// Places leave a wider vector no faster.
constexpr int kMostPlaceBytes = 32;

template <class F, int VectorBytes, class Take>
BRISAL_INLINE void ForEachNearTexel(const TexelPath &path, int n, Take take) {
  NearTexels<F, VectorBytes> places(path);
  constexpr int kLanes = VectorBytes / 4;
  for (int i = 0; i < n; i += kLanes, places.Advance()) {
    ptrdiff_t distance[kLanes];
    places.Take(distance);
    if (n - i >= kLanes) {
      for (int lane = 0; lane < kLanes; ++lane) take(i + lane, path.address + distance[lane]);
    } else {
      for (int lane = 0; lane < n - i; ++lane) take(i + lane, path.address + distance[lane]);
    }
  }
}

// Calls take(i, address) for each of n texels.
template <class F, int VectorBytes, class Take>
BRISAL_INLINE void ForEachTexel(const TexelPath &path, int n, Take take) {
  if (HasNearRows(path)) {
    return ForEachNearTexel<F, std::min(VectorBytes, kMostPlaceBytes)>(path, n, take);
  }
  uint32_t u = path.u;
  uint32_t v = path.v;
  for (int i = 0; i < n; ++i, u += path.du, v += path.dv) {
    take(i, TexelAt<F>(path, Whole(u), Whole(v)));
  }
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

// Copies a stretched row of words, where the set can permute them. False where it has not.
template <int VectorBytes>
BRISAL_INLINE bool CopiesStretched(const TexelPath &path, int n, uint8_t *to) {
  if constexpr (VectorBytes < 32) return false;
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

// Copies a row that shows every texel twice. False where it does not.
template <class F, int VectorBytes>
BRISAL_INLINE bool CopiesDoubled(const TexelPath &path, int n, uint8_t *to) {
  constexpr uint32_t kHalf = kOneTexel / 2;
  if (path.dv != 0 || path.du != kHalf || path.u % kHalf != 0) return false;
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

// Loads n texels as they are stored.
template <class F, int VectorBytes>
BRISAL_INLINE void LoadStored(const TexelPath &path, int n, uint32_t *stored) {
  if (IsStraight(path)) {
    const uint8_t *first = TexelAt<F>(path, Whole(path.u), Whole(path.v));
    for (int i = 0; i < n; ++i) stored[i] = F::Load(first + i * F::kBytes);
    return;
  }
  if constexpr (F::kBytes == 4) {
    uint8_t *const to = reinterpret_cast<uint8_t *>(stored);
    if (CopiesDoubled<F, VectorBytes>(path, n, to)) return;
    if (CopiesStretched<VectorBytes>(path, n, to)) return;
  }
  ForEachTexel<F, VectorBytes>(
      path, n, [stored](int i, const uint8_t *texel) __attribute__((always_inline)) {
        stored[i] = F::Load(texel);
      });
}

}  // namespace brisal
