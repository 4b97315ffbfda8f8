#pragma once

#include <cstdint>
#include <filesystem>

#include "host/font.h"
#include "tools/font/codes.h"

namespace brisal::tools {

struct RasterOptions {
  int32_t size = 16;   // pixels of the em square, 4 to 512
  int32_t depth = 8;   // 8 for intensities, 32 for white with alpha
  bool solid = false;  // at depth 8, pixels that are covered or not, with nothing between
  CodePoints codes = Latin1();
};

// A raster font made from a file of outlines, in draw mode 1. Its glyphs share one baseline, so that
// text of any characters stands on a line. Throws Error.
host::Font RasterFont(const std::filesystem::path &path, const RasterOptions &options);

// The same from DejaVu Sans, wherever the machine has it; an Error says how to get it.
host::Font DejaVuFont(const RasterOptions &options);

}  // namespace brisal::tools
