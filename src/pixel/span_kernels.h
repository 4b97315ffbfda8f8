#pragma once

#include <cstdint>

#include "core/canvas.h"
#include "core/span.h"
#include "pixel/mode.h"
#include "pixel/shaded_span.h"

namespace brisal {

// A list of spans, or the same span on consecutive rows.
struct Runs {
  static Runs List(const Span *spans, int64_t count) { return {spans, count, 1, 0}; }
  static Runs Rows(const Span *span, int64_t count) { return {span, count, 0, 1}; }

  const Span *spans;
  int64_t count;
  int32_t spanStep;
  int32_t rowStep;
};

// By reference, so that what was just stored piece by piece is read piece by piece.
using SpanKernel = void (*)(const Runs &runs, const Buffer &target, uint32_t packed,
                            uint32_t alpha);
using ShadedKernel = void (*)(const ShadedSpan *spans, int64_t count, Buffer target);
using PixelKernel = void (*)(uint8_t *pixel, uint32_t packed, uint32_t alpha);

// Each is null where there is nothing to draw: for Rule::kNone and for codes that are no format.
SpanKernel FindSpanKernel(bool wide, Rule rule, int32_t format);
PixelKernel FindPixelKernel(Rule rule, int32_t format);
// Also null for rules that are not shaded.
ShadedKernel FindShadedKernel(bool wide, Rule rule, int32_t format);

}  // namespace brisal
