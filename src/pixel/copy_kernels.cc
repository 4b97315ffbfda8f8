#include <algorithm>
#include <type_traits>

#include "pixel/column.h"
#include "pixel/flat_source.h"
#include "pixel/gathered_texels.h"
#include "pixel/keyed_source.h"
#include "pixel/pixel_source.h"
#include "pixel/row_texels.h"
#include "pixel/rules.h"
#include "pixel/run.h"
#include "pixel/texel_kernels.h"
#include "pixel/texel_loads.h"
#include "pixel/texel_source.h"

namespace brisal {
namespace {

template <class F>
bool AreMask(const TexelPath &path, ptrdiff_t n) {
  uint32_t u = path.u;
  uint32_t v = path.v;
  for (ptrdiff_t i = 0; i < n; ++i, u += path.du, v += path.dv) {
    if (F::Load(TexelAt<F>(path, Whole(u), Whole(v))) != path.storedKey) return false;
  }
  return true;
}

template <class F>
int32_t FindMaskRow(const TexelPath &given, ptrdiff_t n, int32_t rows) {
  TexelPath path = given;
  int32_t row = 0;
  for (; row < rows && !AreMask<F>(path, n); ++row) path.v += kOneTexel;
  return row;
}

// Pixels without what is not shown of them.
template <class F>
struct Shown {
  static constexpr bool kReadsTarget = false;
  explicit Shown(uint32_t) {}

  template <class V>
  BRISAL_INLINE V operator()(V, V s) const {
    return s & static_cast<typename F::Lane>(kShownBits<F>);
  }
};

template <class F, MaskTexels Mask>
struct CopySpans : GathersTexels {
  static constexpr bool kKeyed = Mask == MaskTexels::kLeftOut;
  static constexpr bool kShowsAll = kShownBits<F> == 0xFFFFFFFF;

  // The loop over the spans is there for each kind of rows: short spans feel every branch.
  template <int VectorBytes, bool Gathers = false>
  BRISAL_INLINE static void Run(const TexelPath &texture, const Span *spans, int64_t count,
                                const Buffer &target) {
    const auto copy = [&](auto rows) __attribute__((always_inline)) {
      CopyAll<VectorBytes, decltype(rows)>(texture, spans, count, target);
    };
    if constexpr (Gathers) {
      if (GatheredRows::Hold<F>(texture)) return copy(GatheredRows{});
      copy(FarRows{});
    } else {
      WithRows<F, VectorBytes>(texture, copy);
    }
  }

  template <int VectorBytes, class Rows>
  BRISAL_INLINE static void CopyAll(const TexelPath &texture, const Span *spans, int64_t count,
                                    const Buffer &target) {
    TexelPath path = texture;
    for (const Span *span = spans; span < spans + count; ++span) {
      const ptrdiff_t n = Length(*span);
      if (n < 1) continue;
      path.u = static_cast<uint32_t>(span->u);
      path.v = static_cast<uint32_t>(span->v);
      path.du = static_cast<uint32_t>(span->du);
      path.dv = static_cast<uint32_t>(span->dv);
      if (Mask == MaskTexels::kCopiedAmongOthers && AreMask<F>(path, n)) continue;
      uint8_t *pixels = target.Row(span->y) + ptrdiff_t{span->left} * F::kBytes;
      if constexpr (F::kBytes == 3) {
        CopyTriples<VectorBytes>(Rows{}, path, n, pixels);
      } else {
        const ptrdiff_t copied = path.dv == 0 ? CopyAlongRow<VectorBytes>(path, n, pixels) : 0;
        if (copied == n) continue;
        CopyTexels<VectorBytes>(Rows{}, From(path, copied), n - copied,
                                pixels + copied * F::kBytes);
      }
    }
  }

  // Copies texels along a row of the texture as vectors, as far as they can be. Returns how many it has.
  template <int VectorBytes>
  BRISAL_INLINE static ptrdiff_t CopyAlongRow(const TexelPath &path, ptrdiff_t n, uint8_t *pixels) {
    if (IsStraight(path)) {
      CopyStraight<VectorBytes>(path, n, pixels);
      return n;
    }
#if BRISAL_HAS_AVX512
    if constexpr (VectorBytes == 64) {
      if constexpr (!kKeyed && kShowsAll) {
        if (CopiesDoubled<F, VectorBytes>(path, static_cast<int>(n), pixels)) return n;
      }
      return CombinesAlongRow<F>(path, n, pixels, RuleOf(path)) ? n : 0;
    }
#endif
    if (!MayLoadVectors<F, VectorBytes>(path, n)) return 0;
    for (ptrdiff_t i = 0; i < n; i += kPiece) {
      const int piece = static_cast<int>(n - i < kPiece ? n - i : kPiece);
      if (!CopyVectors<VectorBytes>(From(path, i), piece, pixels + i * F::kBytes)) return i;
    }
    return n;
  }

  template <int VectorBytes>
  BRISAL_INLINE static void CopyStraight(const TexelPath &path, ptrdiff_t n, uint8_t *pixels) {
    const uint8_t *first = TexelAt<F>(path, Whole(path.u), Whole(path.v));
    if constexpr (!kKeyed || F::kBytes != 3) {
      Combine<VectorBytes>(path, n, pixels, Pixels<F>(first));
    } else if constexpr (VectorBytes < 64) {
      const KeyedTriples texels(first, path.storedKey);
      CombineRun<F, VectorBytes>(pixels, pixels, n, UnlessMasked{}, texels);
    } else {
      CopyUnlessTriples(pixels, first, n, RepeatedKey(path));
    }
  }

