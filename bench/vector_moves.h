#pragma once

#include <cstdint>
#include <vector>

#include "bench/moves.h"

// The ways of moving bytes that only some processors have.

namespace brisal::bench {

// Those of one instruction set: what a run reads before what it writes, or both in turn.
struct VectorMovers {
  NamedMover store, copy;
  NamedMover flip, merge;
};

// Of the sets that this processor has; none but on x86-64.
std::vector<VectorMovers> VectorMoversHere();

// For runs that read nothing, and where there are sets.
void WithRepStos(const std::vector<Run> &runs, const uint8_t *picture, uint8_t *spot);
void WithStreaming(const std::vector<Run> &runs, const uint8_t *picture, uint8_t *spot);

}  // namespace brisal::bench
