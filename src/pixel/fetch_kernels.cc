#include <array>
#include <type_traits>

#include "pixel/column.h"
#include "pixel/format.h"
#include "pixel/texel_kernels.h"
#include "pixel/texel_loads.h"

namespace brisal {
namespace {

// Texels are loaded one by one into small buffers; what is done with them then is a loop of its own,
// of which the compiler makes vectors.
using Words = uint32_t[kPiece];

// The texels and their neighbours, as they are stored: to the right, below, and diagonal. The
// texture's last column and row are repeated.
struct Neighbourhood {
  Words own;
  Words right;
  Words below;
  Words diagonal;
};

template <class F>
BRISAL_INLINE void LoadNeighbourhood(const TexelPath &path, int n, Neighbourhood &around) {
  uint32_t u = path.u;
  uint32_t v = path.v;
  for (int i = 0; i < n; ++i, u += path.du, v += path.dv) {
    const int32_t column = Whole(u);
    const int32_t row = Whole(v);
    const uint8_t *texel = TexelAt<F>(path, column, row);
    const ptrdiff_t across = column + 1 < path.width ? F::kBytes : 0;
    const ptrdiff_t down = row + 1 < path.height ? path.pitch : 0;
    around.own[i] = F::Load(texel);
    around.right[i] = F::Load(texel + across);
    around.below[i] = F::Load(texel + down);
    around.diagonal[i] = F::Load(texel + across + down);
  }
}

// a + ((b - a) * f >> 8) on the four bytes of a texel.
BRISAL_INLINE uint32_t Lerp(uint32_t a, uint32_t b, uint32_t f) {
  const uint32_t even = (a & 0xFF00FF) * (256 - f) + (b & 0xFF00FF) * f;
  const uint32_t odd = (a >> 8 & 0xFF00FF) * (256 - f) + (b >> 8 & 0xFF00FF) * f;
  return (even >> 8 & 0xFF00FF) | (odd & 0xFF00FF00);
}

// A neighbour as a texel; transparent ones count as black.
template <class F, bool Compressed>
BRISAL_INLINE uint32_t Neighbour(uint32_t stored, uint32_t key) {
  const uint32_t texel = F::Widen(stored);
  return Compressed && texel == key ? 0 : texel;
}

template <class F, bool Compressed>
BRISAL_INLINE void Filter(const TexelPath &path, int n, const Neighbourhood &around,
                          uint32_t *texels) {
  const uint32_t key = path.texelKey;
  for (int i = 0; i < n; ++i) {
    const uint32_t fu = (path.u + path.du * static_cast<uint32_t>(i)) >> 8 & 255;
    const uint32_t fv = (path.v + path.dv * static_cast<uint32_t>(i)) >> 8 & 255;
    const uint32_t right = Neighbour<F, Compressed>(around.right[i], key);
    const uint32_t below = Neighbour<F, Compressed>(around.below[i], key);
    const uint32_t diagonal = Neighbour<F, Compressed>(around.diagonal[i], key);
    const uint32_t top = Lerp(F::Widen(around.own[i]), right, fu);
    texels[i] = Lerp(top, Lerp(below, diagonal, fu), fv);
  }
}

// The runs of the texels that are not the key.
BRISAL_INLINE void FindRuns(int n, const Words &stored, uint32_t key, TexelRuns *runs) {
  uint32_t keys = 0;
  for (int i = 0; i < n; ++i) keys |= stored[i] == key ? 1 : 0;
  if (keys == 0) {
    runs->run[0] = {0, n};
    runs->count = 1;
    return;
  }
  int count = 0;
  for (int i = 0; i < n;) {
    while (i < n && stored[i] == key) ++i;
    const int start = i;
    while (i < n && stored[i] != key) ++i;
    if (i > start) runs->run[count++] = {start, i - start};
  }
  runs->count = count;
}

template <class F, bool Filtered, bool Compressed>
struct Fetch {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const TexelPath *given, int n, uint32_t *texels, TexelRuns *runs) {
    const TexelPath path = *given;
    Neighbourhood around;
    if constexpr (Filtered) {
      LoadNeighbourhood<F>(path, n, around);
    } else {
      LoadStored<F, VectorBytes>(path, n, around.own);
    }
    if constexpr (Compressed) {
      FindRuns(n, around.own, path.storedKey, runs);
      if (runs->count == 0) return;
    } else {
      runs->run[0] = {0, n};
      runs->count = 1;
    }
    if constexpr (Filtered) {
      Filter<F, Compressed>(path, n, around, texels);
    } else {
      for (int i = 0; i < n; ++i) texels[i] = F::Widen(around.own[i]);
    }
  }
};

using Fetchers = Kernels<const TexelPath *, int, uint32_t *, TexelRuns *>;

template <bool Filtered, bool Compressed, class F>
constexpr Fetchers FetcherOf() {
  using Kernel =
      Fetch<std::conditional_t<std::is_same_v<F, Argb32>, Xrgb32, F>, Filtered, Compressed>;
  return Fetchers::Of<Kernel>();
}

template <bool Filtered, bool Compressed, class... F>
constexpr auto FetchRow(TypeList<F...>) {
  return std::array{FetcherOf<Filtered, Compressed, F>()...};
}

// [filtered][compressed][format code - 1]
constexpr std::array kFetchKernels = {
    std::array{FetchRow<false, false>(Formats{}), FetchRow<false, true>(Formats{})},
    std::array{FetchRow<true, false>(Formats{}), FetchRow<true, true>(Formats{})}};

}  // namespace

FetchKernel FindFetchKernel(bool wide, int32_t format, bool filtered, bool compressed) {
  if (!IsFormat(format)) return nullptr;
  return kFetchKernels[filtered][compressed][static_cast<size_t>(format - 1)].columns[wide];
}

}  // namespace brisal
