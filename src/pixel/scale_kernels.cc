#include "pixel/scale_kernels.h"

#include <array>
#include <utility>

#include "pixel/blend_bytes.h"
#include "pixel/column.h"
#include "pixel/convert_source.h"
#include "pixel/instructions.h"
#include "pixel/pixel_source.h"
#include "pixel/run.h"
#include "pixel/texel_loads.h"

namespace brisal {
namespace {

// Sums of the bytes of colours times weights that add up to 256 at most, in 16-bit lanes.
template <class H>
struct WeighedBytes {
  template <class V>
  BRISAL_INLINE void Add(V colours, H weight) {
    const H halves = As<uint16_t>(colours);
    even += (halves & 0xFF) * weight;
    odd += (halves >> 8) * weight;
  }

  BRISAL_INLINE auto Colours() const { return As<uint32_t>((even >> 8) | (odd & 0xFF00)); }

  H even = {};
  H odd = {};
};

template <class F>
struct FilterRow : UpTo64Bytes {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const TexelPath &given, int n, uint32_t *colours) {
    const TexelPath path = given;
    int inside = n;
    while (inside > 0 &&
           Whole(path.u + path.du * static_cast<uint32_t>(inside - 1)) + 1 >= path.width) {
      --inside;
    }
    if (VectorBytes >= 32 && IsStretched(path, inside)) {
      FilterStretched(path, inside, colours);
    } else if (inside > 0) {
      FilterPairs<VectorBytes>(path, inside, colours);
    }
    for (int i = inside; i < n; ++i) {
      const int32_t column = Whole(path.u + path.du * static_cast<uint32_t>(i));
      colours[i] = F::Widen(F::Load(TexelAt<F>(path, column, Whole(path.v))));
    }
  }

  BRISAL_INLINE static void FilterStretched(const TexelPath &path, int n, uint32_t *colours) {
    const uint8_t *const row = path.address + Whole(path.v) * path.pitch;
    ForEachStretch(
        path, n, [=](int i, int32_t base, auto place) __attribute__((always_inline)) {
          using V = decltype(place);
          const uint8_t *const first = row + ptrdiff_t{base} * F::kBytes;
          const V from = (place >> 16) - static_cast<uint32_t>(base);
          V own;
          V right;
          Permute(LoadColours<F, V>(first), from, own);
          Permute(LoadColours<F, V>(first + F::kBytes), from, right);
          StoreVector(Bytes(colours + i), BlendBytes(own, right, TwiceInHalves(place)));
        });
  }

  template <int VectorBytes>
  BRISAL_INLINE static void FilterPairs(TexelPath path, int n, uint32_t *colours) {
    using V = Vector<uint32_t, VectorBytes>;
    Fractions<V> fractions(path.u, path.du);
    uint32_t own[kScaledPiece];
    uint32_t right[kScaledPiece];
    LoadStored<F, VectorBytes>(path, n, own);
    path.u += kOneTexel;
    LoadStored<F, VectorBytes>(path, n, right);
    for (int i = 0; i < n; i += VectorBytes / 4, fractions.Advance()) {
      const V from = F::Widen(LoadVector<V>(Bytes(own + i)));
      const V to = F::Widen(LoadVector<V>(Bytes(right + i)));
      StoreVector(Bytes(colours + i), BlendBytes(from, to, fractions.Get()));
    }
  }
};

// A rule that blends every byte.
struct Between {
  static constexpr bool kReadsTarget = true;

  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    const auto twice = Splat<Vector<int16_t, sizeof(V)>>(static_cast<int16_t>(2 * weight));
    return As<uint8_t>(BlendBytes(As<uint32_t>(d), As<uint32_t>(s), twice));
  }

  uint32_t weight;
};

struct BlendRows : UpTo64Bytes {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const uint32_t *top, const uint32_t *bottom, uint32_t weight, int n,
                                uint8_t *colours) {
    if (weight == 0) {
      std::memcpy(colours, top, static_cast<size_t>(n) * sizeof *top);
      return;
    }
    CombineRun<Texel32, VectorBytes>(colours, Bytes(top), n, Between{weight},
                                     Pixels<Texel32>(Bytes(bottom)));
  }
};

struct WeighNeighbours : UpTo64Bytes {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const Neighbours &given, uint32_t u, uint32_t du, uint32_t v, int n,
                                uint8_t *colours) {
    const Neighbours around = given;
    using V = Vector<uint32_t, VectorBytes>;
    constexpr int kLanes = VectorBytes / 4;
    const uint16_t below = v >> 8 & 255;
    Fractions<V> fractions(u, du);
    int i = 0;
    for (; i + kLanes <= n; i += kLanes, fractions.Advance()) {
      StoreVector(colours + ptrdiff_t{i} * 4, ColoursAt<V>(around, i, fractions.Get(), below));
    }
    if (i == n) return;
    const V last = ColoursAt<V>(around, i, fractions.Get(), below);
    std::memcpy(colours + ptrdiff_t{i} * 4, &last, static_cast<size_t>(n - i) * 4);
  }

  template <class V>
  BRISAL_INLINE static V ColoursAt(const Neighbours &around, int i,
                                   Vector<int16_t, sizeof(V)> twice, uint16_t below) {
    if (below != 0) return Weigh<V>(around, i, As<uint16_t>(twice) >> 1, below);
    return BlendBytes(LoadVector<V>(Bytes(around.topLeft + i)),
                      LoadVector<V>(Bytes(around.topRight + i)), twice);
  }

  // The four products add up to 65536; each loses its low byte for itself.
  template <class V, class H>
  BRISAL_INLINE static V Weigh(const Neighbours &around, int i, H right, uint16_t below) {
    const uint16_t above = 256 - below;
    const H topRight = right * above;
    const H topLeft = static_cast<uint16_t>(above << 8) - topRight;
    const H bottomRight = (right << 8) - topRight;
    const H bottomLeft = static_cast<uint16_t>(below << 8) - bottomRight;
    WeighedBytes<H> sum;
    sum.Add(LoadVector<V>(Bytes(around.topLeft + i)), topLeft >> 8);
    sum.Add(LoadVector<V>(Bytes(around.topRight + i)), topRight >> 8);
    sum.Add(LoadVector<V>(Bytes(around.bottomRight + i)), bottomRight >> 8);
    sum.Add(LoadVector<V>(Bytes(around.bottomLeft + i)), bottomLeft >> 8);
    return sum.Colours();
  }
};

using RowFilters = Kernels<const TexelPath &, int, uint32_t *>;

template <class... F>
constexpr std::array<RowFilters, sizeof...(F)> FilterRowOf(TypeList<F...>) {
  return {RowFilters::Of<FilterRow<typename FoldAlpha<F, Solid>::type>>()...};
}

constexpr std::array kRowFilters = FilterRowOf(Formats{});

}  // namespace

RowFilterKernel FindRowFilterKernel(Isa isa, int32_t format) {
  if (!IsFormat(format)) return nullptr;
  return kRowFilters[static_cast<size_t>(format - 1)].For(isa);
}

RowBlendKernel FindRowBlendKernel(Isa isa) {
  return Kernels<const uint32_t *, const uint32_t *, uint32_t, int, uint8_t *>::Of<BlendRows>().For(
      isa);
}

WeighKernel FindWeighKernel(Isa isa) {
  return Kernels<const Neighbours &, uint32_t, uint32_t, uint32_t, int,
                 uint8_t *>::Of<WeighNeighbours>()
      .For(isa);
}

}  // namespace brisal
