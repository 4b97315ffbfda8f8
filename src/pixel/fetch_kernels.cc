#include <array>
#include <type_traits>

#include "core/ints.h"
#include "pixel/column.h"
#include "pixel/format.h"
#include "pixel/texel_kernels.h"

namespace brisal {
namespace {

// Each step is a loop of its own over a piece, so that the compiler can make vectors of all but the
// loads themselves.
using Places = int64_t[kPiece];
using Words = uint32_t[kPiece];

constexpr uint32_t kOneTexel = 0x10000;

BRISAL_INLINE int32_t Whole(uint32_t coordinate) { return static_cast<int32_t>(coordinate) >> 16; }

BRISAL_INLINE uint32_t CoordinateAt(uint32_t start, uint32_t step, int i) {
  return start + step * static_cast<uint32_t>(i);
}

// The byte offsets of n texels, or of their neighbours `right` columns and `below` rows on; there are
// none beyond the texture's last column and row.
template <class F>
BRISAL_INLINE void FindPlaces(const TexelPath &path, int n, int right, int below, Places &places) {
  const int32_t lastColumn = path.width - right;
  const int32_t lastRow = path.height - below;
  for (int i = 0; i < n; ++i) {
    const int32_t column = Whole(CoordinateAt(path.u, path.du, i));
    const int32_t row = Whole(CoordinateAt(path.v, path.dv, i));
    const int32_t x = column + (column < lastColumn ? right : 0);
    const int32_t y = row + (row < lastRow ? below : 0);
    places[i] = int64_t{y} * path.pitch + int64_t{x} * F::kBytes;
  }
}

template <class F>
BRISAL_INLINE void LoadAt(const uint8_t *address, int n, const Places &places, Words &stored) {
  for (int i = 0; i < n; ++i) stored[i] = F::Load(address + static_cast<ptrdiff_t>(places[i]));
}

template <class F>
BRISAL_INLINE void LoadStored(const TexelPath &path, int n, Words &stored) {
  if (path.du == kOneTexel && path.dv == 0) {
    const uint8_t *first =
        path.address + ByteOffset(Whole(path.v), path.pitch) + ByteOffset(Whole(path.u), F::kBytes);
    for (int i = 0; i < n; ++i) stored[i] = F::Load(first + i * F::kBytes);
    return;
  }
  Places places;
  FindPlaces<F>(path, n, 0, 0, places);
  LoadAt<F>(path.address, n, places, stored);
}

template <class F, bool Compressed>
BRISAL_INLINE void LoadNeighbours(const TexelPath &path, int n, int right, int below,
                                  Words &texels) {
  Places places;
  FindPlaces<F>(path, n, right, below, places);
  LoadAt<F>(path.address, n, places, texels);
  for (int i = 0; i < n; ++i) {
    const uint32_t texel = F::Widen(texels[i]);
    // Transparent neighbours count as black.
    texels[i] = Compressed && texel == path.texelKey ? 0 : texel;
  }
}

// a + ((b - a) * f >> 8) on the four bytes of a texel.
BRISAL_INLINE uint32_t Lerp(uint32_t a, uint32_t b, uint32_t f) {
  const uint32_t even = (a & 0xFF00FF) * (256 - f) + (b & 0xFF00FF) * f;
  const uint32_t odd = (a >> 8 & 0xFF00FF) * (256 - f) + (b >> 8 & 0xFF00FF) * f;
  return (even >> 8 & 0xFF00FF) | (odd & 0xFF00FF00);
}

template <class F, bool Compressed>
BRISAL_INLINE void Filter(const TexelPath &path, int n, const Words &stored, uint32_t *texels) {
  Words right;
  Words below;
  Words diagonal;
  LoadNeighbours<F, Compressed>(path, n, 1, 0, right);
  LoadNeighbours<F, Compressed>(path, n, 0, 1, below);
  LoadNeighbours<F, Compressed>(path, n, 1, 1, diagonal);
  for (int i = 0; i < n; ++i) {
    const uint32_t fu = CoordinateAt(path.u, path.du, i) >> 8 & 255;
    const uint32_t fv = CoordinateAt(path.v, path.dv, i) >> 8 & 255;
    const uint32_t top = Lerp(F::Widen(stored[i]), right[i], fu);
    texels[i] = Lerp(top, Lerp(below[i], diagonal[i], fu), fv);
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
    Words stored;
    LoadStored<F>(path, n, stored);
    if constexpr (Compressed) {
      FindRuns(n, stored, path.storedKey, runs);
      if (runs->count == 0) return;
    } else {
      runs->run[0] = {0, n};
      runs->count = 1;
    }
    if constexpr (Filtered) {
      Filter<F, Compressed>(path, n, stored, texels);
    } else {
      for (int i = 0; i < n; ++i) texels[i] = F::Widen(stored[i]);
    }
  }
};

using Fetchers = Kernels<const TexelPath *, int, uint32_t *, TexelRuns *>;

template <bool Filtered, bool Compressed, class... F>
constexpr auto FetchRow(TypeList<F...>) {
  return std::array{Fetchers::template Of<
      Fetch<std::conditional_t<std::is_same_v<F, Argb32>, Xrgb32, F>, Filtered, Compressed>>()...};
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
