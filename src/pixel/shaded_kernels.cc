#include "core/ints.h"
#include "pixel/column.h"
#include "pixel/run.h"
#include "pixel/sources.h"
#include "pixel/span_kernels.h"

namespace brisal {
namespace {

// Adding or subtracting what the format cannot tell from black is nothing at all, not even to the
// bits of a pixel that belong to no channel.
template <class F, class R>
BRISAL_INLINE bool Vanishes(const Span &span) {
  if constexpr (!std::is_same_v<R, Add<F>> && !std::is_same_v<R, Sub<F>>) return false;
  const uint32_t bits = static_cast<uint32_t>(span.leftColour | span.rightColour);
  return (bits & F::kPrecision) == 0;
}

BRISAL_INLINE Ramp RampOf(const Span &span, int64_t n) {
  Ramp ramp;
  for (int c = 0; c < 3; ++c) {
    const int shift = 16 - 8 * c;
    const int left = span.leftColour >> shift & 0xFF;
    const int right = span.rightColour >> shift & 0xFF;
    ramp.start[c] = static_cast<uint32_t>(left) << 16;
    ramp.step[c] = static_cast<uint32_t>(Divide((right - left) * 65536, n));
  }
  return ramp;
}

template <class F, class R>
struct ShadedSpans {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const Runs *runs, const Buffer *target) {
    const R rule(0);
    const Span *span = runs->spans;
    for (int64_t i = 0; i < runs->count; ++i, span += runs->spanStep) {
      const ptrdiff_t n = static_cast<ptrdiff_t>(span->right) - span->left;
      if (n <= 0) continue;
      if (Vanishes<F, R>(*span)) continue;
      uint8_t *row = target->Row(span->y + i * runs->rowStep);
      CombineRun<F, VectorBytes>(row + ptrdiff_t{span->left} * F::kBytes, n, rule,
                                 Shaded<F>(RampOf(*span, n)));
    }
  }
};

using ShadedTable = KernelTable<const Runs *, const Buffer *>;
constexpr auto kShadedKernels = ShadedTable::Of<ShadedSpans>(ShadedRules{});

}  // namespace

ShadedKernel FindShadedKernel(bool wide, Rule rule, int32_t format) {
  const size_t row = static_cast<size_t>(rule);
  if (row >= kShadedKernels.size() || !IsFormat(format)) return nullptr;
  return kShadedKernels[row][static_cast<size_t>(format - 1)].columns[wide];
}

}  // namespace brisal
