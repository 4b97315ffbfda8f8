#pragma once

#include <algorithm>
#include <cstdint>

#include "surface/surface.h"

namespace brisal {

constexpr int kRowPiece = 256;

// Hands the pixels of the surface's viewport to change(x, y, n, colours), piece by piece, and stores
// what it makes of the colours.
template <class Change>
void ChangeColours(const Surface &surface, Change change) {
  const Buffer buffer = BufferOf(surface);
  uint32_t colours[kRowPiece];
  for (int64_t y = surface.viewTop; y < surface.viewBottom; ++y) {
    for (int64_t x = surface.viewLeft; x < surface.viewRight; x += kRowPiece) {
      const int n = static_cast<int>(std::min<int64_t>(surface.viewRight - x, kRowPiece));
      const int32_t column = static_cast<int32_t>(x);
      const int32_t row = static_cast<int32_t>(y);
      ReadRow(buffer, column, row, n, colours);
      change(column, row, n, colours);
      WriteRow(buffer, column, row, n, colours);
    }
  }
}

}  // namespace brisal
