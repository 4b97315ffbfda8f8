#pragma once

#include <cstdio>
#include <cstdlib>

// Stops the fuzzer, which keeps the input.
inline void Check(bool holds, const char *what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}
