#include <array>
#include <type_traits>

#include "pixel/format.h"
#include "pixel/texel_kernels.h"

namespace brisal {
namespace {

template <class F>
BRISAL_INLINE uint32_t StoredAt(const TexelPath &path, int32_t column, int32_t row) {
  return F::Load(path.address + row * path.pitch + column * ptrdiff_t{F::kBytes});
}

BRISAL_INLINE int32_t Whole(uint32_t coordinate) { return static_cast<int32_t>(coordinate) >> 16; }

// a + ((b - a) * f >> 8) on the four bytes of a texel.
BRISAL_INLINE uint32_t Lerp(uint32_t a, uint32_t b, uint32_t f) {
  const uint32_t even = (a & 0xFF00FF) * (256 - f) + (b & 0xFF00FF) * f;
  const uint32_t odd = (a >> 8 & 0xFF00FF) * (256 - f) + (b >> 8 & 0xFF00FF) * f;
  return (even >> 8 & 0xFF00FF) | (odd & 0xFF00FF00);
}

// The texel and its neighbours to the right and below, the texture's last column and row repeated.
struct Quad {
  uint32_t own;
  uint32_t right;
  uint32_t below;
  uint32_t diagonal;
};

template <class F>
BRISAL_INLINE Quad QuadAt(const TexelPath &path, int32_t column, int32_t row) {
  const int32_t nextColumn = column + 1 < path.width ? column + 1 : column;
  const int32_t nextRow = row + 1 < path.height ? row + 1 : row;
  return {F::Widen(StoredAt<F>(path, column, row)), F::Widen(StoredAt<F>(path, nextColumn, row)),
          F::Widen(StoredAt<F>(path, column, nextRow)),
          F::Widen(StoredAt<F>(path, nextColumn, nextRow))};
}

BRISAL_INLINE uint32_t Filter(const Quad &quad, uint32_t u, uint32_t v) {
  const uint32_t fu = u >> 8 & 255;
  const uint32_t top = Lerp(quad.own, quad.right, fu);
  const uint32_t bottom = Lerp(quad.below, quad.diagonal, fu);
  return Lerp(top, bottom, v >> 8 & 255);
}

// Transparent neighbours count as black.
BRISAL_INLINE Quad WithoutKey(Quad quad, uint32_t key) {
  if (quad.right == key) quad.right = 0;
  if (quad.below == key) quad.below = 0;
  if (quad.diagonal == key) quad.diagonal = 0;
  return quad;
}

// The runs of the pixels for which opaque(i) holds.
template <class Opaque>
BRISAL_INLINE void FindRuns(int n, TexelRuns *runs, Opaque opaque) {
  runs->count = 0;
  for (int i = 0; i < n;) {
    if (!opaque(i)) {
      ++i;
      continue;
    }
    const int start = i;
    while (i < n && opaque(i)) ++i;
    runs->run[runs->count++] = {start, i - start};
  }
}

template <class F, bool Filtered, bool Compressed>
void Fetch(const TexelPath &path, int n, uint32_t *texels, TexelRuns *runs) {
  uint32_t u = path.u;
  uint32_t v = path.v;
  uint32_t stored[kPiece];
  for (int i = 0; i < n; ++i, u += path.du, v += path.dv) {
    stored[i] = StoredAt<F>(path, Whole(u), Whole(v));
  }
  if constexpr (Compressed) {
    FindRuns(n, runs, [&](int i) { return stored[i] != path.storedKey; });
  } else {
    runs->run[0] = {0, n};
    runs->count = 1;
  }
  if constexpr (!Filtered) {
    for (int i = 0; i < n; ++i) texels[i] = F::Widen(stored[i]);
    return;
  }
  for (int r = 0; r < runs->count; ++r) {
    const TexelRun run = runs->run[r];
    u = path.u + path.du * static_cast<uint32_t>(run.start);
    v = path.v + path.dv * static_cast<uint32_t>(run.start);
    for (int i = run.start; i < run.start + run.length; ++i, u += path.du, v += path.dv) {
      Quad quad = QuadAt<F>(path, Whole(u), Whole(v));
      if constexpr (Compressed) quad = WithoutKey(quad, path.texelKey);
      texels[i] = Filter(quad, u, v);
    }
  }
}

template <bool Filtered, bool Compressed, class... F>
constexpr std::array<FetchKernel, sizeof...(F)> FetchRow(TypeList<F...>) {
  return {
      &Fetch<std::conditional_t<std::is_same_v<F, Argb32>, Xrgb32, F>, Filtered, Compressed>...};
}

// [filtered][compressed][format code - 1]
constexpr std::array kFetchKernels = {
    std::array{FetchRow<false, false>(Formats{}), FetchRow<false, true>(Formats{})},
    std::array{FetchRow<true, false>(Formats{}), FetchRow<true, true>(Formats{})}};

}  // namespace

FetchKernel FindFetchKernel(int32_t format, bool filtered, bool compressed) {
  if (!IsFormat(format)) return nullptr;
  return kFetchKernels[filtered][compressed][static_cast<size_t>(format - 1)];
}

uint32_t SampleBilinear(const TexelPath &path, int32_t format) {
  return WithFormat(format, 0u, [&](auto f) {
    return Filter(QuadAt<decltype(f)>(path, Whole(path.u), Whole(path.v)), path.u, path.v);
  });
}

}  // namespace brisal