  template <int VectorBytes>
  BRISAL_INLINE static bool CopyVectors(const TexelPath &path, int n, uint8_t *pixels) {
    if constexpr (!kKeyed && kShowsAll) return LoadVectors<F, VectorBytes>(path, n, pixels);
    uint8_t stored[kPiece * F::kBytes];
    if (!LoadVectors<F, VectorBytes>(path, n, stored)) return false;
    Combine<VectorBytes>(path, n, pixels, Pixels<F>(stored));
    return true;
  }

  // With AVX-512, more than eight texels at once would gain nothing, and leave more of them to be read
  // twice where a span's last ones overlap the others.
  template <int VectorBytes, class Rows>
  BRISAL_INLINE static void CopyTexels(Rows, const TexelPath &path, ptrdiff_t n, uint8_t *pixels) {
    constexpr int kBytes = VectorBytes < 64 ? VectorBytes : 8 * F::kBytes;
    Combine<kBytes>(path, n, pixels, Texels<F, VectorBytes, Rows>(path));
  }

  template <int VectorBytes>
  BRISAL_INLINE static void CopyTexels(GatheredRows, const TexelPath &path, ptrdiff_t n,
                                       uint8_t *pixels) {
    const uint32_t key = path.storedKey;
    ForEachGathered<F>(
        path, n, [=](ptrdiff_t i, auto texels, uint16_t mask) __attribute__((always_inline)) {
          if constexpr (kKeyed) mask &= UnequalWords(texels, Splat<decltype(texels)>(key));
          uint8_t *const to = pixels + i * F::kBytes;
          if constexpr (F::kBytes == 2) return StoreHalves(to, mask, texels & kShownBits<F>);
          if constexpr (F::kBytes == 3) return StoreTriples(to, mask, texels);
          StoreWords(to, mask, texels);
        });
  }

  template <int VectorBytes, class Rows>
  BRISAL_INLINE static void CopyTriples(Rows, const TexelPath &path, ptrdiff_t n, uint8_t *pixels) {
    if (IsStraight(path)) return CopyStraight<VectorBytes>(path, n, pixels);
    if constexpr (VectorBytes == 64) {
      if (CopiesTriplesAlongRow(path, n, pixels)) return;
    }
    if constexpr (std::is_same_v<Rows, GatheredRows>) {
      return CopyTexels<VectorBytes>(Rows{}, path, n, pixels);
    }
    const uint32_t key = path.storedKey;
    ForEachTexel<F, VectorBytes>(
        path, n, [=](ptrdiff_t i, const uint8_t *texel) __attribute__((always_inline)) {
          const uint32_t stored = F::Load(texel);
          if (!kKeyed || stored != key) F::Store(pixels + i * F::kBytes, stored);
        });
  }

  BRISAL_INLINE static auto RepeatedKey(const TexelPath &path) {
    return Flat<F>(path.storedKey).template Start<64>().Get().part[0];
  }

  // False where vectors do not reach.
  BRISAL_INLINE static bool CopiesTriplesAlongRow(const TexelPath &path, ptrdiff_t n,
                                                  uint8_t *pixels) {
    const auto key = RepeatedKey(path);
    return ForTriplesAlongRow(
        path,
        n, [=](ptrdiff_t i, ptrdiff_t bytes, const auto &texels) __attribute__((always_inline)) {
          uint8_t *const to = pixels + i * F::kBytes;
          if constexpr (kKeyed) return StoreUnlessTriple(to, bytes, key, texels);
          StoreFirst(to, bytes, texels);
        });
  }

  BRISAL_INLINE static auto RuleOf(const TexelPath &path) {
    return std::conditional_t<kKeyed, UnlessKey<F, kShownBits<F>>, Shown<F>>(path.storedKey);
  }

  template <int VectorBytes, class Source>
  BRISAL_INLINE static void Combine(const TexelPath &path, ptrdiff_t n, uint8_t *pixels,
                                    const Source &source) {
    CombineRun<F, VectorBytes>(pixels, pixels, n, RuleOf(path), source);
  }
};

using Copies = Kernels<const TexelPath &, const Span *, int64_t, const Buffer &>;

template <MaskTexels Mask, class... F>
constexpr auto CopyRow(TypeList<F...>) {
  return std::array{Copies::Of<CopySpans<typename FoldAlpha<F, Solid>::type, Mask>>()...};
}

// [what becomes of the mask colour][format code - 1]
constexpr std::array kCopyKernels = {CopyRow<MaskTexels::kCopied>(Formats{}),
                                     CopyRow<MaskTexels::kCopiedAmongOthers>(Formats{}),
                                     CopyRow<MaskTexels::kLeftOut>(Formats{})};

}  // namespace

CopyKernel FindCopyKernel(Isa isa, int32_t format, MaskTexels mask) {
  if (!IsFormat(format)) return nullptr;
  return kCopyKernels[static_cast<size_t>(mask)][static_cast<size_t>(format - 1)].For(isa);
}

MaskKernel FindMaskKernel(int32_t format) {
  return WithFormat(format, MaskKernel{nullptr},
                    [](auto f) -> MaskKernel { return &FindMaskRow<decltype(f)>; });
}

}  // namespace brisal
