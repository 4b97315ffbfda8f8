#include "surface/strips.h"

#include <algorithm>
#include <utility>

#include "pixel/format.h"
#include "pixel/texel_kernels.h"
#include "surface/texture_path.h"

namespace brisal {
namespace {

// Where a strip lies: its whole length and the places of it that are drawn.
struct Extent {
  Extent(const Canvas &canvas, Axis axis, int32_t start, int32_t end, int32_t line) {
    const Viewport &view = canvas.viewport;
    const bool row = axis == Axis::kRow;
    length = int64_t{end} - start;
    first = std::max(start, row ? view.left : view.top);
    last = std::min(end, row ? view.right : view.bottom);
    skipped = first - start;
    inside = row ? view.ContainsRow(line) : view.ContainsColumn(line);
  }

  bool IsEmpty() const { return !inside || first >= last; }

  int64_t length;
  int64_t first;
  int64_t last;
  int64_t skipped;
  bool inside;
};

// A value that changes by the same step from place to place.
struct Stepped {
  Stepped(int64_t start, int64_t end, const Extent &extent)
      : step(Divide(end - start, extent.length)), value(start + step * extent.skipped) {}

  int64_t step;
  int64_t value;
};

template <class F>
uint8_t *FirstPixel(const Canvas &canvas, Axis axis, const Extent &extent, int32_t line) {
  const bool row = axis == Axis::kRow;
  const int64_t x = row ? extent.first : line;
  const int64_t y = row ? line : extent.first;
  return canvas.target.Row(y) + ByteOffset(x, F::kBytes);
}

template <class F>
intptr_t PixelStep(const Canvas &canvas, Axis axis) {
  return axis == Axis::kRow ? intptr_t{F::kBytes} : intptr_t{canvas.target.pitch};
}

// Calls draw(pixel) for every place of the strip; it also moves the values on.
template <class F, class Draw>
void EachPlace(const Canvas &canvas, Axis axis, const Extent &extent, int32_t line, Draw draw) {
  uint8_t *pixel = FirstPixel<F>(canvas, axis, extent, line);
  const intptr_t step = PixelStep<F>(canvas, axis);
  for (int64_t place = extent.first; place < extent.last; ++place) {
    draw(pixel);
    if (place + 1 < extent.last) pixel += step;
  }
}

int64_t FixedChannel(uint32_t colour, int shift) { return int64_t{colour >> shift & 0xFF} << 16; }

// Texel coordinates never leave the texture.
TexelPoint Clamp(const Surface &texture, TexelPoint p) {
  const int64_t maxU = (int64_t{texture.width} - 1) * 65536;
  const int64_t maxV = (int64_t{texture.height} - 1) * 65536;
  return {static_cast<int32_t>(std::clamp<int64_t>(p.u, 0, maxU)),
          static_cast<int32_t>(std::clamp<int64_t>(p.v, 0, maxV))};
}

// The pixels of a shaded row in the view.
void DrawRow(const Canvas &canvas, const Extent &extent, Span &span) {
  const RampKernel ramp = FindRampKernel(canvas.isa);
  uint32_t colours[kPiece];
  for (int64_t x = extent.first; x < extent.last; x += kPiece) {
    const int n = static_cast<int>(std::min<int64_t>(extent.last - x, kPiece));
    ramp(&span, x - span.left, n, colours);
    WriteRow(canvas.isa, canvas.target, static_cast<int32_t>(x), span.y, n, colours);
  }
}

// Whether the texture and the strip's pixels in a row have no byte in common: texels can be read before
// pixels to their left are drawn then.
bool AreApart(const Surface &texture, const Canvas &canvas, const Extent &extent, int32_t row) {
  const int64_t pixelBytes = BytesPerPixel(texture.format);
  const uintptr_t texels = reinterpret_cast<uintptr_t>(texture.address);
  const uintptr_t last =
      texels + static_cast<uintptr_t>((int64_t{texture.height} - 1) * texture.pitch);
  const uintptr_t end = std::max(texels, last) + static_cast<uintptr_t>(texture.width * pixelBytes);
  const uintptr_t pixels = reinterpret_cast<uintptr_t>(canvas.target.Row(row));
  return pixels + static_cast<uintptr_t>(extent.last * pixelBytes) <= std::min(texels, last) ||
         end <= pixels + static_cast<uintptr_t>(extent.first * pixelBytes);
}

// Pixels are copied as they are stored, whatever their channels.
int32_t StorageOf(int32_t format) {
  if (BytesPerPixel(format) == 2) return BRSL_FORMAT_565;
  return BytesPerPixel(format) == 4 ? BRSL_FORMAT_X32 : format;
}

void CopyTexels(const Canvas &canvas, const Surface &texture, const Span &span) {
  FindCopyKernel(canvas.isa, StorageOf(texture.format), MaskTexels::kCopied)(
      PathAlong(texture), &span, 1, canvas.target);
}

}  // namespace

void DrawGouraudStrip(const Canvas &canvas, Axis axis, int32_t place1, uint32_t colour1,
                      int32_t place2, uint32_t colour2, int32_t line) {
  if (place1 >= place2) {
    std::swap(place1, place2);
    std::swap(colour1, colour2);
  }
  const Extent extent(canvas, axis, place1, place2, line);
  if (extent.IsEmpty()) return;
  // The lengths of spans may have 32 bits.
  if (axis == Axis::kRow && extent.length <= INT32_MAX) {
    Span span;
    span.Place(line, place1, place2);
    span.leftColour = static_cast<int32_t>(colour1);
    span.rightColour = static_cast<int32_t>(colour2);
    return DrawRow(canvas, extent, span);
  }
  Stepped red(FixedChannel(colour1, 16), FixedChannel(colour2, 16), extent);
  Stepped green(FixedChannel(colour1, 8), FixedChannel(colour2, 8), extent);
  Stepped blue(FixedChannel(colour1, 0), FixedChannel(colour2, 0), extent);
  WithFormat(canvas.target.format, 0, [&](auto f) {
    EachPlace<decltype(f)>(canvas, axis, extent, line, [&](uint8_t *pixel) {
      const int64_t colour =
          (red.value & 0xFF0000) | (green.value >> 8 & 0xFF00) | (blue.value >> 16 & 0xFF);
      f.Store(pixel, f.Pack(static_cast<uint32_t>(colour)));
      red.value += red.step;
      green.value += green.step;
      blue.value += blue.step;
    });
    return 0;
  });
}

void DrawTextureStrip(const Canvas &canvas, Axis axis, const Surface *texture, int32_t place1,
                      TexelPoint point1, int32_t place2, TexelPoint point2, int32_t line) {
  if (texture == nullptr || texture->width < 1 || texture->height < 1) return;
  if (!IsFormat(texture->format)) return;
  if (BytesPerPixel(texture->format) != BytesPerPixel(canvas.target.format)) return;
  if (place1 >= place2) {
    std::swap(place1, place2);
    std::swap(point1, point2);
  }
  const Extent extent(canvas, axis, place1, place2, line);
  if (extent.IsEmpty()) return;
  const TexelPoint start = Clamp(*texture, point1);
  const TexelPoint end = Clamp(*texture, point2);
  Stepped u(start.u, end.u, extent);
  Stepped v(start.v, end.v, extent);
  if (axis == Axis::kRow && AreApart(*texture, canvas, extent, line)) {
    Span span;
    span.Place(line, extent.first, extent.last);
    span.u = static_cast<int32_t>(u.value);
    span.v = static_cast<int32_t>(v.value);
    span.du = static_cast<int32_t>(u.step);
    span.dv = static_cast<int32_t>(v.step);
    return CopyTexels(canvas, *texture, span);
  }
  const Buffer texels = BufferOf(*texture);
  WithFormat(texels.format, 0, [&](auto f) {
    EachPlace<decltype(f)>(canvas, axis, extent, line, [&](uint8_t *pixel) {
      const uint8_t *texel = texels.Row(v.value >> 16) + ByteOffset(u.value >> 16, f.kBytes);
      f.Store(pixel, f.Load(texel));
      u.value += u.step;
      v.value += v.step;
    });
    return 0;
  });
}

}  // namespace brisal
