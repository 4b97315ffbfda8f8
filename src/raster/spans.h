#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "core/span.h"
#include "pixel/shaded_span.h"

namespace brisal {

// Combines one colour with every pixel of the spans, which lie inside the buffer.
void DrawSpanList(const Canvas &canvas, const Span *spans, int64_t count, uint32_t packed,
                  int32_t mode);

// The same for a rectangle of `rows` rows, of which `first` is the topmost.
void DrawRectangle(const Canvas &canvas, const Span &first, int64_t rows, uint32_t packed,
                   int32_t mode);

// Combines spans whose colours run change from end to end.
void DrawGouraudSpanList(const Canvas &canvas, const ShadedSpan *spans, int64_t count,
                         int32_t mode);

// One run of pixels by the strip's own choice of modes.
void DrawStrip(const Canvas &canvas, int32_t y, int64_t x1, int64_t x2, uint32_t packed,
               int32_t mode);

}  // namespace brisal
