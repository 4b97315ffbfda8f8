#include "reference/reference.h"

namespace reference {

void Copy(const uint8_t *source, uint8_t *destination, uint32_t byteCount) {
  for (uint32_t i = 0; i < byteCount; i++) destination[i] = source[i];
}

void Fill(uint8_t *destination, int32_t count, uint32_t value, int32_t size) {
  FillEx(destination, 1, count, value, size);
}

void FillEx(uint8_t *destination, int32_t stride, int32_t count, uint32_t value, int32_t size) {
  const int bytes = (size & 7) == 0 ? 1 : size & 7;
  if (bytes > 4 || stride == 0) return;
  for (int64_t i = 0; i < count; i++) {
    for (int b = 0; b < bytes; b++) {
      destination[i * stride * bytes + b] = static_cast<uint8_t>(value >> 8 * b);
    }
  }
}

int32_t Compare(const uint8_t *a, const uint8_t *b, int32_t count) {
  for (int32_t i = 0; i < count; i++) {
    if (a[i] != b[i]) return 0;
  }
  return 1;
}

int32_t RunLength(const uint8_t *address, int32_t direction, int32_t count, int32_t size,
                  int32_t value) {
  if (size != 1 && size != 2 && size != 4) return 0;
  for (int64_t i = 0; i < count; i++) {
    const uint8_t *p = address + (direction < 0 ? -i : i) * size;
    uint32_t element = 0;
    for (int b = 0; b < size; b++) element |= static_cast<uint32_t>(p[b]) << 8 * b;
    if (size == 1) element = static_cast<uint32_t>(static_cast<int8_t>(element));
    if (size == 2) element = static_cast<uint32_t>(static_cast<int16_t>(element));
    if (static_cast<int32_t>(element) != value) return static_cast<int32_t>(i);
  }
  return count < 0 ? 0 : count;
}

}  // namespace reference
