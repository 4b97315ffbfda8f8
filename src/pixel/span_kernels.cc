#include "pixel/span_kernels.h"

#include "pixel/channel_tables.h"
#include "pixel/column.h"
#include "pixel/flat_source.h"
#include "pixel/run.h"

namespace brisal {
namespace {

// Storing three vectors at a time is no faster than storing six halves of them.
template <class F, class R>
using FlatWidth = std::conditional_t<F::kBytes == 3 && !R::kReadsTarget, UpTo32Bytes, UpTo64Bytes>;

template <class F, class R>
struct FlatSpans : FlatWidth<F, R> {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const FlatSpan *spans, ptrdiff_t count, uint8_t *row,
                                ptrdiff_t pitch, uint32_t packed, uint32_t alpha) {
    if (count < 1) return;
    const Flat<F> source(packed);
    // About as many as if all rows were the middle one.
    const int64_t pixels = count * int64_t{Length(spans[count / 2])};
    const auto draw = [=](const auto &rule) __attribute__((always_inline)) {
      uint8_t *start = row;
      for (const FlatSpan *span = spans; span < spans + count; ++span, start += pitch) {
        if (span->left >= span->right) continue;
        uint8_t *const first = start + ptrdiff_t{span->left} * F::kBytes;
        CombineRun<F, VectorBytes>(first, first, Length(*span), rule, source);
      }
    };
    WithTables<F, VectorBytes>(R(alpha), packed, pixels, draw);
  }
};

template <class F, class R>
struct Trapezoids : FlatWidth<F, R> {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const Trapezoid &given, uint32_t packed, uint32_t alpha) {
    const Flat<F> source(packed);
    const int64_t half = given.rows / 2;
    // Of the middle row, in 16.16.
    const int64_t width = given.right - given.left + half * (given.rightStep - given.leftStep);
    const auto draw = [&](const auto &rule) __attribute__((always_inline)) {
      Trapezoid t = given;
      for (; t.rows > 0; --t.rows, t.row += t.pitch, t.left += t.leftStep, t.right += t.rightStep) {
        const int64_t left = t.left >> 16;
        const int64_t n = (t.right >> 16) - left;
        if (n <= 0) continue;
        uint8_t *const first = t.row + left * F::kBytes;
        CombineRun<F, VectorBytes>(first, first, static_cast<ptrdiff_t>(n), rule, source);
      }
    };
    WithTables<F, VectorBytes>(R(alpha), packed, given.rows * (width >> 16), draw);
  }
};

template <class F, class R>
struct Block : FlatWidth<F, R> {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(uint8_t *first, ptrdiff_t pitch, ptrdiff_t width, ptrdiff_t rows,
                                uint32_t packed, uint32_t alpha) {
    const Flat<F> source(packed);
    const auto sourceOf = [&](ptrdiff_t) __attribute__((always_inline))->const Flat<F> & {
      return source;
    };
    const auto draw = [&](const auto &rule) __attribute__((always_inline)) {
      CombineBlock<F, VectorBytes>(first, pitch, width, rows, rule, sourceOf);
    };
    WithTables<F, VectorBytes>(R(alpha), packed, int64_t{width} * rows, draw);
  }
};

template <class F, class R>
void OnePixel(uint8_t *p, uint32_t packed, uint32_t alpha) {
  StoreOne<F>(p, R(alpha)(LoadOne<F>(p), OneOf<F>(packed)));
}

using SpanTable =
    KernelTable<FoldPacked, const FlatSpan *, ptrdiff_t, uint8_t *, ptrdiff_t, uint32_t, uint32_t>;
constexpr auto kSpanKernels = SpanTable::Of<FlatSpans>(Rules{});
using TrapezoidTable = KernelTable<FoldPacked, const Trapezoid &, uint32_t, uint32_t>;
constexpr auto kTrapezoidKernels = TrapezoidTable::Of<Trapezoids>(Rules{});
using BlockTable =
    KernelTable<FoldPacked, uint8_t *, ptrdiff_t, ptrdiff_t, ptrdiff_t, uint32_t, uint32_t>;
constexpr auto kBlockKernels = BlockTable::Of<Block>(Rules{});

template <template <class> class R, class... F>
constexpr std::array<PixelKernel, sizeof...(F)> PixelRow(TypeList<F...>) {
  return {&OnePixel<typename FoldPacked<F, R>::type, R<typename FoldPacked<F, R>::type>>...};
}

template <template <class> class... R>
constexpr auto PixelTable(RuleList<R...>) {
  return std::array{PixelRow<R>(Formats{})...};
}

constexpr auto kPixelKernels = PixelTable(Rules{});

template <class Table>
BRISAL_INLINE auto Find(const Table &table, Isa isa, Rule rule, int32_t format) {
  using Function = decltype(table[0][0].For(isa));
  if (rule == Rule::kNone || !IsFormat(format)) return Function{nullptr};
  return table[static_cast<size_t>(rule)][static_cast<size_t>(format - 1)].For(isa);
}

}  // namespace

SpanKernel FindSpanKernel(Isa isa, Rule rule, int32_t format) {
  return Find(kSpanKernels, isa, rule, format);
}

TrapezoidKernel FindTrapezoidKernel(Isa isa, Rule rule, int32_t format) {
  return Find(kTrapezoidKernels, isa, rule, format);
}

BlockKernel FindBlockKernel(Isa isa, Rule rule, int32_t format) {
  return Find(kBlockKernels, isa, rule, format);
}

PixelKernel FindPixelKernel(Rule rule, int32_t format) {
  if (rule == Rule::kNone || !IsFormat(format)) return nullptr;
  return kPixelKernels[static_cast<size_t>(rule)][static_cast<size_t>(format - 1)];
}

}  // namespace brisal
