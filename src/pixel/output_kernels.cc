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

// The runs' texels, in the target's storage, meet the target by a rule.
template <class F, class R>
struct CombineRuns {
  using Source = std::conditional_t<F::kBytes == 4, Pixels<F>, Converted<F, Xrgb32>>;

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

// A texel over the target's pixel by the texel's own alpha.
template <class F>
BRISAL_INLINE uint32_t Over(uint32_t d, uint32_t t) {
  constexpr int kBits = F::kBytes == 2 ? 5 : 8;
  constexpr uint32_t kOpaque = F::kBytes == 2 ? 29 : 253;
  const uint32_t a = t >> (32 - kBits);
  const uint32_t wide = F::Widen(d);
  const uint32_t mixed =
      BlendField<kBits>(wide, t, a, 0xFF00FF) | BlendField<kBits>(wide, t, a, 0xFF00);
  const uint32_t shown = a >= kOpaque ? t : mixed;
  return a == 0 ? d : F::Pack(shown);
}

template <class F>
struct OverRuns {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const uint32_t *texels, const TexelRuns *runs, uint8_t *pixels,
                                uint32_t) {
    for (int r = 0; r < runs->count; ++r) {
      const TexelRun run = runs->run[r];
      uint8_t *to = pixels + run.start * F::kBytes;
      for (int i = 0; i < run.length; ++i) {
        uint8_t *p = to + i * F::kBytes;
        F::Store(p, Over<F>(F::Load(p), texels[run.start + i]));
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

template <class... F>
constexpr auto OverRow(TypeList<F...>) {
  return std::array{Outputs::Of<OverRuns<std::conditional_t<F::kBytes == 4, Xrgb32, F>>>()...};
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
