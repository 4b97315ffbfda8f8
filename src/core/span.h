#pragma once

#include <cstddef>
#include <cstdint>

namespace brisal {

// One row of a filled shape: left is its first pixel, right one past its last. Colours are
// 0x00RRGGBB at left and at right; u, v, du and dv belong to textures.
struct Span {
  int32_t y;
  int32_t left;
  int32_t leftColour;
  int32_t u;
  int32_t v;
  int32_t right;
  int32_t rightColour;
  int32_t du;
  int32_t dv;

  void Place(int64_t row, int64_t leftX, int64_t rightX) {
    y = static_cast<int32_t>(row);
    left = static_cast<int32_t>(leftX);
    right = static_cast<int32_t>(rightX);
  }
};

static_assert(sizeof(Span) == 36);

// One of the consecutive rows of a shape in one colour; it has no pixels where right <= left.
struct FlatSpan {
  int32_t left;
  int32_t right;
};

// The number of pixels; a reversed span has less than none.
template <class S>
ptrdiff_t Length(const S &span) {
  return ptrdiff_t{span.right} - span.left;
}

// The block of span records that filled shapes share, so that drawing allocates nothing once it has
// grown to the height of the viewport.
class SpanBuffer {
 public:
  SpanBuffer() = default;
  SpanBuffer(const SpanBuffer &) = delete;
  SpanBuffer &operator=(const SpanBuffer &) = delete;

  // Room for count records, with no particular contents; null when there is no memory.
  template <class Record>
  Record *Get(int64_t count) {
    const bool fits = count <= static_cast<int64_t>(capacity_ / sizeof(Record));
    return static_cast<Record *>(fits ? memory_ : Grow(count, sizeof(Record)));
  }

 private:
  void *Grow(int64_t count, size_t size);

  void *block_ = nullptr;
  void *memory_ = nullptr;  // in the block, aligned
  size_t capacity_ = 0;
};

}  // namespace brisal
