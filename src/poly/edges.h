#pragma once

#include <cstdint>

namespace brisal {

struct PolyBounds {
  int32_t minX;
  int32_t minY;
  int32_t maxX;
  int32_t maxY;
};

// Bounds of n vertices, and the index of the first one with the least y. Below two vertices it
// reports vertex 0.
int GetPolyBounds(const int32_t *xs, const int32_t *ys, int n, PolyBounds *bounds);

// The ends of the run of neighbours around vertex i that share its y: backwards and forwards around
// the ring.
int FindFlatRunStart(const int32_t *ys, int i, int32_t y, int n);
int FindFlatRunEnd(const int32_t *ys, int i, int32_t y, int n);

// The first vertex from i on, in steps of +1 or -1 around the ring, whose y is not y; after n steps
// the one reached.
int FindNextEdgeVertex(const int32_t *ys, int64_t y, int i, int step, int n);

// Whether the ring's first three vertices turn so that its left side runs backwards. 32-bit arithmetic
// decides, as programs expect, unless coordinates have more than 16 bits.
bool LeftRunsBackwards(const int32_t *xs, const int32_t *ys);

}  // namespace brisal
