#pragma once

#include <cstdint>
#include <vector>

// The fastest ways of moving bytes, without a thought about what they mean.

namespace brisal::bench {

// A row of neighbouring bytes that a job writes, relative to its spot, and those of its picture that it
// reads for them, relative to the picture's first byte.
struct Run {
  int64_t offset;
  int64_t size;
  int64_t from = 0;
  int64_t fromSize = 0;
};

using Mover = void (*)(const std::vector<Run> &, const uint8_t *picture, uint8_t *spot);

struct NamedMover {
  const char *name;
  Mover move;
};

// Ways of moving all runs: over what is there, or as a function of it.
std::vector<NamedMover> MoversOf(bool isSolid, const std::vector<Run> &runs, int bytesPerPixel);

}  // namespace brisal::bench
