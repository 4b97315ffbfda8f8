#include <array>
#include <type_traits>
#include <utility>

#include "pixel/column.h"
#include "pixel/filtered_texels.h"
#include "pixel/format.h"
#include "pixel/texel_kernels.h"
#include "pixel/texel_loads.h"

namespace brisal {
namespace {

BRISAL_INLINE bool HasKey(int n, const uint32_t *stored, uint32_t key) {
  uint32_t keys = 0;
  for (int i = 0; i < n; ++i) keys |= stored[i] == key ? 1 : 0;
  return keys != 0;
}

// The runs of the texels that are not the key.
BRISAL_INLINE void FindRuns(int n, const uint32_t *stored, uint32_t key, TexelRuns *runs) {
  int count = 0;
  for (int i = 0; i < n;) {
    while (i < n && stored[i] == key) ++i;
    const int start = i;
    while (i < n && stored[i] != key) ++i;
    if (i > start) runs->run[count++] = {start, i - start};
  }
  runs->count = count;
}

// Gathered pairs of wider texels would still have to be parted.
template <class F, bool Filtered>
using FetchColumns = GathersTexelsIf<F::kBytes == 2 || !Filtered>;

template <class F, bool Filtered, bool Compressed>
struct Fetch : FetchColumns<F, Filtered> {
  // What is stored is the texel itself.
  static constexpr bool kIsColour = F::kBytes == 4 && !Filtered;

  template <int VectorBytes, bool Gathers = false>
  BRISAL_INLINE static void Run(const TexelPath *given, int n, uint32_t *texels, TexelRuns *runs) {
    const TexelPath path = *given;
    uint32_t own[kPiece];
    uint32_t *const stored = kIsColour ? texels : own;
    bool hasKey = false;
    if constexpr (Filtered) {
      hasKey = TexelFilter<F, Compressed, Gathers, VectorBytes>(path).Run(n, texels, stored);
    } else if (IsStraight(path)) {
      hasKey = LoadStraight(path, n, texels, stored);
    } else {
      LoadStored<F, VectorBytes, Gathers>(path, n, stored);
      if constexpr (!kIsColour) {
        for (int i = 0; i < n; ++i) texels[i] = F::Widen(stored[i]);
      }
      if constexpr (Compressed) hasKey = HasKey(n, stored, path.storedKey);
    }
    if (Compressed && hasKey) return FindRuns(n, stored, path.storedKey, runs);
    runs->run[0] = {0, n};
    runs->count = 1;
  }

 private:
  // All at once: what was just stored is slow to load as wider words. Returns whether one of the texels is
  // the key, where they are compressed.
  BRISAL_INLINE static bool LoadStraight(const TexelPath &path, int n, uint32_t *texels,
                                         uint32_t *stored) {
    const uint32_t key = path.storedKey;
    uint32_t keys = 0;
    ForEachStraight<F>(
        path, n, [&](int i, uint32_t texel) __attribute__((always_inline)) {
          if constexpr (Compressed) {
            stored[i] = texel;
            keys |= texel == key ? 1 : 0;
          }
          texels[i] = F::Widen(texel);
        });
    return keys != 0;
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

FetchKernel FindFetchKernel(Isa isa, int32_t format, bool filtered, bool compressed) {
  if (!IsFormat(format)) return nullptr;
  return kFetchKernels[filtered][compressed][static_cast<size_t>(format - 1)].For(isa);
}

}  // namespace brisal
