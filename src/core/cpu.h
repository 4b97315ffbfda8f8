#pragma once

#include <cstdint>

#if defined(__x86_64__) || defined(__i386__)
#define BRISAL_HAS_AVX2 1
#else
#define BRISAL_HAS_AVX2 0
#endif

#define BRISAL_AVX2 "avx2"

namespace brisal {

// The instruction sets that kernels are compiled for. Each is a column of the kernel tables.
enum class Isa : uint8_t { kPlain, kAvx2 };

bool HasMmx();

// The last one that this processor runs.
Isa BestIsa();

// The time-stamp counter, or a monotonic clock in nanoseconds where there is none.
uint64_t CycleCount();

}  // namespace brisal
