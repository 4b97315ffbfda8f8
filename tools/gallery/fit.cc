#include "tools/gallery/fit.h"

#include <algorithm>
#include <vector>

namespace brisal::tools {

namespace {

// A run of source pixels; never empty.
struct Run {
  int32_t from, to;
};

// For each of count target pixels, the source pixels under it: of size source pixels the middle
// used ones are spread evenly.
std::vector<Run> Runs(int32_t count, int32_t size, int64_t used) {
  const int64_t start = (size - used) / 2;
  std::vector<Run> runs;
  for (int64_t i = 0; i < count; i++) {
    const auto from = static_cast<int32_t>(start + i * used / count);
    const auto to = static_cast<int32_t>(start + (i + 1) * used / count);
    runs.push_back({from, std::max(from + 1, to)});
  }
  return runs;
}

uint32_t OnWhite(uint32_t channel, uint32_t alpha) {
  return (channel * alpha + 255 * (255 - alpha) + 127) / 255;
}

uint32_t Average(const host::Image &picture, Run columns, Run rows) {
  uint64_t r = 0, g = 0, b = 0;
  for (int32_t y = rows.from; y < rows.to; y++) {
    for (int32_t x = columns.from; x < columns.to; x++) {
      const uint32_t colour = picture.Get(x, y);
      const uint32_t alpha = colour >> 24;
      r += OnWhite(colour >> 16 & 0xFF, alpha);
      g += OnWhite(colour >> 8 & 0xFF, alpha);
      b += OnWhite(colour & 0xFF, alpha);
    }
  }
  const uint64_t n =
      static_cast<uint64_t>(columns.to - columns.from) * static_cast<uint64_t>(rows.to - rows.from);
  return 0xFF000000 |
         static_cast<uint32_t>((r + n / 2) / n << 16 | (g + n / 2) / n << 8 | (b + n / 2) / n);
}

}  // namespace

host::Image Fit(const host::Image &picture, int32_t width, int32_t height) {
  const int64_t sourceWidth = picture.Width(), sourceHeight = picture.Height();
  const bool cutSides = sourceWidth * height > sourceHeight * width;
  const int64_t usedWidth = cutSides ? sourceHeight * width / height : sourceWidth;
  const int64_t usedHeight = cutSides ? sourceHeight : sourceWidth * height / width;
  const std::vector<Run> columns = Runs(width, picture.Width(), std::max<int64_t>(1, usedWidth));
  const std::vector<Run> rows = Runs(height, picture.Height(), std::max<int64_t>(1, usedHeight));

  host::Image result(width, height, BRSL_FORMAT_A32);
  for (int32_t y = 0; y < height; y++) {
    for (int32_t x = 0; x < width; x++) {
      result.Set(x, y,
                 Average(picture, columns[static_cast<size_t>(x)], rows[static_cast<size_t>(y)]));
    }
  }
  return result;
}

}  // namespace brisal::tools
