#include "core/span.h"

#include <cstdlib>

namespace brisal {

Span *SpanBuffer::Get(int64_t count) {
  if (count <= capacity_) return spans_;
  constexpr int64_t kLeast = 1024;
  if (count < kLeast) count = kLeast;
  std::free(spans_);
  spans_ = nullptr;
  capacity_ = 0;
  if (static_cast<uint64_t>(count) > SIZE_MAX / sizeof(Span)) return nullptr;
  spans_ = static_cast<Span *>(std::malloc(static_cast<size_t>(count) * sizeof(Span)));
  if (spans_ != nullptr) capacity_ = count;
  return spans_;
}

}  // namespace brisal
