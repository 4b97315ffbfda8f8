#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "host/font.h"

namespace brisal::tools {

// A character as drawn from its outline. Pixels are intensities, row after row.
struct DrawnCharacter {
  int32_t left;  // columns from the pen to the first pixel
  int32_t top;   // rows from the baseline up to the first pixel's upper edge
  int32_t width;
  int32_t height;
  int32_t advance;
  std::vector<uint8_t> pixels;
};

// Drawn characters by their codes, and the rows that a line of text needs about its baseline.
struct Characters {
  std::map<int32_t, DrawnCharacter> byCode;
  int32_t ascent;
  int32_t descent;
};

// A raster font of count codes with those characters, in draw mode 1. Its glyphs share one baseline, so
// that text of any characters stands on a line. depth: 8 for intensities, 32 for white with alpha.
// Throws Error.
host::Font FontOf(const Characters &characters, int32_t count, int32_t depth);

}  // namespace brisal::tools
