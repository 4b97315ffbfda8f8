#pragma once

#include <algorithm>
#include <cstdint>

#include "pixel/format.h"
#include "surface/surface.h"

namespace brisal {

constexpr int kRowPiece = 256;

// Hands the pixels of the surface's viewport to change(x, y, n, colours), piece by piece, and stores
// what it makes of the colours. 32-bit pixels are changed where they lie.
template <class Change>
void ChangeColours(Isa isa, const Surface &surface, Change change) {
  const Buffer buffer = BufferOf(surface);
  const bool inPlace = BytesPerPixel(buffer.format) == 4;
  const int64_t piece = inPlace ? INT32_MAX / 4 : kRowPiece;
  uint32_t colours[kRowPiece];
  for (int64_t y = surface.viewTop; y < surface.viewBottom; ++y) {
    for (int64_t x = surface.viewLeft; x < surface.viewRight; x += piece) {
      const int n = static_cast<int>(std::min<int64_t>(surface.viewRight - x, piece));
      const int32_t column = static_cast<int32_t>(x);
      const int32_t row = static_cast<int32_t>(y);
      if (inPlace) {
        change(column, row, n, buffer.Row(row) + ByteOffset(column, 4));
        continue;
      }
      ReadRow(isa, buffer, column, row, n, colours);
      change(column, row, n, reinterpret_cast<uint8_t *>(colours));
      WriteRow(isa, buffer, column, row, n, colours);
    }
  }
}

}  // namespace brisal
