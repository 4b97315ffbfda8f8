#pragma once

#include <cstdint>

namespace brisal {

// Memory of the host that collects where the edges of an outline cross the rows.
struct EdgeBuffer {
  int32_t *rows = nullptr;   // the offset of the next free node, then that of each row's first node
  uint8_t *nodes = nullptr;  // offsets count from here, in bytes; 0 is none
};

}  // namespace brisal
