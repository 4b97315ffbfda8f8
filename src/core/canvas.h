#pragma once

#include <cstdint>

#include "core/cpu.h"
#include "core/ints.h"

namespace brisal {

// Pixel memory of the host: address of pixel (0, 0), bytes from row to row, format code.
struct Buffer {
  uint8_t *address = nullptr;
  int32_t pitch = 0;
  int32_t format = 0;

  uint8_t *Row(int64_t y) const { return address + ByteOffset(y, pitch); }
};

// Half-open clip rectangle.
struct Viewport {
  int32_t left = 0;
  int32_t top = 0;
  int32_t right = 0;
  int32_t bottom = 0;

  bool ContainsColumn(int64_t x) const { return left <= x && x < right; }
  bool ContainsRow(int64_t y) const { return top <= y && y < bottom; }
  bool Contains(int64_t x, int64_t y) const { return ContainsColumn(x) && ContainsRow(y); }
};

// Everything that a drawing call reads: where it draws, how far, and how.
struct Canvas {
  Buffer target;
  Viewport viewport;
  uint32_t inkAlpha = 255;
  Isa isa = Isa::kPlain;  // the column of the kernel tables that is run
};

}  // namespace brisal
