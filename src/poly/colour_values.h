#pragma once

#include <cstdint>

#include "core/reciprocal.h"
#include "core/vertex_list.h"

namespace brisal {

// The colour of an edge, its channels in 16.16. At a vertex they carry on from the value reached.
struct ColourValues {
  void Start(const VertexList &list, int vertex) {
    for (int c = 0; c < 3; ++c) channel[c] = Target(list, vertex, c);
  }

  void AimAt(const VertexList &list, int vertex, const Reciprocal &perRow) {
    for (int c = 0; c < 3; ++c) {
      step[c] = static_cast<int32_t>(perRow.Quotient(Target(list, vertex, c) - channel[c]));
    }
  }

  void Advance(int64_t rows) {
    for (int c = 0; c < 3; ++c) channel[c] += static_cast<int32_t>(rows * step[c]);
  }

  static int32_t Target(const VertexList &list, int vertex, int c) {
    return static_cast<int32_t>(list.colour[vertex] >> (16 - 8 * c) & 0xFF) << 16;
  }

  int32_t Colour() const {
    return (channel[0] & 0xFF0000) | (channel[1] >> 8 & 0xFF00) | (channel[2] >> 16 & 0xFF);
  }

  int32_t channel[3] = {};
  int32_t step[3] = {};
};

// Moves the colours of a row's ends along to where it is cut.
inline void CutColours(ColourValues &left, ColourValues &right, int64_t width, int64_t leftCut,
                       int64_t rightCut) {
  const Reciprocal perPixel(width);
  for (int c = 0; c < 3; ++c) {
    const int64_t step = perPixel.Quotient(right.channel[c] - left.channel[c]);
    left.channel[c] += static_cast<int32_t>(leftCut * step);
    right.channel[c] -= static_cast<int32_t>(rightCut * step);
  }
}

}  // namespace brisal
