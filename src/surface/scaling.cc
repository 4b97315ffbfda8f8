#include "surface/scaling.h"

#include <algorithm>
#include <cstring>

#include "pixel/format.h"
#include "pixel/texel_kernels.h"
#include "surface/rows.h"

namespace brisal {
namespace {

static_assert(kRowPiece <= kPiece);

// The part of a destination that its viewport shows.
Viewport ShownPart(const Surface &destination) {
  return {std::max(destination.viewLeft, 0), std::max(destination.viewTop, 0),
          std::min(destination.viewRight, destination.width),
          std::min(destination.viewBottom, destination.height)};
}

// Writes one row of a destination; fill(x, n, colours) gives the pixels, piece by piece.
template <class FillPiece>
void FillRow(bool wide, const Buffer &buffer, const Viewport &part, int32_t y, FillPiece fill) {
  uint32_t colours[kRowPiece];
  for (int64_t x = part.left; x < part.right; x += kRowPiece) {
    const int n = static_cast<int>(std::min<int64_t>(part.right - x, kRowPiece));
    fill(x, n, colours);
    WriteRow(wide, buffer, static_cast<int32_t>(x), y, n, colours);
  }
}

template <class FillPiece>
void FillSurface(bool wide, const Surface &destination, FillPiece fill) {
  const Viewport part = ShownPart(destination);
  for (int32_t y = part.top; y < part.bottom; ++y) {
    FillRow(wide, BufferOf(destination), part, y,
            [&](int64_t x, int n, uint32_t *colours) { fill(x, y, n, colours); });
  }
}

// The most columns or rows that 16.16 coordinates reach.
constexpr int32_t kLargestSource = 32768;

int32_t Whole(int64_t coordinate) { return static_cast<int32_t>(coordinate >> 16); }

// The four bytes of a colour, each times the weight, in two words of 16-bit lanes.
struct Weighted {
  uint32_t even = 0;
  uint32_t odd = 0;

  void Add(uint32_t colour, uint32_t weight) {
    even += (colour & 0xFF00FF) * weight;
    odd += (colour >> 8 & 0xFF00FF) * weight;
  }

  uint32_t Colour() const { return (even >> 8 & 0xFF00FF) | (odd & 0xFF00FF00); }
};

// The weights of the four pixels around a place between them, in 256.
struct Weights {
  Weights(uint32_t u, uint32_t v) {
    const uint32_t fx = u >> 8 & 255;
    const uint32_t fy = v >> 8 & 255;
    const uint32_t left = (256 - fx) * (256 - fy);
    const uint32_t right = fx * (256 - fy);
    topLeft = left >> 8;
    topRight = right >> 8;
    bottomRight = (fx * fy) >> 8;
    bottomLeft = (65536 - left - right - fx * fy) >> 8;
  }

  uint32_t topLeft;
  uint32_t topRight;
  uint32_t bottomRight;
  uint32_t bottomLeft;
};

uint32_t Weigh(const Weights &w, uint32_t topLeft, uint32_t topRight, uint32_t bottomRight,
               uint32_t bottomLeft) {
  Weighted sum;
  sum.Add(topLeft, w.topLeft);
  sum.Add(topRight, w.topRight);
  sum.Add(bottomRight, w.bottomRight);
  sum.Add(bottomLeft, w.bottomLeft);
  return sum.Colour();
}

// Resamples one destination row after the other from what the source's viewport shows.
class ViewSampler {
 public:
  ViewSampler(bool wide, const Surface &source, int64_t xStep, int64_t yStep)
      : source_(source),
        view_(ViewportOf(source)),
        xStep_(xStep),
        yStep_(yStep),
        fetch_(FindFetchKernel(wide, source.format, false, false)),
        copy_(FindCopyKernel(wide, source.format, false)) {
    path_.address = static_cast<const uint8_t *>(source.address);
    path_.pitch = source.pitch;
    path_.du = static_cast<uint32_t>(xStep);
  }

  int64_t RowAt(int64_t y) const { return y * yStep_ >> 16; }

