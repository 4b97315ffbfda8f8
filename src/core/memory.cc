#include "core/memory.h"

#include <cstring>

#include "core/ints.h"

namespace brisal {
namespace {

struct Element24 {
  uint8_t bytes[3];
};

template <class T>
T ElementOf(uint32_t value) {
  T element;
  std::memcpy(&element, &value, sizeof element);
  return element;
}

// Contiguous fills double what is written already, so the copies soon are as wide as the machine.
void FillContiguous(uint8_t *to, size_t elementBytes, int32_t count, uint32_t value) {
  const size_t total = elementBytes * static_cast<size_t>(count);
  std::memcpy(to, &value, elementBytes);
  constexpr size_t kLongestCopy = 6144;  // a multiple of every element size
  for (size_t done = elementBytes; done < total;) {
    size_t n = done < kLongestCopy ? done : kLongestCopy;
    if (n > total - done) n = total - done;
    std::memcpy(to + done, to, n);
    done += n;
  }
}

template <class T>
void FillStrided(uint8_t *to, intptr_t step, int32_t count, uint32_t value) {
  const T element = ElementOf<T>(value);
  for (int32_t i = 0; i < count; ++i) {
    std::memcpy(to, &element, sizeof element);
    if (i + 1 < count) to += step;
  }
}

template <class T>
void Fill(uint8_t *to, int64_t stride, int32_t count, uint32_t value) {
  if (stride == 1) return FillContiguous(to, sizeof(T), count, value);
  FillStrided<T>(to, ByteOffset(stride, sizeof(T)), count, value);
}

template <class T>
int32_t RunLength(const uint8_t *at, bool forward, int32_t count, int32_t value) {
  const intptr_t step = forward ? intptr_t{sizeof(T)} : -intptr_t{sizeof(T)};
  for (int32_t i = 0; i < count; ++i) {
    T element;
    std::memcpy(&element, at + ByteOffset(i, step), sizeof element);
    if (element != value) return i;
  }
  return count;
}

}  // namespace

void FillElements(uint8_t *to, int64_t stride, int32_t count, uint32_t value, int32_t size) {
  if (count <= 0 || stride == 0) return;
  switch (size & 7) {
    case 0:
    case 1: return Fill<uint8_t>(to, stride, count, value);
    case 2: return Fill<uint16_t>(to, stride, count, value);
    case 3: return Fill<Element24>(to, stride, count, value);
    case 4: return Fill<uint32_t>(to, stride, count, value);
    default: return;
  }
}

int32_t FindRunLength(const uint8_t *at, bool forward, int32_t count, int32_t size, int32_t value) {
  if (count <= 0) return 0;
  switch (size) {
    case 1: return RunLength<int8_t>(at, forward, count, value);
    case 2: return RunLength<int16_t>(at, forward, count, value);
    case 4: return RunLength<int32_t>(at, forward, count, value);
    default: return 0;
  }
}

}  // namespace brisal
