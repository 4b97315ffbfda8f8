#pragma once

#include <vector>

#include "brisal/brisal.h"

// Both sides of the MMX switch, or the one there is.
inline std::vector<int32_t> SwitchStates() {
  if (CPU_CheckMMX()) return {0, 1};
  return {0};
}
