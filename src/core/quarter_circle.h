#pragma once

#include <cstdint>

namespace brisal {

// Half-widths of a circle of radius 16384 at heights 1 to 16384, from which every circle and
// ellipse is scaled. All zero until built.
class QuarterCircle {
 public:
  static constexpr int kRadius = 16384;

  void Build();

  // The half-width, scaled to `scale`, at height step / kRadius of a quarter circle.
  int64_t HalfWidth(int64_t step, int64_t scale) const { return (widths_[step] * scale) >> 14; }

 private:
  int32_t widths_[kRadius + 1] = {};  // the last entry, the pole, stays 0
};

}  // namespace brisal
