#pragma once

#include <cstdint>

namespace brisal {

// The Gouraud colours of the span being drawn, pixel by pixel. They stay after the call: effects that
// read them in a pipeline without Gouraud colours find the last ones. Wider spans wrap around.
struct GouraudBuffer {
  static constexpr int kEntries = 4096;

  uint32_t colour[kEntries] = {};
};

}  // namespace brisal
