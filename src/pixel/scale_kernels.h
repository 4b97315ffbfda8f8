#pragma once

#include <cstdint>

#include "pixel/texel_kernels.h"

// Rows of scaled pictures, made of the colours of the source rows above and below them. Colours come in
// pieces: arrays of kScaledPiece, of which n count.

namespace brisal {

// So long that most rows are one piece: shorter ones, drawn from top to bottom, leave their page with
// every row.
constexpr int kScaledPiece = 1024;

// Reads n pixels of a row, filtered between each column and the one to its right; the last column is
// repeated. The path runs to the right.
using RowFilterKernel = void (*)(const TexelPath &path, int n, uint32_t *colours);
RowFilterKernel FindRowFilterKernel(Isa isa, int32_t format);

// Blends exactly n colours from one row to the other, every byte, by a weight of 0 to 255 in 256.
using RowBlendKernel = void (*)(const uint32_t *top, const uint32_t *bottom, uint32_t weight, int n,
                                uint8_t *colours);
RowBlendKernel FindRowBlendKernel(Isa isa);

// For each pixel the columns at it and to its right, in two rows.
struct Neighbours {
  const uint32_t *topLeft;
  const uint32_t *topRight;
  const uint32_t *bottomLeft;
  const uint32_t *bottomRight;
};

// Weighs four neighbours by the distances of the place between them, u + i * du and v in 16.16, and
// stores exactly n colours.
using WeighKernel = void (*)(const Neighbours &around, uint32_t u, uint32_t du, uint32_t v, int n,
                             uint8_t *colours);
WeighKernel FindWeighKernel(Isa isa);

}  // namespace brisal
