#pragma once

#include <cstdint>

#include "core/vertex_list.h"
#include "pixel/fixed_point.h"

namespace brisal {

// The colour of an edge. At a vertex it carries on from the value reached.
struct ColourValues {
  void Start(const VertexList &list, int vertex) { colour = Fixed(list.colour[vertex]); }

  void AimAt(const VertexList &list, int vertex, const Reciprocal &perRow) {
    step = StepBetween(colour, Fixed(list.colour[vertex]), perRow);
  }

  void Advance(int64_t rows) { colour += Times(step, rows); }

  FixedColour colour = {};
  FixedColour step = {};
};

// Moves the colours of a row's ends along to where it is cut.
inline void CutColours(FixedColour &left, FixedColour &right, int64_t width, int64_t leftCut,
                       int64_t rightCut) {
  const FixedColour step = StepBetween(left, right, Reciprocal(width));
  left += Times(step, leftCut);
  right -= Times(step, rightCut);
}

}  // namespace brisal
