#pragma once

#include <cstdint>

#include "tools/font/codes.h"

namespace brisal::tools {

struct RasterOptions {
  int32_t size = 16;   // pixels of the em square, 4 to 512
  int32_t depth = 8;   // 8 for intensities, 32 for white with alpha
  bool solid = false;  // at depth 8, pixels that are covered or not, with nothing between
  CodePoints codes = Latin1();
};

}  // namespace brisal::tools
