#include "tools/info.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "tools/formats.h"

namespace brisal::tools {

namespace {

bool IsAskedFor(const char *set) {
  const char *const asked = std::getenv("BRISAL_ISA");
  return asked != nullptr && std::strcmp(asked, set) == 0;
}

// What the library chooses where the switch is on.
std::string BestInstructionSet() {
  if (IsAskedFor("plain")) return "plain";
#if defined(__x86_64__) && BRISAL_AVX512
  if (__builtin_cpu_supports("avx512vbmi") && !IsAskedFor("avx2")) return "avx512";
#endif
#if defined(__x86_64__) || defined(__i386__)
  if (__builtin_cpu_supports("avx2")) return "avx2";
#endif
  return "plain";
}

}  // namespace

std::string Version() {
  return std::to_string(BRSL_VERSION_MAJOR) + "." + std::to_string(BRSL_VERSION_MINOR) + "." +
         std::to_string(BRSL_VERSION_PATCH);
}

std::string InstructionSet() { return BRSL_GetMMXState() == 1 ? BestInstructionSet() : "plain"; }

void PrintInfo() {
  std::printf("version          %s\n", Version().c_str());
  for (const FormatInfo &format : kFormats) {
    std::printf("format %d         %s  %s\n", format.code, format.name, format.caption);
  }
  std::printf("MMX switch       %d\n", BRSL_GetMMXState());
  std::printf("instruction set  %s\n", InstructionSet().c_str());
}

}  // namespace brisal::tools
