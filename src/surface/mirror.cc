#include <algorithm>

#include "pixel/format.h"
#include "pixel/span_kernels.h"
#include "surface/filters.h"

namespace brisal {
namespace {

// Exchanges n pixels with as many others, which `Reversed` run the other way.
template <class F, bool Reversed>
void Exchange(uint8_t *here, uint8_t *there, ptrdiff_t n) {
  constexpr ptrdiff_t kPixels = 256;
  uint32_t ours[kPixels];
  uint32_t theirs[kPixels];
  for (ptrdiff_t rest = n; rest > 0;) {
    const ptrdiff_t piece = std::min(rest, kPixels);
    rest -= piece;
    uint8_t *const other = Reversed ? there + rest * F::kBytes : there;
    for (ptrdiff_t i = 0; i < piece; ++i) {
      ours[i] = F::Load(here + i * F::kBytes) & kShownBits<F>;
      theirs[i] = F::Load(other + i * F::kBytes) & kShownBits<F>;
    }
    for (ptrdiff_t i = 0; i < piece; ++i) {
      const ptrdiff_t from = Reversed ? piece - 1 - i : i;
      F::Store(here + i * F::kBytes, theirs[from]);
      F::Store(other + i * F::kBytes, ours[from]);
    }
    here += piece * F::kBytes;
    if (!Reversed) there += piece * F::kBytes;
  }
}

// Mirrors all of a block.
template <class F>
void Mirror(const Buffer &target, const Viewport &block, bool horizontal, bool vertical) {
  const ptrdiff_t width = ptrdiff_t{block.right} - block.left;
  const auto rowAt = [&](int64_t y) { return target.Row(y) + ByteOffset(block.left, F::kBytes); };
  int64_t top = block.top;
  int64_t bottom = int64_t{block.bottom} - 1;
  for (; vertical && top < bottom; ++top, --bottom) {
    if (horizontal) {
      Exchange<F, true>(rowAt(top), rowAt(bottom), width);
    } else {
      Exchange<F, false>(rowAt(top), rowAt(bottom), width);
    }
  }
  // The rows that are left are their own images: the middle one, or all.
  const ptrdiff_t half = width / 2;
  for (; horizontal && top <= bottom; ++top) {
    Exchange<F, true>(rowAt(top), rowAt(top) + (width - half) * F::kBytes, half);
  }
}

// The part of a range whose images, place + image = sum - 1, lie in [first, end).
void CutToImages(int64_t sum, int32_t first, int32_t end, int32_t &from, int32_t &to) {
  const int64_t left = std::clamp<int64_t>(sum - end, from, to);
  const int64_t right = std::clamp<int64_t>(sum - first, from, to);
  from = static_cast<int32_t>(left);
  to = static_cast<int32_t>(right);
}

}  // namespace

void MirrorRectangle(const Canvas &canvas, const int32_t (&rectangle)[4], bool horizontal,
                     bool vertical) {
  const auto [x1, y1, x2, y2] = rectangle;
  const Viewport &view = canvas.viewport;
  const Buffer &target = canvas.target;
  const Viewport part = {std::max(x1, view.left), std::max(y1, view.top), std::min(x2, view.right),
                         std::min(y2, view.bottom)};
  if (part.left >= part.right || part.top >= part.bottom) return;
  if ((!horizontal && !vertical) || !IsFormat(target.format)) return;
  Viewport shown = part;
  if (horizontal) {
    CutToImages(int64_t{x1} + x2, view.left, view.right, shown.left, shown.right);
  }
  if (vertical) CutToImages(int64_t{y1} + y2, view.top, view.bottom, shown.top, shown.bottom);

  const int pixelBytes = BytesPerPixel(target.format);
  const BlockKernel fill = FindBlockKernel(canvas.isa, Rule::kSolid, target.format);
  const auto blacken = [&](int32_t left, int32_t top, int32_t right, int32_t bottom) {
    if (left >= right || top >= bottom) return;
    fill(target.Row(top) + ByteOffset(left, pixelBytes), target.pitch, ptrdiff_t{right} - left,
         ptrdiff_t{bottom} - top, 0, 0);
  };
  blacken(part.left, part.top, part.right, shown.top);
  blacken(part.left, shown.bottom, part.right, part.bottom);
  blacken(part.left, shown.top, shown.left, shown.bottom);
  blacken(shown.right, shown.top, part.right, shown.bottom);
  WithFormat(target.format, 0, [&](auto f) {
    Mirror<decltype(f)>(target, shown, horizontal, vertical);
    return 0;
  });
}

}  // namespace brisal
