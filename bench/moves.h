#pragma once

#include <cstdint>
#include <vector>

// The fastest ways of moving bytes, without a thought about what they mean.

namespace brisal::bench {

// A row of neighbouring bytes that the job touches, relative to its spot.
struct Run {
  int64_t offset;
  int64_t size;
};

using Writer = void (*)(const std::vector<Run> &, uint8_t *);
using RowMover = void (*)(const uint8_t *from, int64_t fromSize, uint8_t *to, int64_t toSize);

struct NamedWriter {
  const char *name;
  Writer write;
};

struct NamedMover {
  const char *name;
  RowMover move;
};

// Ways of writing all runs, from a base on: over what is there, or as a function of it.
std::vector<NamedWriter> WritersOf(bool isSolid, const std::vector<Run> &runs, int bytesPerPixel);

// Ways of moving a row of fromSize bytes to one of toSize: over what is there, or merged with it.
std::vector<NamedMover> MoversOf(bool copies, int64_t fromSize, int64_t toSize);

}  // namespace brisal::bench
