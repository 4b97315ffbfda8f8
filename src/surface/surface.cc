#include "surface/surface.h"

#include <cstdlib>

#include "pixel/format.h"
#include "raster/pixels.h"

namespace brisal {
namespace {

int32_t PitchShift(int32_t pitch) {
  for (int shift = 0; shift <= 23; ++shift) {
    if (pitch == int32_t{1} << shift) return shift;
  }
  return 0;
}

}  // namespace

Surface *AllocSurface(int32_t format, void *address, int32_t pitch, int32_t width, int32_t height) {
  auto *surface = static_cast<Surface *>(std::malloc(sizeof(Surface)));
  if (surface == nullptr) return nullptr;
  *surface = {format, address, pitch, PitchShift(pitch), width, height, 0, 0, 0, width, height};
  return surface;
}

void FreeSurface(Surface *surface) { std::free(surface); }

uint32_t Peek(const Surface &surface, int32_t x, int32_t y) {
  if (!ViewportOf(surface).Contains(x, y) || !IsFormat(surface.format)) return 0;
  return ReadPixel(BufferOf(surface), x, y);
}

void Poke(const Surface &surface, int32_t x, int32_t y, uint32_t colour) {
  if (ViewportOf(surface).Contains(x, y)) PokeUnclipped(BufferOf(surface), x, y, colour);
}

void PokeUnclipped(const Buffer &buffer, int32_t x, int32_t y, uint32_t colour) {
  WriteRow(buffer, x, y, 1, &colour);
}

void ReadRow(const Buffer &buffer, int32_t x, int32_t y, int64_t count, uint32_t *colours) {
  WithFormat(buffer.format, 0, [&](auto f) {
    const uint8_t *p = buffer.Row(y) + ByteOffset(x, f.kBytes);
    for (int64_t i = 0; i < count; ++i, p += f.kBytes) colours[i] = f.Widen(f.Load(p));
    return 0;
  });
}

void WriteRow(const Buffer &buffer, int32_t x, int32_t y, int64_t count, const uint32_t *colours) {
  WithFormat(buffer.format, 0, [&](auto f) {
    uint8_t *p = buffer.Row(y) + ByteOffset(x, f.kBytes);
    for (int64_t i = 0; i < count; ++i, p += f.kBytes) f.Store(p, f.Pack(colours[i]));
    return 0;
  });
}

int32_t PixelRunLength(const Canvas &canvas, int32_t x, int32_t y, int32_t xStep, int32_t yStep,
                       uint32_t colour) {
  if (xStep == 0 && yStep == 0) return 0;
  const Buffer &target = canvas.target;
  const uint32_t mask = target.format == BRSL_FORMAT_A32 ? 0xFFFFFFFF : 0xFFFFFF;
  const uint32_t key = PackColour(colour, target.format) & mask;
  return WithFormat(target.format, 0, [&](auto f) {
    int32_t count = 0;
    int64_t column = x;
    int64_t row = y;
    while (canvas.viewport.Contains(column, row)) {
      const uint32_t stored = f.Load(target.Row(row) + ByteOffset(column, f.kBytes));
      if ((stored & mask) != key) break;
      ++count;
      column += xStep;
      row += yStep;
    }
    return count;
  });
}

}  // namespace brisal
