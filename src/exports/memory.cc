#include "core/memory.h"

#include <cstring>

#include "brisal/brisal.h"

using namespace brisal;

void BRSL_CALL(CopyMemory)(const void *source, void *destination, uint32_t byteCount) {
  if (byteCount != 0) std::memcpy(destination, source, byteCount);
}

void BRSL_CALL(FillMemory)(void *destination, int32_t count, uint32_t value, int32_t size) {
  FillElements(static_cast<uint8_t *>(destination), 1, count, value, size);
}

void BRSL_CALL FillMemoryEx(void *destination, int32_t stride, int32_t count, uint32_t value,
                            int32_t size) {
  FillElements(static_cast<uint8_t *>(destination), stride, count, value, size);
}

int32_t BRSL_CALL CompareBytes(const void *a, const void *b, int32_t count) {
  return count <= 0 || std::memcmp(a, b, static_cast<size_t>(count)) == 0;
}

int32_t BRSL_CALL BRSL_FindRunLength(const void *address, int32_t direction, int32_t count,
                                     int32_t size, int32_t value) {
  return FindRunLength(static_cast<const uint8_t *>(address), direction >= 0, count, size, value);
}
