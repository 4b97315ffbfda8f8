#include "core/span.h"

#include <cstdlib>

namespace brisal {

void *SpanBuffer::Grow(int64_t count, size_t size) {
  constexpr size_t kLeast = 1024 * sizeof(Span);
  // Of the vectors in records. Not every malloc aligns so far.
  constexpr size_t kAlignment = 16;
  std::free(block_);
  block_ = nullptr;
  memory_ = nullptr;
  capacity_ = 0;
  if (static_cast<uint64_t>(count) > (SIZE_MAX - kAlignment) / size) return nullptr;
  const size_t bytes = static_cast<size_t>(count) * size;
  const size_t wanted = bytes > kLeast ? bytes : kLeast;
  block_ = std::malloc(wanted + kAlignment);
  if (block_ == nullptr) return nullptr;
  const uintptr_t address = reinterpret_cast<uintptr_t>(block_);
  memory_ = static_cast<uint8_t *>(block_) + (kAlignment - address % kAlignment);
  capacity_ = wanted;
  return memory_;
}

}  // namespace brisal