  // Pixels of the same storage need not become colours on the way. False where they must.
  bool CopyNearest(const Buffer &buffer, const Viewport &part, int32_t y) {
    const int64_t n = int64_t{part.right} - part.left;
    if (!StoredAlike(buffer.format) || !Shows(part.left, n, 0) || !view_.ContainsRow(RowAt(y))) {
      return false;
    }
    Span span;
    span.Place(y, part.left, part.right);
    span.u = static_cast<int32_t>(part.left * xStep_);
    span.v = static_cast<int32_t>(y * yStep_);
    span.du = static_cast<int32_t>(xStep_);
    span.dv = 0;
    copy_(path_, &span, 1, buffer, false);
    return true;
  }

  void Nearest(int64_t x, int64_t y, int n, uint32_t *colours) {
    const int64_t v = y * yStep_;
    if (Shows(x, n, 0) && view_.ContainsRow(v >> 16)) return Fetch(x * xStep_, v, n, colours);
    for (int i = 0; i < n; ++i) colours[i] = Peek(source_, Whole((x + i) * xStep_), Whole(v));
  }

  void Bilinear(int64_t x, int64_t y, int n, uint32_t *colours) {
    const int64_t u = x * xStep_;
    const int64_t v = y * yStep_;
    if (!Shows(x, n, 1) || !view_.ContainsRow(v >> 16)) {
      for (int i = 0; i < n; ++i) colours[i] = SampleAt((x + i) * xStep_, v);
      return;
    }
    const int64_t below = std::min<int64_t>((v >> 16) + 1, int64_t{view_.bottom} - 1) << 16;
    uint32_t topLeft[kRowPiece];
    uint32_t topRight[kRowPiece];
    uint32_t bottomRight[kRowPiece];
    uint32_t bottomLeft[kRowPiece];
    Fetch(u, v, n, topLeft);
    Fetch(u + 65536, v, n, topRight);
    Fetch(u + 65536, below, n, bottomRight);
    Fetch(u, below, n, bottomLeft);
    for (int i = 0; i < n; ++i) {
      const Weights weights(static_cast<uint32_t>(u + i * xStep_), static_cast<uint32_t>(v));
      colours[i] = Weigh(weights, topLeft[i], topRight[i], bottomRight[i], bottomLeft[i]);
    }
  }

 private:
  // 5:5:5 pixels lose a bit when they are read.
  bool StoredAlike(int32_t format) const {
    const bool same = format == source_.format && format != BRSL_FORMAT_555;
    return same || (BytesPerPixel(format) == 4 && BytesPerPixel(source_.format) == 4);
  }

  // Whether the columns of n pixels, and as many to the right of each, are all in the view, and
  // their coordinates no wider than the fetch takes them.
  bool Shows(int64_t x, int64_t n, int right) const {
    const int64_t last = ((x + n - 1) * xStep_ >> 16) + right;
    return fetch_ != nullptr && source_.width <= kLargestSource &&
           source_.height <= kLargestSource && last < kLargestSource &&
           view_.ContainsColumn(x * xStep_ >> 16) && view_.ContainsColumn(last);
  }

  void Fetch(int64_t u, int64_t v, int n, uint32_t *colours) {
    path_.u = static_cast<uint32_t>(u);
    path_.v = static_cast<uint32_t>(v);
    TexelRuns runs;
    fetch_(&path_, n, colours, &runs);
  }

  uint32_t SampleAt(int64_t u, int64_t v) const {
    const int32_t x0 = Whole(u);
    const int32_t y0 = Whole(v);
    const int32_t x1 = x0 + 1 < view_.right ? x0 + 1 : view_.right - 1;
    const int32_t y1 = y0 + 1 < view_.bottom ? y0 + 1 : view_.bottom - 1;
    const Weights weights(static_cast<uint32_t>(u), static_cast<uint32_t>(v));
    return Weigh(weights, Peek(source_, x0, y0), Peek(source_, x1, y0), Peek(source_, x1, y1),
                 Peek(source_, x0, y1));
  }

