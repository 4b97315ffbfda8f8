#include "core/cpu.h"

#if BRISAL_HAS_AVX2
#include <cpuid.h>
#include <x86intrin.h>
#else
#include <ctime>
#endif

namespace brisal {

#if BRISAL_HAS_AVX2

bool HasMmx() {
  unsigned a = 0;
  unsigned b = 0;
  unsigned c = 0;
  unsigned d = 0;
  return __get_cpuid(1, &a, &b, &c, &d) != 0 && (d >> 23 & 1) != 0;
}

Isa BestIsa() {
  __builtin_cpu_init();
  return __builtin_cpu_supports("avx2") ? Isa::kAvx2 : Isa::kPlain;
}

uint64_t CycleCount() { return __rdtsc(); }

#else

bool HasMmx() { return false; }

Isa BestIsa() { return Isa::kPlain; }

uint64_t CycleCount() {
  timespec now = {};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<uint64_t>(now.tv_sec) * 1000000000u + static_cast<uint64_t>(now.tv_nsec);
}

#endif

}  // namespace brisal
