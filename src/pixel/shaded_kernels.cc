#include "pixel/column.h"
#include "pixel/run.h"
#include "pixel/shaded_source.h"
#include "pixel/span_kernels.h"

namespace brisal {
namespace {

// Adding or subtracting what the format cannot tell from black is nothing at all, not even to the
// bits of a pixel that belong to no channel.
template <class F, class R>
BRISAL_INLINE bool Vanishes(const ShadedSpan &span) {
  if constexpr (!std::is_same_v<R, Add<F>> && !std::is_same_v<R, Sub<F>>) return false;
  const auto bits = As<uint64_t>((span.leftColour | span.rightColour) & Fixed(F::kPrecision));
  return (bits[0] | bits[1]) == 0;
}

template <class F, class R>
struct ShadedSpans : UpTo64Bytes {
  static constexpr int kBatch = 16;

  template <int VectorBytes>
  BRISAL_INLINE static void Run(const ShadedSpan *spans, int64_t count, const Buffer target) {
    const R rule(0);
    Shaded<F> sources[kBatch];
    for (; count > 0; spans += kBatch, count -= kBatch) {
      const int batch = count < kBatch ? static_cast<int>(count) : kBatch;
      const ptrdiff_t longest = Prepare(spans, batch, sources);
      // Where all are short, narrower vectors have less to work out. With 32-bit pixels they gain nothing.
      if constexpr (VectorBytes == 64 && F::kBytes != 4) {
        if (longest < Group<F, 32>::kPixels) {
          Draw(
              spans, batch,
              target, [&](int i, uint8_t *row, ptrdiff_t n) __attribute__((always_inline)) {
                CombinePart<F, 32>(row, row, n, rule, sources[i]);
              });
          continue;
        }
      }
      Draw(
          spans, batch,
          target, [&](int i, uint8_t *row, ptrdiff_t n) __attribute__((always_inline)) {
            CombineRun<F, VectorBytes>(row, row, n, rule, sources[i]);
          });
    }
  }

  // Returns the length of the longest span.
  BRISAL_INLINE static ptrdiff_t Prepare(const ShadedSpan *spans, int count, Shaded<F> *sources) {
    ptrdiff_t longest = 0;
    for (int i = 0; i < count; ++i) {
      const ptrdiff_t n = Length(spans[i]);
      sources[i] = Shaded<F>(spans[i].leftColour, spans[i].rightColour, n);
      if (n > longest) longest = n;
    }
    return longest;
  }

  template <class DrawRow>
  BRISAL_INLINE static void Draw(const ShadedSpan *spans, int count, const Buffer &target,
                                 DrawRow drawRow) {
    for (int i = 0; i < count; ++i) {
      const ShadedSpan &span = spans[i];
      const ptrdiff_t n = Length(span);
      if (n <= 0 || Vanishes<F, R>(span)) continue;
      drawRow(i, target.Row(span.y) + ptrdiff_t{span.left} * F::kBytes, n);
    }
  }
};

using ShadedTable = KernelTable<FoldAlpha, const ShadedSpan *, int64_t, Buffer>;
constexpr auto kShadedKernels = ShadedTable::Of<ShadedSpans>(ShadedRules{});

}  // namespace

ShadedKernel FindShadedKernel(Isa isa, Rule rule, int32_t format) {
  const size_t row = static_cast<size_t>(rule);
  if (row >= kShadedKernels.size() || !IsFormat(format)) return nullptr;
  return kShadedKernels[row][static_cast<size_t>(format - 1)].For(isa);
}

}  // namespace brisal
