#include "pixel/span_kernels.h"

#include "pixel/column.h"
#include "pixel/flat_source.h"
#include "pixel/run.h"

namespace brisal {
namespace {

template <class F, class R>
struct FlatSpans {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const Runs &runs, const Buffer &given, uint32_t packed,
                                uint32_t alpha) {
    const Buffer target = given;
    const R rule(alpha);
    const Flat<F> source(packed);
    const Span *span = runs.spans;
    const int64_t count = runs.count;
    const int64_t spanStep = runs.spanStep;
    const int64_t rowStep = runs.rowStep;
    for (int64_t i = 0; i < count; ++i, span += spanStep) {
      const ptrdiff_t n = Length(*span);
      if (n <= 0) continue;
      uint8_t *row = target.Row(span->y + i * rowStep);
      uint8_t *first = row + ptrdiff_t{span->left} * F::kBytes;
      CombineRun<F, VectorBytes>(first, first, n, rule, source);
    }
  }
};

template <class F, class R>
void OnePixel(uint8_t *p, uint32_t packed, uint32_t alpha) {
  StoreOne<F>(p, R(alpha)(LoadOne<F>(p), OneOf<F>(packed)));
}

using SpanTable = KernelTable<FoldPacked, const Runs &, const Buffer &, uint32_t, uint32_t>;
constexpr auto kSpanKernels = SpanTable::Of<FlatSpans>(Rules{});

template <template <class> class R, class... F>
constexpr std::array<PixelKernel, sizeof...(F)> PixelRow(TypeList<F...>) {
  return {&OnePixel<typename FoldPacked<F, R>::type, R<typename FoldPacked<F, R>::type>>...};
}

template <template <class> class... R>
constexpr auto PixelTable(RuleList<R...>) {
  return std::array{PixelRow<R>(Formats{})...};
}

constexpr auto kPixelKernels = PixelTable(Rules{});

}  // namespace

SpanKernel FindSpanKernel(bool wide, Rule rule, int32_t format) {
  if (rule == Rule::kNone || !IsFormat(format)) return nullptr;
  return kSpanKernels[static_cast<size_t>(rule)][static_cast<size_t>(format - 1)].columns[wide];
}

PixelKernel FindPixelKernel(Rule rule, int32_t format) {
  if (rule == Rule::kNone || !IsFormat(format)) return nullptr;
  return kPixelKernels[static_cast<size_t>(rule)][static_cast<size_t>(format - 1)];
}

}  // namespace brisal
