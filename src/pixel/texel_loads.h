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

}  // namespace brisal
