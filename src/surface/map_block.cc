#include "surface/map_block.h"

#include <algorithm>

#include "pixel/format.h"

namespace brisal {
namespace {

bool IsTransparent(uint32_t colour, int32_t format, uint32_t key) {
  return format == BRSL_FORMAT_A32 ? colour >> 24 != 0xFF : colour == key;
}

}  // namespace

bool CopyMapBlock(Isa isa, const Surface &source, const Block &block, const Surface &destination,
                  int32_t x, int32_t y, uint32_t *rowBuffer, uint32_t maskColour) {
  const int64_t width = int64_t{block.right} - block.left;
  if (width < 1 || rowBuffer == nullptr || !IsFormat(source.format)) return false;
  const uint32_t key = MaskAsColour(maskColour, source.format);
  const int64_t first = std::max<int64_t>(-int64_t{x}, 0);
  const int64_t last = std::min<int64_t>(int64_t{destination.width} - x, width);
  bool transparent = false;
  for (int64_t row = block.top; row < block.bottom; ++row) {
    ReadRow(isa, BufferOf(source), block.left, static_cast<int32_t>(row), width, rowBuffer);
    for (int64_t i = 0; i < width && !transparent; ++i) {
      transparent = IsTransparent(rowBuffer[i], source.format, key);
    }
    const int64_t to = y + (row - block.top);
    if (to < 0 || to >= destination.height || first >= last) continue;
    WriteRow(isa, BufferOf(destination), static_cast<int32_t>(x + first), static_cast<int32_t>(to),
             last - first, rowBuffer + first);
  }
  return transparent;
}

}  // namespace brisal
