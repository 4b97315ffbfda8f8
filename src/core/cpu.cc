#include "core/cpu.h"

#include <cstdlib>
#include <cstring>

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

// Processors with arithmetic on halves of floats gather fast; of those before, many do not.
bool GathersFast() {
  unsigned a = 0;
  unsigned b = 0;
  unsigned c = 0;
  unsigned d = 0;
  constexpr unsigned kFp16 = 1u << 23;
  return __get_cpuid_count(7, 0, &a, &b, &c, &d) != 0 && (d & kFp16) != 0;
}

bool IsAskedFor(const char *name) {
  const char *const asked = std::getenv("BRISAL_ISA");
  return asked != nullptr && std::strcmp(asked, name) == 0;
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
  if (!__builtin_cpu_supports("avx2") || IsAskedFor("plain")) return Isa::kPlain;
  if (!HasAvx512() || IsAskedFor("avx2")) return Isa::kAvx2;
  if (IsAskedFor("avx512")) return Isa::kAvx512;
  return GathersFast() || IsAskedFor("gathering") ? Isa::kGathering : Isa::kAvx512;
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
