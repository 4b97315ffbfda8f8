#include "pixel/mix_kernels.h"

#include "core/ints.h"
#include "pixel/column.h"
#include "pixel/pixel_source.h"
#include "pixel/run.h"

namespace brisal {
namespace {

template <class F, class R>
struct MixRows : UpTo64Bytes {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(const Transfer &given, const uint8_t *with, ptrdiff_t withPitch) {
    const Transfer transfer = given;
    const R rule(0);
    for (int64_t row = 0; row < transfer.rows; ++row) {
      CombineRun<F, VectorBytes>(transfer.to + ByteOffset(row, transfer.toPitch),
                                 transfer.from + ByteOffset(row, transfer.fromPitch),
                                 transfer.width, rule,
                                 Pixels<F>(with + ByteOffset(row, withPitch)));
    }
  }
};

// Two pictures in 5:5:5 are averaged, where a colour is halved and added.
template <class F>
struct MixHalf : Half<F> {
  using Half<F>::Half;
};

template <>
struct MixHalf<Rgb555> : Reading<Rgb555> {
  explicit MixHalf(uint32_t) {}

  template <class V>
  BRISAL_INLINE V operator()(V d, V s) const {
    return (d & s & 0x7FFF) + (((d ^ s) >> 1) & Rgb555::kHalves);
  }
};

using MixRules = RuleList<Solid, MixHalf, Add, Sub, Mult>;
using MixTable = KernelTable<FoldPacked, const Transfer &, const uint8_t *, ptrdiff_t>;
constexpr auto kMixKernels = MixTable::Of<MixRows>(MixRules{});

}  // namespace

MixKernel FindMixKernel(Isa isa, Rule rule, int32_t format) {
  const size_t row = static_cast<size_t>(rule);
  if (row >= kMixKernels.size() || !IsFormat(format)) return nullptr;
  return kMixKernels[row][static_cast<size_t>(format - 1)].For(isa);
}

}  // namespace brisal
