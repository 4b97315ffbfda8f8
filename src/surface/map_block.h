#pragma once

#include <cstdint>

#include "surface/surface.h"

namespace brisal {

// A rectangle of pixels, right and bottom exclusive.
struct Block {
  int32_t left;
  int32_t top;
  int32_t right;
  int32_t bottom;
};

// Copies a block by way of the row buffer. True when it holds a transparent pixel.
bool CopyMapBlock(Isa isa, const Surface &source, const Block &block, const Surface &destination,
                  int32_t x, int32_t y, uint32_t *rowBuffer, uint32_t maskColour);

}  // namespace brisal
