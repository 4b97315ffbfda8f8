#include "raster/spans.h"

#include "pixel/span_kernels.h"

namespace brisal {
namespace {

void DrawRuns(const Canvas &canvas, const Runs &runs, Rule rule, uint32_t packed) {
  const SpanKernel kernel = FindSpanKernel(canvas.wide, rule, canvas.target.format);
  if (kernel != nullptr) kernel(runs, canvas.target, packed, canvas.inkAlpha);
}

}  // namespace

void DrawSpanList(const Canvas &canvas, const Span *spans, int64_t count, uint32_t packed,
                  int32_t mode) {
  const Rule rule = SpanRule(mode, canvas.target.format, canvas.inkAlpha, packed);
  DrawRuns(canvas, Runs::List(spans, count), rule, packed);
}

void DrawRectangle(const Canvas &canvas, const Span &first, int64_t rows, uint32_t packed,
                   int32_t mode) {
  const Rule rule = SpanRule(mode, canvas.target.format, canvas.inkAlpha, packed);
  DrawRuns(canvas, Runs::Rows(&first, rows), rule, packed);
}

void DrawGouraudSpanList(const Canvas &canvas, const ShadedSpan *spans, int64_t count,
                         int32_t mode) {
  const ShadedKernel kernel = FindShadedKernel(canvas.wide, RuleOfMode(mode), canvas.target.format);
  if (kernel != nullptr) kernel(spans, count, canvas.target);
}

void DrawStrip(const Canvas &canvas, int32_t y, int64_t x1, int64_t x2, uint32_t packed,
               int32_t mode) {
  Span strip;
  strip.Place(y, x1, x2);
  const Rule rule = StripRule(mode, canvas.target.format, canvas.inkAlpha);
  DrawRuns(canvas, Runs::List(&strip, 1), rule, packed);
}

}  // namespace brisal
