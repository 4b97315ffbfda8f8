#pragma once

#include <cstdint>

#include "brisal/brisal.h"
#include "core/canvas.h"

namespace brisal {

using Surface = BRSL_SurfaceDesc;

inline Buffer BufferOf(const Surface &s) {
  return {static_cast<uint8_t *>(s.address), s.pitch, s.format};
}

inline Viewport ViewportOf(const Surface &s) {
  return {s.viewLeft, s.viewTop, s.viewRight, s.viewBottom};
}

// Null when there is no memory.
Surface *AllocSurface(int32_t format, void *address, int32_t pitch, int32_t width, int32_t height);
void FreeSurface(Surface *surface);

// Inside the surface's viewport only.
uint32_t Peek(const Surface &surface, int32_t x, int32_t y);
void Poke(const Surface &surface, int32_t x, int32_t y, uint32_t colour);

// Without a test.
void PokeUnclipped(const Buffer &buffer, int32_t x, int32_t y, uint32_t colour);

// The pixels of part of a row, from and to colours.
void ReadRow(Isa isa, const Buffer &buffer, int32_t x, int32_t y, int64_t count, uint32_t *colours);
void WriteRow(Isa isa, const Buffer &buffer, int32_t x, int32_t y, int64_t count,
              const uint32_t *colours);

// How many of the canvas's pixels from (x, y) on have the colour.
int32_t PixelRunLength(const Canvas &canvas, int32_t x, int32_t y, int32_t xStep, int32_t yStep,
                       uint32_t colour);

}  // namespace brisal
