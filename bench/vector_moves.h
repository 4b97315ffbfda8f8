#pragma once

#include <cstdint>
#include <vector>

#include "bench/moves.h"

// The ways of moving bytes that only some processors have.

namespace brisal::bench {

// Those of one instruction set, for jobs that read no picture and for those that do.
struct VectorMovers {
  NamedMover store, copy;
  NamedMover flip, merge;
};

// Of the sets that this processor has; none but on x86-64.
std::vector<VectorMovers> VectorMoversHere();

// Where there are such sets; the first one reads no picture.
void WithRepStos(const Moves &moves, const uint8_t *picture, uint8_t *spot);
void WithStreaming(const Moves &moves, const uint8_t *picture, uint8_t *spot);

}  // namespace brisal::bench
