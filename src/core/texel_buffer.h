#pragma once

#include <algorithm>
#include <cstdint>

namespace brisal {

// The Gouraud colours of the span being drawn, one for each texel that was not cut out. They stay after
// the call: effects that read them in a pipeline without Gouraud colours find the last ones.
class GouraudBuffer {
 public:
  static constexpr int kPiece = 256;

  // The entries of n texels, kPiece at the most, from the `first` of the span on. Those of texels beyond
  // the last entry that is kept begin at 0.
  uint32_t *From(int64_t first, int n) {
    const int64_t kept = std::clamp<int64_t>(kEntries - first, 0, n);
    uint32_t *const entries = colours_ + std::min<int64_t>(first, kEntries);
    std::fill(entries + kept, entries + n, 0);
    return entries;
  }

 private:
  static constexpr int kEntries = 4096;

  uint32_t colours_[kEntries + kPiece] = {};
};

}  // namespace brisal
