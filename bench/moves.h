#pragma once

#include <cstdint>
#include <vector>

// The fastest ways of moving bytes, without a thought about what they mean.

namespace brisal::bench {

// A row of neighbouring bytes, relative to the first one of whatever they are part of.
struct Run {
  int64_t offset;
  int64_t size;
};

// What a job writes, relative to its spot, and what it reads of its picture for each of these, if it shows
// one.
struct Moves {
  std::vector<Run> writes;
  std::vector<Run> reads;
};

using Mover = void (*)(const Moves &, const uint8_t *picture, uint8_t *spot);

struct NamedMover {
  const char *name;
  Mover move;
};

// Ways of making the moves: over what is there, or as a function of it.
std::vector<NamedMover> MoversOf(bool isSolid, const Moves &moves, int bytesPerPixel);

}  // namespace brisal::bench
