#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "host/font.h"

namespace brisal::tools {

// A font file, and what its glyphs add up to.
struct FontFacts {
  explicit FontFacts(const std::filesystem::path &path);

  host::FontHeader header;
  host::Font font;
  std::vector<int32_t> codes;  // that have a glyph
  int32_t solid = 0;           // of them
  int32_t width = 1;           // the largest glyph
  int32_t height = 1;
  int64_t leastAdvance = 0;
  int64_t mostAdvance = 0;
  int64_t blocks = 0;       // glyphs of different bytes
  int64_t blockBytes = 0;   // of those
  int64_t copiedBytes = 0;  // if each code had its own
  int64_t plainBytes = 0;   // if each code had a plain image
};

void PrintFacts(const std::filesystem::path &path);

}  // namespace brisal::tools
