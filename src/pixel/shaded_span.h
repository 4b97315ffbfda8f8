#pragma once

#include <cstddef>
#include <cstdint>

#include "pixel/fixed_point.h"

namespace brisal {

// One row of a shaded shape: left is its first pixel, right one past its last, and the colours are
// those of their ends. Of the colours the whole parts count.
struct ShadedSpan {
  FixedColour leftColour;
  FixedColour rightColour;
  int32_t y;
  int32_t left;
  int32_t right;
};

inline ptrdiff_t Length(const ShadedSpan &span) { return ptrdiff_t{span.right} - span.left; }

}  // namespace brisal
