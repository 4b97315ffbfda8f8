#pragma once

#include <cstddef>
#include <cstdint>

#include "core/cpu.h"

namespace brisal {

// A rectangle of pixels on its way from one buffer to another: the first pixels, the bytes from row
// to row, and the size.
struct Transfer {
  uint8_t *to;
  ptrdiff_t toPitch;
  const uint8_t *from;
  ptrdiff_t fromPitch;
  ptrdiff_t width;
  int64_t rows;
};

// By reference, so that what was just stored piece by piece is read piece by piece.
using BlitKernel = void (*)(const Transfer &transfer, uint32_t key);

// The copy from one format to another. `transparent` leaves out pixels: those of the mask colour, or
// by their alpha where the source has one and the target differs. Null where the pair, or the pair
// with these flags, draws nothing.
BlitKernel FindBlitKernel(Isa isa, int32_t target, int32_t source, uint32_t flags);

// What a transparent copy compares with.
uint32_t BlitKey(int32_t target, int32_t source, uint32_t maskColour);

}  // namespace brisal
