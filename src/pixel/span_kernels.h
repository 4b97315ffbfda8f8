#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "core/span.h"
#include "pixel/mode.h"
#include "pixel/shaded_span.h"

namespace brisal {

// Rows between two straight edges, whose places in 16.16 step from row to row. `row` is column 0 of the
// first.
struct Trapezoid {
  uint8_t *row;
  ptrdiff_t pitch;
  int64_t rows;
  int64_t left;
  int64_t right;
  int64_t leftStep;
  int64_t rightStep;
};

// Combine one packed colour with pixels of a format: with a run on each of consecutive rows, of which
// `row` is column 0 of the first; with a trapezoid; or with a block whose first pixel is `first`.
using SpanKernel = void (*)(const FlatSpan *spans, ptrdiff_t count, uint8_t *row, ptrdiff_t pitch,
                            uint32_t packed, uint32_t alpha);
using TrapezoidKernel = void (*)(const Trapezoid &trapezoid, uint32_t packed, uint32_t alpha);
using BlockKernel = void (*)(uint8_t *first, ptrdiff_t pitch, ptrdiff_t width, ptrdiff_t rows,
                             uint32_t packed, uint32_t alpha);
using ShadedKernel = void (*)(const ShadedSpan *spans, int64_t count, Buffer target);
using PixelKernel = void (*)(uint8_t *pixel, uint32_t packed, uint32_t alpha);

// Each is null where there is nothing to draw: for Rule::kNone and for codes that are no format.
SpanKernel FindSpanKernel(Isa isa, Rule rule, int32_t format);
TrapezoidKernel FindTrapezoidKernel(Isa isa, Rule rule, int32_t format);
BlockKernel FindBlockKernel(Isa isa, Rule rule, int32_t format);
PixelKernel FindPixelKernel(Rule rule, int32_t format);
// Also null for rules that are not shaded.
ShadedKernel FindShadedKernel(Isa isa, Rule rule, int32_t format);

}  // namespace brisal
