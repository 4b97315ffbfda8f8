#include "collide/compare.h"

#include <algorithm>

#include "collide/span_lists.h"
#include "collide/textured_list.h"
#include "core/ints.h"
#include "pixel/format.h"

namespace brisal {
namespace {

// The image of a textured list along one of its rows, from column x on.
class ImageRow {
 public:
  ImageRow(const BRSL_TexturedSpans &list, const BRSL_TexturedSpan &span, int64_t x)
      : image_(static_cast<const uint8_t *>(list.image)),
        pitch_(list.pitch),
        mask_(list.maskColour),
        u_(span.leftU),
        v_(span.leftV) {
    const int64_t width = int64_t{span.right} - span.left;
    du_ = Divide(int64_t{span.rightU} - span.leftU, width);
    dv_ = Divide(int64_t{span.rightV} - span.leftV, width);
    Advance(x - span.left);
  }

  void Advance(int64_t pixels) {
    u_ += du_ * pixels;
    v_ += dv_ * pixels;
  }

  // Where the texel is, in bytes from the image's start.
  template <class F>
  int64_t Place() const {
    return ByteOffset(v_ >> 16, pitch_) + ByteOffset(u_ >> 16, F::kBytes);
  }

  template <class F>
  bool IsOpaque() const {
    return F::Load(image_ + Place<F>()) != mask_;
  }

 private:
  const uint8_t *image_;
  int32_t pitch_;
  uint32_t mask_;
  int64_t u_;
  int64_t v_;
  int64_t du_;
  int64_t dv_;
};

// The part of an image, in bytes from its start, from the first to the last texel that the rows of a
// list lead to. More is not known of its size.
template <class F>
class KnownPart {
 public:
  explicit KnownPart(const BRSL_TexturedSpans &list) {
    const BRSL_TexturedSpan *rows = EntriesOf(&list);
    const int64_t count = int64_t{list.bottom} - list.top;
    for (int64_t i = 0; i < count; ++i) {
      if (rows[i].y != list.top + i) continue;
      const auto [minU, maxU] = std::minmax({rows[i].leftU, rows[i].rightU});
      const auto [minV, maxV] = std::minmax({rows[i].leftV, rows[i].rightV});
      for (const int32_t v : {minV, maxV}) {
        const int64_t line = ByteOffset(v >> 16, list.pitch);
        first_ = std::min(first_, line + ByteOffset(minU >> 16, F::kBytes));
        last_ = std::max(last_, line + ByteOffset(maxU >> 16, F::kBytes));
      }
    }
  }

  bool Holds(int64_t place) const { return first_ <= place && place <= last_; }

 private:
  int64_t first_ = INT64_MAX;
  int64_t last_ = INT64_MIN;
};

// The columns that two spans share.
struct Overlap {
  template <class A, class B>
  Overlap(const A &a, const B &b)
      : left(std::max(a.left, b.left)), pixels(std::min(a.right, b.right) - left) {}

  int64_t left;
  int64_t pixels;
};

template <class F>
bool FindContact(const BRSL_CollisionSpans &filled, const BRSL_TexturedSpans &textured) {
  const BRSL_CollisionSpan *spans = EntriesOf(&filled);
  const BRSL_TexturedSpan *rows = EntriesOf(&textured);
  const int64_t rowCount = int64_t{textured.bottom} - textured.top;
  for (int64_t i = 0; i + 1 < filled.count; ++i) {
    const int64_t row = int64_t{spans[i].y} - textured.top;
    if (row < 0 || row >= rowCount) continue;
    const Overlap overlap(spans[i], rows[row]);
    // Behind the end of a list that ended early lie other rows, or none. One column is no contact.
    if (rows[row].y != spans[i].y || overlap.pixels < 2) continue;
    ImageRow image(textured, rows[row], overlap.left);
    for (int64_t n = overlap.pixels; n > 0; --n, image.Advance(1)) {
      if (image.IsOpaque<F>()) return true;
    }
  }
  return false;
}

// How many pixels behind the common ones are compared too: a span that begins further left, and ends
// no further right, counts with its whole width from where the other one begins.
int64_t PixelsBeyond(const BRSL_TexturedSpan &a, const BRSL_TexturedSpan &b) {
  return a.right <= b.right ? std::max<int64_t>(int64_t{b.left} - a.left, 0) : 0;
}

template <class F>
bool FindContact(const BRSL_TexturedSpans &a, const BRSL_TexturedSpans &b) {
  const int64_t top = std::max(a.top, b.top);
  const int64_t rowCount = std::min(a.bottom, b.bottom) - top - 1;
  if (rowCount < 1) return false;
  const KnownPart<F> knownA(a), knownB(b);
  const BRSL_TexturedSpan *rowsA = EntriesOf(&a) + (top - a.top);
  const BRSL_TexturedSpan *rowsB = EntriesOf(&b) + (top - b.top);
  for (int64_t row = 0; row < rowCount; ++row) {
    const BRSL_TexturedSpan &spanA = rowsA[row];
    const BRSL_TexturedSpan &spanB = rowsB[row];
    const Overlap overlap(spanA, spanB);
    const int64_t beyond = PixelsBeyond(spanA, spanB);
    if (spanA.y != spanB.y || overlap.pixels < 1 || overlap.pixels + beyond < 2) continue;
    ImageRow imageA(a, spanA, overlap.left);
    ImageRow imageB(b, spanB, overlap.left);
    for (int64_t n = overlap.pixels; n > -beyond; --n, imageA.Advance(1), imageB.Advance(1)) {
      const bool known =
          n > 0 || (knownA.Holds(imageA.Place<F>()) && knownB.Holds(imageB.Place<F>()));
      if (known && imageA.IsOpaque<F>() && imageB.IsOpaque<F>()) return true;
    }
  }
  return false;
}

}  // namespace

bool FilledMeetsTextured(const BRSL_CollisionSpans &filled, const BRSL_TexturedSpans &textured) {
  if (textured.image == nullptr) return false;
  if (filled.bottom < textured.top || filled.top > textured.bottom) return false;
  switch (textured.format) {
    case BRSL_FORMAT_565:
    case BRSL_FORMAT_555: return FindContact<Rgb565>(filled, textured);
    case BRSL_FORMAT_RGB: return FindContact<Rgb24>(filled, textured);
    default: return FindContact<Xrgb32>(filled, textured);
  }
}

bool TexturedMeetsTextured(const BRSL_TexturedSpans &a, const BRSL_TexturedSpans &b) {
  if (a.image == nullptr || b.image == nullptr) return false;
  switch (BytesPerPixel(a.format)) {
    case 2: return FindContact<Rgb565>(a, b);
    case 4: return FindContact<Xrgb32>(a, b);
    default: return false;
  }
}

}  // namespace brisal
