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

  template <class F>
  bool IsOpaque() const {
    return F::Load(image_ + ByteOffset(v_ >> 16, pitch_) + ByteOffset(u_ >> 16, F::kBytes)) !=
           mask_;
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

// The columns that two spans share. One alone is no contact.
struct Overlap {
  template <class A, class B>
  Overlap(const A &a, const B &b)
      : left(std::max(a.left, b.left)), pixels(std::min(a.right, b.right) - left) {}

  bool IsContact() const { return pixels > 1; }

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
    // Behind the end of a list that ended early lie other rows, or none.
    if (rows[row].y != spans[i].y || !overlap.IsContact()) continue;
    ImageRow image(textured, rows[row], overlap.left);
    for (int64_t n = overlap.pixels; n > 0; --n, image.Advance(1)) {
      if (image.IsOpaque<F>()) return true;
    }
  }
  return false;
}

template <class F>
bool FindContact(const BRSL_TexturedSpans &a, const BRSL_TexturedSpans &b) {
  const int64_t top = std::max(a.top, b.top);
  const int64_t rowCount = std::min(a.bottom, b.bottom) - top - 1;
  const BRSL_TexturedSpan *rowsA = EntriesOf(&a) + (top - a.top);
  const BRSL_TexturedSpan *rowsB = EntriesOf(&b) + (top - b.top);
  for (int64_t row = 0; row < rowCount; ++row) {
    const BRSL_TexturedSpan &spanA = rowsA[row];
    const BRSL_TexturedSpan &spanB = rowsB[row];
    const Overlap overlap(spanA, spanB);
    if (spanA.y != spanB.y || !overlap.IsContact()) continue;
    ImageRow imageA(a, spanA, overlap.left);
    ImageRow imageB(b, spanB, overlap.left);
    for (int64_t n = overlap.pixels; n > 0; --n, imageA.Advance(1), imageB.Advance(1)) {
      if (imageA.IsOpaque<F>() && imageB.IsOpaque<F>()) return true;
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
