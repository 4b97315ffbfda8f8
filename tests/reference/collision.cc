// Whether lists of spans meet where their images are not transparent.
#include <algorithm>

#include "reference/records.h"
#include "reference/reference.h"

namespace reference {
namespace {

// A row of a textured list, and how its image is read along it.
struct Reader {
  Buffer image;
  uint32_t mask;
  BRSL_TexturedSpan span;
  int64_t width, du = 0, dv = 0;

  Reader(const BRSL_TexturedSpans &list, int64_t entry, int32_t format)
      : mask(list.maskColour),
        span(reinterpret_cast<const BRSL_TexturedSpan *>(&list + 1)[entry]),
        width(int64_t{span.right} - span.left) {
    image.address = const_cast<uint8_t *>(static_cast<const uint8_t *>(list.image));
    image.pitch = list.pitch;
    image.format = format;
    if (width < 1) return;
    du = (int64_t{span.rightU} - span.leftU) / width;
    dv = (int64_t{span.rightV} - span.leftV) / width;
  }

  bool OpaqueAt(int64_t x) const {
    const int64_t i = x - span.left;
    return image.Load((span.leftU + i * du) >> 16, (span.leftV + i * dv) >> 16) != mask;
  }
};

// The format whose pixels a comparison reads: 16 bits, three bytes or 32 bits.
int32_t ReadAs(int32_t format) { return format == 1 || format == 2 || format == 3 ? format : 4; }

}  // namespace

int32_t FilledMeetsTextured(const BRSL_CollisionSpans *filled, const BRSL_TexturedSpans *textured) {
  const auto *spans = reinterpret_cast<const BRSL_CollisionSpan *>(filled + 1);
  if (filled->bottom < textured->top || filled->top > textured->bottom) return 0;
  for (int64_t i = 0; i < int64_t{filled->count} - 1; i++) {
    const auto [y, left, right] = spans[i];
    if (y < textured->top || y >= textured->bottom) continue;
    const Reader t(*textured, int64_t{y} - textured->top, ReadAs(textured->format));
    if (t.span.y != y || t.width < 1) continue;
    const int64_t from = std::max(left, t.span.left), to = std::min(right, t.span.right);
    if (to - from < 2) continue;
    for (int64_t x = from; x < to; x++) {
      if (t.OpaqueAt(x)) return 1;
    }
  }
  return 0;
}

int32_t TexturedMeetsTextured(const BRSL_TexturedSpans *a, const BRSL_TexturedSpans *b) {
  const int64_t top = std::max(a->top, b->top), bottom = std::min(a->bottom, b->bottom);
  if (a->format < 1 || a->format > 5 || a->format == 3) return 0;
  for (int64_t y = top; y < bottom - 1; y++) {
    const Reader ra(*a, y - a->top, a->format), rb(*b, y - b->top, a->format);
    if (ra.span.y != rb.span.y || ra.width < 1 || rb.width < 1) continue;
    const int64_t from = std::max(ra.span.left, rb.span.left);
    const int64_t to = std::min(ra.span.right, rb.span.right);
    if (to - from < 2) continue;
    for (int64_t x = from; x < to; x++) {
      if (ra.OpaqueAt(x) && rb.OpaqueAt(x)) return 1;
    }
  }
  return 0;
}

}  // namespace reference
