#include "poly/edges.h"

#include <algorithm>

#include "core/ints.h"

namespace brisal {
namespace {

int Neighbour(int i, int step, int n) {
  i += step;
  if (i < 0) return n - 1;
  return i < n ? i : 0;
}

int FindFlatRun(const int32_t *ys, int i, int32_t y, int step, int n) {
  for (int steps = 0; steps < n; ++steps) {
    const int next = Neighbour(i, step, n);
    if (ys[next] != y) break;
    i = next;
  }
  return i;
}

}  // namespace

int GetPolyBounds(const int32_t *xs, const int32_t *ys, int n, PolyBounds *bounds) {
  *bounds = {xs[0], ys[0], xs[0], ys[0]};
  int top = 0;
  for (int i = 1; i < n; ++i) {
    bounds->minX = std::min(bounds->minX, xs[i]);
    bounds->maxX = std::max(bounds->maxX, xs[i]);
    bounds->maxY = std::max(bounds->maxY, ys[i]);
    if (ys[i] < bounds->minY) {
      bounds->minY = ys[i];
      top = i;
    }
  }
  return top;
}

int FindFlatRunStart(const int32_t *ys, int i, int32_t y, int n) {
  return FindFlatRun(ys, i, y, -1, n);
}

int FindFlatRunEnd(const int32_t *ys, int i, int32_t y, int n) {
  return FindFlatRun(ys, i, y, 1, n);
}

int FindNextEdgeVertex(const int32_t *ys, int64_t y, int i, int step, int n) {
  for (int steps = 0; steps < n && ys[i] == y; ++steps) i = Neighbour(i, step, n);
  return i;
}

bool LeftRunsBackwards(const int32_t *xs, const int32_t *ys) {
  const int64_t ax = int64_t{xs[1]} - xs[0];
  const int64_t ay = int64_t{ys[1]} - ys[0];
  const int64_t bx = int64_t{xs[2]} - xs[0];
  const int64_t by = int64_t{ys[2]} - ys[0];
  // With 32768 added, what fits 16 bits is below 65536.
  uint32_t raised = 0;
  for (int i = 0; i < 3; ++i) {
    raised |= (static_cast<uint32_t>(xs[i]) + 0x8000) | (static_cast<uint32_t>(ys[i]) + 0x8000);
  }
  if (raised < 65536) return Wrap(ax * by - bx * ay) > 0;
  // ax * by - bx * ay needs 67 bits: 16 bits of one factor at a time.
  const int64_t low = ax * (by & 0xFFFF) - bx * (ay & 0xFFFF);
  const int64_t high = ax * (by >> 16) - bx * (ay >> 16) + (low >> 16);
  return high > 0 || (high == 0 && (low & 0xFFFF) != 0);
}

}  // namespace brisal
