#include "core/cpu.h"

#if BRISAL_HAS_AVX2
#include <cpuid.h>
#include <x86intrin.h>
#else
#include <ctime>
#endif

namespace brisal {

#if BRISAL_HAS_AVX2

namespace {

bool HasAvx512() {
#if BRISAL_HAS_AVX512
  return __builtin_cpu_supports("bmi2") && __builtin_cpu_supports("avx512bw") &&
         __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl") &&
         __builtin_cpu_supports("avx512vbmi");
#else
  return false;
#endif
}

}  // namespace

bool HasMmx() {
  unsigned a = 0;
  unsigned b = 0;
  unsigned c = 0;
  unsigned d = 0;
  return __get_cpuid(1, &a, &b, &c, &d) != 0 && (d >> 23 & 1) != 0;
}

Isa BestIsa() {
  __builtin_cpu_init();
  if (!__builtin_cpu_supports("avx2")) return Isa::kPlain;
  return HasAvx512() ? Isa::kAvx512 : Isa::kAvx2;
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