  const Surface &source_;
  Viewport view_;
  int64_t xStep_;
  int64_t yStep_;
  FetchKernel fetch_;
  CopyKernel copy_;
  TexelPath path_ = {};
};

// Rows that show the same row of the source are copies of the first of them.
void ScaleNearest(bool wide, ViewSampler &sampler, const Surface &destination) {
  const Viewport part = ShownPart(destination);
  if (part.left >= part.right) return;
  const Buffer buffer = BufferOf(destination);
  const int bytesPerPixel = BytesPerPixel(buffer.format);
  const size_t bytes =
      static_cast<size_t>(part.right - part.left) * static_cast<size_t>(bytesPerPixel);
  for (int32_t y = part.top; y < part.bottom; ++y) {
    if (y > part.top && sampler.RowAt(y) == sampler.RowAt(y - 1)) {
      const ptrdiff_t first = ByteOffset(part.left, bytesPerPixel);
      std::memmove(buffer.Row(y) + first, buffer.Row(y - 1) + first, bytes);
    } else if (!sampler.CopyNearest(buffer, part, y)) {
      FillRow(wide, buffer, part, y,
              [&](int64_t x, int n, uint32_t *colours) { sampler.Nearest(x, y, n, colours); });
    }
  }
}

bool IsTransparent(uint32_t colour, int32_t format, uint32_t key) {
  return format == BRSL_FORMAT_A32 ? colour >> 24 != 0xFF : colour == key;
}

bool IsTexture(const Surface &source) {
  return 0 < source.width && source.width <= kLargestSource && 0 < source.height &&
         source.height <= kLargestSource;
}

}  // namespace

void ScaleSurface(bool wide, const Surface &source, const Surface &destination, int32_t mode) {
  if (destination.width < 1 || destination.height < 1) return;
  const int64_t xStep = Divide(int64_t{source.width} * 65536, destination.width);
  const int64_t yStep = Divide(int64_t{source.height} * 65536, destination.height);
  ViewSampler sampler(wide, source, xStep, yStep);
  if (mode == 0) {
    ScaleNearest(wide, sampler, destination);
  } else if (mode == 1111) {
    FillSurface(wide, destination, [&](int64_t x, int64_t y, int n, uint32_t *colours) {
      sampler.Bilinear(x, y, n, colours);
    });
  } else if (mode == 1 && IsTexture(source)) {
    const FetchKernel fetch = FindFetchKernel(wide, source.format, true, false);
    if (fetch == nullptr) return;
    TexelPath path = {};
    path.address = static_cast<const uint8_t *>(source.address);
    path.pitch = source.pitch;
    path.width = source.width;
    path.height = source.height;
    path.du = static_cast<uint32_t>(xStep);
    FillSurface(wide, destination, [&](int64_t x, int64_t y, int n, uint32_t *colours) {
      path.u = static_cast<uint32_t>(x * xStep);
      path.v = static_cast<uint32_t>(y * yStep);
      TexelRuns runs;
      fetch(&path, n, colours, &runs);
    });
  }
}

bool CopyMapBlock(bool wide, const Surface &source, const Block &block, const Surface &destination,
                  int32_t x, int32_t y, uint32_t *rowBuffer, uint32_t maskColour) {
  const int64_t width = int64_t{block.right} - block.left;
  if (width < 1 || rowBuffer == nullptr || !IsFormat(source.format)) return false;
  const uint32_t key = MaskAsColour(maskColour, source.format);
  const int64_t first = std::max<int64_t>(-int64_t{x}, 0);
  const int64_t last = std::min<int64_t>(int64_t{destination.width} - x, width);
  bool transparent = false;
  for (int64_t row = block.top; row < block.bottom; ++row) {
    ReadRow(wide, BufferOf(source), block.left, static_cast<int32_t>(row), width, rowBuffer);
    for (int64_t i = 0; i < width && !transparent; ++i) {
      transparent = IsTransparent(rowBuffer[i], source.format, key);
    }
    const int64_t to = y + (row - block.top);
    if (to < 0 || to >= destination.height || first >= last) continue;
    WriteRow(wide, BufferOf(destination), static_cast<int32_t>(x + first), static_cast<int32_t>(to),
             last - first, rowBuffer + first);
  }
  return transparent;
}

}  // namespace brisal
