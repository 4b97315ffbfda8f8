#pragma once

#include <cstdint>

namespace brisal {

// The vertices of the polygon being drawn. They stay after the call: a later one that sets fewer
// arrays or slots finds the others as they were.
struct VertexList {
  static constexpr int kSlots = 8;

  int32_t x[kSlots] = {};
  int32_t y[kSlots] = {};
  uint32_t colour[kSlots] = {};
  int32_t u[kSlots] = {};
  int32_t v[kSlots] = {};

  void Place(int slot, int32_t px, int32_t py) {
    x[slot] = px;
    y[slot] = py;
  }
};

}  // namespace brisal
