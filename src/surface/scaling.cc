#include "surface/scaling.h"

#include <algorithm>

#include "pixel/format.h"
#include "pixel/texel_kernels.h"
#include "surface/rows.h"

namespace brisal {
namespace {

static_assert(kRowPiece <= kPiece);

// Writes the part of a destination's rows that its viewport shows; fill(x, y, n, colours) gives the
// pixels, piece by piece.
template <class FillPiece>
void FillSurface(bool wide, const Surface &destination, FillPiece fill) {
  const int64_t left = std::max(destination.viewLeft, 0);
  const int64_t right = std::min(destination.viewRight, destination.width);
  const int64_t bottom = std::min(destination.viewBottom, destination.height);
  const Buffer buffer = BufferOf(destination);
  uint32_t colours[kRowPiece];
  for (int64_t y = std::max(destination.viewTop, 0); y < bottom; ++y) {
    for (int64_t x = left; x < right; x += kRowPiece) {
      const int n = static_cast<int>(std::min<int64_t>(right - x, kRowPiece));
      fill(x, y, n, colours);
      WriteRow(wide, buffer, static_cast<int32_t>(x), static_cast<int32_t>(y), n, colours);
    }
  }
}

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

// Bilinear within the source's viewport.
uint32_t SampleView(const Surface &source, int64_t u, int64_t v) {
  const int32_t x0 = Whole(u);
  const int32_t y0 = Whole(v);
  const int32_t x1 = x0 + 1 < source.viewRight ? x0 + 1 : source.viewRight - 1;
  const int32_t y1 = y0 + 1 < source.viewBottom ? y0 + 1 : source.viewBottom - 1;
  const uint32_t fx = u >> 8 & 255;
  const uint32_t fy = v >> 8 & 255;
  const uint32_t topLeft = (256 - fx) * (256 - fy);
  const uint32_t topRight = fx * (256 - fy);
  const uint32_t bottomRight = fx * fy;
  const uint32_t bottomLeft = 65536 - topLeft - topRight - bottomRight;
  Weighted sum;
  sum.Add(Peek(source, x0, y0), topLeft >> 8);
  sum.Add(Peek(source, x1, y0), topRight >> 8);
  sum.Add(Peek(source, x1, y1), bottomRight >> 8);
  sum.Add(Peek(source, x0, y1), bottomLeft >> 8);
  return sum.Colour();
}

bool IsTransparent(uint32_t colour, int32_t format, uint32_t key) {
  return format == BRSL_FORMAT_A32 ? colour >> 24 != 0xFF : colour == key;
}

}  // namespace

void ScaleSurface(bool wide, const Surface &source, const Surface &destination, int32_t mode) {
  if (destination.width < 1 || destination.height < 1) return;
  const int64_t xStep = Divide(int64_t{source.width} * 65536, destination.width);
  const int64_t yStep = Divide(int64_t{source.height} * 65536, destination.height);
  if (mode == 0) {
    FillSurface(wide, destination, [&](int64_t x, int64_t y, int n, uint32_t *colours) {
      const int32_t row = Whole(y * yStep);
      for (int i = 0; i < n; ++i) colours[i] = Peek(source, Whole((x + i) * xStep), row);
    });
  } else if (mode == 1111) {
    FillSurface(wide, destination, [&](int64_t x, int64_t y, int n, uint32_t *colours) {
      for (int i = 0; i < n; ++i) colours[i] = SampleView(source, (x + i) * xStep, y * yStep);
    });
  } else if (mode == 1 && source.width > 0 && source.height > 0) {
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
