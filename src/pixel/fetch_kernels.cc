#include <array>
#include <type_traits>
#include <utility>

#include "pixel/blend_bytes.h"
#include "pixel/column.h"
#include "pixel/format.h"
#include "pixel/texel_kernels.h"
#include "pixel/texel_loads.h"

namespace brisal {
namespace {

// Texels are loaded one by one into small buffers; what is done with them then is a loop of its own,
// over vectors.

// A texel and the one to its right, as they are stored. Where they lie in words, one load reads both.
template <class F>
struct Pair {
  static constexpr int kBits = F::kBytes == 2 ? 16 : 32;
  using Word = std::conditional_t<F::kBytes == 2, uint32_t, uint64_t>;

  static Word Load(const uint8_t *texel) {
    if constexpr (F::kBytes == 3) {
      return Of(F::Load(texel), F::Load(texel + F::kBytes));
    } else {
      Word both;
      std::memcpy(&both, texel, sizeof both);
      return both;
    }
  }

  static Word Of(uint32_t own, uint32_t right) { return own | Word{right} << kBits; }
  static uint32_t Own(Word both) { return static_cast<uint32_t>(both & ~(~Word{0} << kBits)); }

  // As many own texels as V has words, and those to their right.
  template <class V>
  BRISAL_INLINE static void Part(const Word *pairs, V &own, V &right) {
    const auto *const bytes = reinterpret_cast<const uint8_t *>(pairs);
    const V low = LoadVector<V>(bytes);
    if constexpr (F::kBytes == 2) {
      own = low & 0xFFFFu;
      right = low >> 16;
    } else {
      using Lanes = std::make_index_sequence<sizeof(V) / 4>;
      const V high = LoadVector<V>(bytes + sizeof(V));
      own = EveryOther<0>(low, high, Lanes{});
      right = EveryOther<1>(low, high, Lanes{});
    }
  }

  template <int First, class V, size_t... I>
  BRISAL_INLINE static V EveryOther(V low, V high, std::index_sequence<I...>) {
    return __builtin_shufflevector(low, high, (2 * I + First)...);
  }
};

// The pairs of the texels and of those below them. The texture's last column and row are repeated.
template <class F>
struct Neighbourhood {
  typename Pair<F>::Word top[kPiece];
  typename Pair<F>::Word bottom[kPiece];
};

// Whether the path's i-th texel has neighbours to the right and below.
BRISAL_INLINE bool HasNeighbours(const TexelPath &path, int i) {
  const TexelPath rest = From(path, i);
  return Whole(rest.u) + 1 < path.width && Whole(rest.v) + 1 < path.height;
}

// Only at its ends does a straight path lie at the edge of the texture.
template <class F, int VectorBytes>
BRISAL_INLINE void LoadNeighbourhood(const TexelPath &path, int n, Neighbourhood<F> &around) {
  const auto loadAtEdge = [&](int i) {
    const TexelPath place = From(path, i);
    const int32_t column = Whole(place.u);
    const int32_t row = Whole(place.v);
    const ptrdiff_t across = column + 1 < path.width ? F::kBytes : 0;
    const uint8_t *const texel = TexelAt<F>(path, column, row);
    const uint8_t *const below = texel + (row + 1 < path.height ? path.pitch : 0);
    around.top[i] = Pair<F>::Of(F::Load(texel), F::Load(texel + across));
    around.bottom[i] = Pair<F>::Of(F::Load(below), F::Load(below + across));
  };
  int begin = 0;
  while (begin < n && !HasNeighbours(path, begin)) loadAtEdge(begin++);
  int end = n;
  while (end > begin && !HasNeighbours(path, end - 1)) loadAtEdge(--end);
  const auto top = around.top + begin;
  const auto bottom = around.bottom + begin;
  const ptrdiff_t pitch = path.pitch;
  ForEachTexel<F, VectorBytes>(
      From(path, begin),
      end - begin, [=](int i, const uint8_t *texel) __attribute__((always_inline)) {
        top[i] = Pair<F>::Load(texel);
        bottom[i] = Pair<F>::Load(texel + pitch);
      });
}

// Neighbours as texels; transparent ones count as black.
template <class F, bool Compressed, class V>
BRISAL_INLINE V Neighbour(V stored, uint32_t key) {
  const V texels = F::Widen(stored);
  if constexpr (!Compressed) return texels;
  return texels & As<uint32_t>(texels != key);
}

// Whole vectors: what lies behind the n texels has no meaning.
template <class F, bool Compressed, int VectorBytes>
BRISAL_INLINE void Filter(const TexelPath &path, int n, const Neighbourhood<F> &around,
                          uint32_t *texels) {
  using V = Vector<uint32_t, VectorBytes>;
  const uint32_t key = path.texelKey;
  Fractions<V> across(path.u, path.du);
  Fractions<V> down(path.v, path.dv);
  for (int i = 0; i < n; i += VectorBytes / 4, across.Advance(), down.Advance()) {
    V own, right, below, diagonal;
    Pair<F>::Part(around.top + i, own, right);
    Pair<F>::Part(around.bottom + i, below, diagonal);
    const auto fu = InHalves(across.Get());
    const V top = BlendBytes(F::Widen(own), Neighbour<F, Compressed>(right, key), fu);
    const V bottom = BlendBytes(Neighbour<F, Compressed>(below, key),
                                Neighbour<F, Compressed>(diagonal, key), fu);
    StoreVector(Bytes(texels + i), BlendBytes(top, bottom, InHalves(down.Get())));
  }
}

// The runs of the texels that are not the key; storedAt(i) is the i-th as it is stored.
template <class StoredAt>
BRISAL_INLINE void FindRuns(int n, StoredAt storedAt, uint32_t key, TexelRuns *runs) {
  uint32_t keys = 0;
  for (int i = 0; i < n; ++i) keys |= storedAt(i) == key ? 1 : 0;
  if (keys == 0) {
    runs->run[0] = {0, n};
    runs->count = 1;
    return;
  }
  int count = 0;
  for (int i = 0; i < n;) {
    while (i < n && storedAt(i) == key) ++i;
    const int start = i;
    while (i < n && storedAt(i) != key) ++i;
    if (i > start) runs->run[count++] = {start, i - start};
  }
  runs->count = count;
}

template <class F, bool Filtered, bool Compressed>
struct Fetch {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const TexelPath *given, int n, uint32_t *texels, TexelRuns *runs) {
    const TexelPath path = *given;
    if constexpr (Filtered) {
      Neighbourhood<F> around;
      LoadNeighbourhood<F, VectorBytes>(path, n, around);
      Find(
          n, [&](int i) { return Pair<F>::Own(around.top[i]); }, path.storedKey, runs);
      if (runs->count > 0) Filter<F, Compressed, VectorBytes>(path, n, around, texels);
    } else {
      uint32_t stored[kPiece];
      LoadStored<F, VectorBytes>(path, n, stored);
      Find(
          n, [&](int i) { return stored[i]; }, path.storedKey, runs);
      if (runs->count == 0) return;
      for (int i = 0; i < n; ++i) texels[i] = F::Widen(stored[i]);
    }
  }

  template <class StoredAt>
  BRISAL_INLINE static void Find(int n, StoredAt storedAt, uint32_t key, TexelRuns *runs) {
    if constexpr (Compressed) return FindRuns(n, storedAt, key, runs);
    runs->run[0] = {0, n};
    runs->count = 1;
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
