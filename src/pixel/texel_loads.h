#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>

#include "pixel/format.h"
#include "pixel/texel_kernels.h"

// Reading the texels along a path, as they are stored.

namespace brisal {

constexpr uint32_t kOneTexel = 0x10000;

BRISAL_INLINE int32_t Whole(uint32_t coordinate) { return static_cast<int32_t>(coordinate) >> 16; }

template <class F>
BRISAL_INLINE const uint8_t *TexelAt(const TexelPath &path, int32_t column, int32_t row) {
  return path.address + row * path.pitch + ptrdiff_t{column} * F::kBytes;
}

// Whether the path runs along a row of the texture, texel by texel.
BRISAL_INLINE bool IsStraight(const TexelPath &path) {
  return path.du == kOneTexel && path.dv == 0;
}

// Whether the distance of any texel from the first fits 32 bits, with columns and rows below 2^15.
BRISAL_INLINE bool HasNearTexels(const TexelPath &path) {
  constexpr ptrdiff_t kFarthest = std::numeric_limits<int32_t>::max() / 0x8000 - 4;
  return -kFarthest <= path.pitch && path.pitch <= kFarthest;
}

template <class F, int VectorBytes, class Take>
BRISAL_INLINE void ForEachNearTexel(const TexelPath &path, int n, Take take) {
  using V = Vector<uint32_t, VectorBytes>;
  constexpr int kLanes = VectorBytes / 4;
  const V numbers = LaneNumbers<V>(std::make_index_sequence<kLanes>{});
  const V pitch = Splat<V>(static_cast<uint32_t>(path.pitch));
  const uint8_t *const address = path.address;
  V u = Splat<V>(path.u) + Splat<V>(path.du) * numbers;
  V v = Splat<V>(path.v) + Splat<V>(path.dv) * numbers;
  const V du = Splat<V>(path.du * kLanes);
  const V dv = Splat<V>(path.dv * kLanes);
  for (int i = 0; i < n; i += kLanes, u += du, v += dv) {
    int32_t offset[kLanes];
    const V places = (u >> 16) * static_cast<uint32_t>(F::kBytes) + (v >> 16) * pitch;
    StoreVector(reinterpret_cast<uint8_t *>(offset), places);
    if (n - i >= kLanes) {
      for (int lane = 0; lane < kLanes; ++lane) take(i + lane, address + offset[lane]);
    } else {
      for (int lane = 0; lane < n - i; ++lane) take(i + lane, address + offset[lane]);
    }
  }
}

// Calls take(i, address) for each of n texels. Where vectors can multiply, the places of eight texels
// are worked out at once.
template <class F, int VectorBytes, class Take>
BRISAL_INLINE void ForEachTexel(const TexelPath &path, int n, Take take) {
  if constexpr (VectorBytes == 32) {
    if (HasNearTexels(path)) return ForEachNearTexel<F, VectorBytes>(path, n, take);
  }
  uint32_t u = path.u;
  uint32_t v = path.v;
  for (int i = 0; i < n; ++i, u += path.du, v += path.dv) {
    take(i, TexelAt<F>(path, Whole(u), Whole(v)));
  }
}

// Whether every eight pixels of the path come from eight neighbours in a row, all within its reach.
constexpr int kStretched = 8;

BRISAL_INLINE bool IsStretched(const TexelPath &path, int n) {
  if (path.dv != 0 || path.du > kOneTexel || n < kStretched) return false;
  const uint32_t last = path.u + path.du * static_cast<uint32_t>(n - 1);
  return Whole(last) - Whole(path.u) >= kStretched - 1;
}

// Copies a stretched row of words, where the set can permute them. False where it has not.
template <int VectorBytes>
BRISAL_INLINE bool CopiesStretched(const TexelPath &path, int n, uint8_t *to) {
  if constexpr (VectorBytes != 32) return false;
  if (!IsStretched(path, n)) return false;
  using V = Vector<uint32_t, 32>;
  const uint8_t *row = path.address + Whole(path.v) * path.pitch;
  const int32_t lastBase =
      Whole(path.u + path.du * static_cast<uint32_t>(n - 1)) - (kStretched - 1);
  const V ramp = Splat<V>(path.du) * LaneNumbers<V>(std::make_index_sequence<kStretched>{});
  const int last = n - kStretched;
  for (int i = 0;; i += kStretched) {
    if (i > last) i = last;
    const uint32_t u = path.u + path.du * static_cast<uint32_t>(i);
    const int32_t base = Whole(u) < lastBase ? Whole(u) : lastBase;
    const V texels = LoadVector<V>(row + ptrdiff_t{base} * 4);
    const V from = ((Splat<V>(u) + ramp) >> 16) - static_cast<uint32_t>(base);
    V permuted;
    Permute(texels, from, permuted);
    StoreVector(to + ptrdiff_t{i} * 4, permuted);
    if (i == last) return true;
  }
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
    if (CopiesStretched<VectorBytes>(path, n, reinterpret_cast<uint8_t *>(stored))) return;
  }
  ForEachTexel<F, VectorBytes>(
      path, n, [stored](int i, const uint8_t *texel) __attribute__((always_inline)) {
        stored[i] = F::Load(texel);
      });
}

}  // namespace brisal
