#include "surface/surface.h"

#include <cstdlib>

#include "pixel/blit_kernels.h"
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
  WithFormat(buffer.format, 0, [&](auto f) {
    f.Store(buffer.Row(y) + ByteOffset(x, f.kBytes), f.Pack(colour));
    return 0;
  });
}

// A row of colours is a row of 32-bit pixels.
void ReadRow(Isa isa, const Buffer &buffer, int32_t x, int32_t y, int64_t count,
             uint32_t *colours) {
  const BlitKernel kernel = FindBlitKernel(isa, BRSL_FORMAT_X32, buffer.format, 0);
  if (kernel == nullptr || count < 1) return;
  uint8_t *from = buffer.Row(y) + ByteOffset(x, BytesPerPixel(buffer.format));
  auto *to = reinterpret_cast<uint8_t *>(colours);
  kernel({to, 0, from, 0, static_cast<ptrdiff_t>(count), 1}, 0);
}

void WriteRow(Isa isa, const Buffer &buffer, int32_t x, int32_t y, int64_t count,
              const uint32_t *colours) {
  const BlitKernel kernel = FindBlitKernel(isa, buffer.format, BRSL_FORMAT_A32, 0);
  if (kernel == nullptr || count < 1) return;
  uint8_t *to = buffer.Row(y) + ByteOffset(x, BytesPerPixel(buffer.format));
  const auto *from = reinterpret_cast<const uint8_t *>(colours);
  kernel({to, 0, from, 0, static_cast<ptrdiff_t>(count), 1}, 0);
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
