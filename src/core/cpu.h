#pragma once

#include <cstdint>

namespace brisal {

bool HasMmx();

// Whether this processor runs the wide column of the kernel tables.
bool HasAvx2();

// The time-stamp counter, or a monotonic clock in nanoseconds where there is none.
uint64_t CycleCount();

}  // namespace brisal
