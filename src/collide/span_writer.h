#pragma once

#include <cstdint>

#include "collide/span_lists.h"
#include "core/ints.h"

namespace brisal {

// Writes the entries of a collision span list one after the other.
class SpanWriter {
 public:
  explicit SpanWriter(BRSL_CollisionSpans *list) : first_(EntriesOf(list)), next_(first_) {}

  void Add(int64_t y, int64_t left, int64_t right) {
    *next_++ = {Wrap(y), Wrap(left), Wrap(right)};
  }

  int32_t Count() const { return Wrap(next_ - first_); }

 private:
  BRSL_CollisionSpan *first_;
  BRSL_CollisionSpan *next_;
};

}  // namespace brisal
