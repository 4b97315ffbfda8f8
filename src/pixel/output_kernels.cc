#include "pixel/argb_source.h"
#include "pixel/blit_rules.h"
#include "pixel/column.h"
#include "pixel/convert_source.h"
#include "pixel/pixel_source.h"
#include "pixel/run.h"
#include "pixel/texel_kernels.h"

namespace brisal {
namespace {

// Texels are halved before they are added in every format, in 24 bits too.
template <class F>
struct HalfTexel : Half<F> {
  using Half<F>::Half;
};

template <>
struct HalfTexel<Rgb24> : Reading<Rgb24> {
  explicit HalfTexel(uint32_t) {}

  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    return (d >> 1) + (s >> 1);
  }
};

// The runs' texels meet the target by a rule, as the source makes them: in 32-bit storage they are pixels.
template <class F, class R, class Texels>
struct CombineTexels {
  using Source = std::conditional_t<F::kBytes == 4, Pixels<F>, Texels>;

  template <int VectorBytes>
  BRISAL_INLINE static void Run(const uint32_t *texels, const TexelRuns *runs, uint8_t *pixels,
                                uint32_t level) {
    const R rule(level);
    for (int r = 0; r < runs->count; ++r) {
      const TexelRun run = runs->run[r];
      uint8_t *to = pixels + run.start * F::kBytes;
      CombineRun<F, VectorBytes>(to, to, run.length, rule,
                                 Source(reinterpret_cast<const uint8_t *>(texels + run.start)));
    }
  }
};

template <class F, class R>
struct CombineRuns : CombineTexels<F, R, Converted<F, Xrgb32>> {};

// Texels over the target's pixels by their own alpha.
template <class F>
struct OwnAlpha : OverHalves<F, 5, 29, true> {
  explicit OwnAlpha(uint32_t) {}
};

// A key of 0 has no alpha anyway.
template <>
struct OwnAlpha<Xrgb32> : Over32<253> {
  explicit OwnAlpha(uint32_t) : Over32(0) {}
};

template <class F>
struct OverRuns : CombineTexels<F, OwnAlpha<F>, ArgbHalves>, UpTo64Bytes {};

struct OverTriples {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const uint32_t *texels, const TexelRuns *runs, uint8_t *pixels,
                                uint32_t) {
    for (int r = 0; r < runs->count; ++r) {
      const TexelRun run = runs->run[r];
      for (int i = run.start; i < run.start + run.length; ++i) {
        uint8_t *p = pixels + i * Rgb24::kBytes;
        Rgb24::Store(p, BlendAlpha<Rgb24, 253>::Combine(Rgb24::Load(p), texels[i], 0));
      }
    }
  }
};

using Outputs = Kernels<const uint32_t *, const TexelRuns *, uint8_t *, uint32_t>;

// 32-bit targets are combined in all four bytes, but for the half.
template <class F, template <class> class R>
struct FoldTexels {
  using type = std::conditional_t<F::kBytes == 4, Texel32, F>;
};
template <class F>
struct FoldTexels<F, HalfTexel> {
  using type = std::conditional_t<F::kBytes == 4, Xrgb32, F>;
};

using OutputTable =
    KernelTable<FoldTexels, const uint32_t *, const TexelRuns *, uint8_t *, uint32_t>;
// In the order of Output.
constexpr auto kOutputs =
    OutputTable::Of<CombineRuns>(RuleList<Solid, Alpha, HalfTexel, Add, Sub>{});

template <class F>
constexpr Outputs OverOf() {
  if constexpr (F::kBytes == 3) {
    return Outputs::Of<OverTriples>();
  } else {
    return Outputs::Of<OverRuns<std::conditional_t<F::kBytes == 4, Xrgb32, F>>>();
  }
}

template <class... F>
constexpr auto OverRow(TypeList<F...>) {
  return std::array{OverOf<F>()...};
}

constexpr auto kOver = OverRow(Formats{});

}  // namespace

OutputKernel FindOutputKernel(Isa isa, Output output, int32_t format) {
  if (!IsFormat(format)) return nullptr;
  const size_t column = static_cast<size_t>(format - 1);
  if (output == Output::kOwnAlpha) return kOver[column].For(isa);
  return kOutputs[static_cast<size_t>(output)][column].For(isa);
}

}  // namespace brisal
