#include <algorithm>
#include <utility>

#include "reference/reference.h"

namespace reference {

void Reference::HoriGouraudStrip(int32_t x1, uint32_t colour1, int32_t x2, uint32_t colour2,
                                 int32_t y) {
  GouraudStrip(false, y, x1, colour1, x2, colour2);
}

void Reference::VertGouraudStrip(int32_t y1, uint32_t colour1, int32_t y2, uint32_t colour2,
                                 int32_t x) {
  GouraudStrip(true, x, y1, colour1, y2, colour2);
}

void Reference::HoriTextureStrip(const BRSL_SurfaceDesc *texture, int32_t x1, int32_t uA,
                                 int32_t vA, int32_t x2, int32_t uB, int32_t vB, int32_t y) {
  TextureStrip(false, texture, y, x1, {uA, vA}, x2, {uB, vB});
}

void Reference::VertTextureStrip(const BRSL_SurfaceDesc *texture, int32_t y1, int32_t uA,
                                 int32_t vA, int32_t y2, int32_t uB, int32_t vB, int32_t x) {
  TextureStrip(true, texture, x, y1, {uA, vA}, y2, {uB, vB});
}

// Calls visit(x, y, i) for the pixels of a row or column strip that are in the viewport; i counts
// from its lower end.
template <class Visit>
void Reference::VisitStrip(bool down, int64_t line, int64_t start, int64_t end, Visit visit) {
  const int64_t low = down ? viewport.top : viewport.left;
  const int64_t high = down ? viewport.bottom : viewport.right;
  for (int64_t at = std::max(start, low); at < std::min(end, high); at++) {
    const int64_t x = down ? line : at, y = down ? at : line;
    if (FormatKnown() && Inside(x, y)) visit(x, y, at - start);
  }
}

void Reference::GouraudStrip(bool down, int64_t line, int64_t a, uint32_t colourA, int64_t b,
                             uint32_t colourB) {
  if (a >= b) {
    std::swap(a, b);
    std::swap(colourA, colourB);
  }
  VisitStrip(down, line, a, b, [&](int64_t x, int64_t y, int64_t i) {
    uint32_t colour = 0;
    for (int c = 0; c < 3; c++) {
      const int64_t step = (Channel(colourB, c) - Channel(colourA, c)) * 65536 / (b - a);
      colour |= static_cast<uint32_t>((Channel(colourA, c) * 65536 + i * step) >> 16) << 8 * c;
    }
    Store(x, y, Pack(colour));
  });
}

void Reference::TextureStrip(bool down, const BRSL_SurfaceDesc *texture, int64_t line, int64_t a,
                             const int32_t (&from)[2], int64_t b, const int32_t (&to)[2]) {
  if (!texture || BytesPerPixel(texture->format) != BytesPerPixel(format)) return;
  if (texture->width < 1 || texture->height < 1) return;
  Buffer texels = BufferOf(*texture);
  texels.format = format;
  VisitStrip(down, line, std::min(a, b), std::max(a, b), [&](int64_t x, int64_t y, int64_t i) {
    int64_t texel[2];
    for (int k = 0; k < 2; k++) {
      const int64_t last = int64_t{k == 0 ? texture->width : texture->height} * 65536 - 65536;
      int64_t first = std::clamp<int64_t>(from[k], 0, last);
      int64_t second = std::clamp<int64_t>(to[k], 0, last);
      if (a >= b) std::swap(first, second);
      texel[k] = (first + i * ((second - first) / std::abs(b - a))) >> 16;
    }
    Store(x, y, texels.Load(texel[0], texel[1]));
  });
}

}  // namespace reference
