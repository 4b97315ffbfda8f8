#pragma once

#include <cstdint>

#if defined(__x86_64__) || defined(__i386__)
#define BRISAL_HAS_AVX2 1
#else
#define BRISAL_HAS_AVX2 0
#endif

// 32-bit programs have too few registers for it to pay.
#if defined(__x86_64__) && !defined(BRISAL_WITHOUT_AVX512)
#define BRISAL_HAS_AVX512 1
#else
#define BRISAL_HAS_AVX512 0
#endif

#define BRISAL_AVX2 "avx2"
#define BRISAL_AVX512 "avx2,bmi2,avx512f,avx512bw,avx512dq,avx512vl,avx512vbmi"

namespace brisal {

// The instruction sets that kernels are compiled for. Each is a column of the kernel tables. The last two
// have the same instructions, but where processors gather fast the last one makes more of that.
enum class Isa : uint8_t { kPlain, kAvx2, kAvx512, kGathering };

bool HasMmx();

// The fastest one that this processor runs, and the library was built with; or the one that the
// environment's BRISAL_ISA names (plain, avx2, avx512, gathering), so that each can be tested and timed.
Isa BestIsa();

// The time-stamp counter, or a monotonic clock in nanoseconds where there is none.
uint64_t CycleCount();

}  // namespace brisal
