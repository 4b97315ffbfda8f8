#include "core/span.h"

#include <cstdlib>

namespace brisal {

void *SpanBuffer::Grow(int64_t count, size_t size) {
  constexpr size_t kLeast = 1024 * sizeof(Span);
  std::free(memory_);
  memory_ = nullptr;
  capacity_ = 0;
  if (static_cast<uint64_t>(count) > SIZE_MAX / size) return nullptr;
  const size_t bytes = static_cast<size_t>(count) * size;
  const size_t wanted = bytes > kLeast ? bytes : kLeast;
  memory_ = std::malloc(wanted);
  if (memory_ != nullptr) capacity_ = wanted;
  return memory_;
}

}  // namespace brisal
