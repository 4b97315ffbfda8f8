#include <algorithm>

#include "reference/reference.h"

namespace reference {

Buffer BufferOf(const BRSL_SurfaceDesc &surface) {
  Buffer buffer;
  buffer.address = static_cast<uint8_t *>(surface.address);
  buffer.pitch = surface.pitch;
  buffer.format = surface.format;
  return buffer;
}

BRSL_SurfaceDesc SurfaceDesc(int32_t format, void *address, int32_t pitch, int32_t width,
                             int32_t height) {
  int32_t shift = 0;
  for (int32_t k = 0; k <= 23; k++) {
    if (pitch == 1 << k) shift = k;
  }
  return {format, address, pitch, shift, width, height, 0, 0, 0, width, height};
}

void SetSurfaceDescVp(BRSL_SurfaceDesc *desc, int32_t x1, int32_t y1, int32_t x2, int32_t y2) {
  if (!desc) return;
  desc->viewLeft = std::min(x1, x2);
  desc->viewRight = std::max(x1, x2);
  desc->viewTop = std::min(y1, y2);
  desc->viewBottom = std::max(y1, y2);
}

void SetSurfaceDescMaskColour(BRSL_SurfaceDesc *desc, uint32_t colour) {
  if (desc) desc->maskColour = colour;
}

int32_t GetSurfaceDescType(const BRSL_SurfaceDesc *desc) { return desc ? desc->format : 0; }

uint32_t PeekSurface(const BRSL_SurfaceDesc *desc, int32_t x, int32_t y) {
  const Rect view = {desc->viewLeft, desc->viewTop, desc->viewRight, desc->viewBottom};
  const Buffer pixels = BufferOf(*desc);
  if (!view.Holds(x, y) || !pixels.FormatKnown()) return 0;
  return Widened(desc->format, pixels.Load(x, y));
}

void PokeSurface(BRSL_SurfaceDesc *desc, int32_t x, int32_t y, uint32_t colour) {
  const Rect view = {desc->viewLeft, desc->viewTop, desc->viewRight, desc->viewBottom};
  if (view.Holds(x, y)) PokeSurfaceNc(desc, x, y, colour);
}

void PokeSurfaceNc(BRSL_SurfaceDesc *desc, int32_t x, int32_t y, uint32_t colour) {
  const Buffer pixels = BufferOf(*desc);
  if (pixels.FormatKnown()) pixels.Store(x, y, PackFor(desc->format, colour));
}

void PeekPixelStrip(const BRSL_SurfaceDesc *desc, int32_t x1, int32_t x2, int32_t y,
                    uint32_t *out) {
  if (!desc || !out || !BufferOf(*desc).FormatKnown()) return;
  for (int32_t x = x1; x < x2; x++) *out++ = Widened(desc->format, BufferOf(*desc).Load(x, y));
}

int32_t Reference::PixelRunLength(int32_t x, int32_t y, int32_t xStep, int32_t yStep,
                                  uint32_t colour) {
  if (!FormatKnown() || (xStep == 0 && yStep == 0)) return 0;
  const uint32_t mask = format == 5 ? 0xFFFFFFFF : 0xFFFFFF;
  int32_t count = 0;
  int64_t px = x, py = y;
  while (Inside(px, py) && (Load(px, py) & mask) == (Pack(colour) & mask)) {
    count++;
    px += xStep;
    py += yStep;
  }
  return count;
}

int32_t Reference::ImageInViewPort(int32_t x, int32_t y, int32_t w, int32_t h) const {
  return x <= viewport.right && y <= viewport.bottom && int64_t{x} + w >= viewport.left &&
         int64_t{y} + h >= viewport.top;
}

}  // namespace reference
