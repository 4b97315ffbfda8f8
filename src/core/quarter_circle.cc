#include "core/quarter_circle.h"

#include <cmath>

namespace brisal {

void QuarterCircle::Build() {
  for (int i = 0; i < kRadius; ++i) {
    const int height = i + 1;
    const double square = static_cast<double>(kRadius * kRadius - height * height);
    widths_[i] = static_cast<int32_t>(std::sqrt(square));
  }
}

}  // namespace brisal
