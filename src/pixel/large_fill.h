#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/cpu.h"
#include "pixel/lanes.h"

// Filling more bytes than caches hold. The processor's own repeated stores need not read what they replace.

namespace brisal {

#if BRISAL_HAS_AVX2
constexpr bool kRepeatsStores = true;

BRISAL_INLINE void RepeatWord(uint8_t *to, ptrdiff_t n, uint32_t word) {
  asm volatile("rep stosl" : "+D"(to), "+c"(n) : "a"(word) : "memory");
}
#else
constexpr bool kRepeatsStores = false;
BRISAL_INLINE void RepeatWord(uint8_t *, ptrdiff_t, uint32_t) {}
#endif

// Below, vectors are faster: so are short rows.
BRISAL_INLINE bool IsLargeFill(ptrdiff_t rowBytes, ptrdiff_t rows) {
  constexpr ptrdiff_t kLongBytes = 2048;
  constexpr int64_t kLargeBytes = 6 << 20;
  return rowBytes >= kLongBytes && int64_t{rowBytes} * rows >= kLargeBytes;
}

// Fills rows of whole pixels, of which a word holds one or two. Not inlined, or small fills would save
// its registers.
[[gnu::noinline]] inline void FillLarge(uint8_t *row, ptrdiff_t pitch, ptrdiff_t rowBytes,
                                        ptrdiff_t rows, uint32_t word) {
  if (pitch == rowBytes) {
    rowBytes *= rows;
    rows = 1;
  }
  for (ptrdiff_t y = 0; y < rows; ++y, row += pitch) {
    RepeatWord(row, rowBytes / 4, word);
    std::memcpy(row + rowBytes - sizeof word, &word, sizeof word);
  }
}

}  // namespace brisal
