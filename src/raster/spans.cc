#include "raster/spans.h"

#include "pixel/format.h"
#include "pixel/span_kernels.h"

namespace brisal {
namespace {

BRISAL_INLINE void DrawBlock(const Canvas &canvas, const PixelBox &box, Rule rule,
                             uint32_t packed) {
  if (box.left >= box.right || box.top >= box.bottom) return;
  const Buffer &target = canvas.target;
  const BlockKernel kernel = FindBlockKernel(canvas.isa, rule, target.format);
  if (kernel == nullptr) return;
  kernel(target.Row(box.top) + ByteOffset(box.left, BytesOfFormat(target.format)), target.pitch,
         box.right - box.left, box.bottom - box.top, packed, canvas.inkAlpha);
}

}  // namespace

void DrawSpanList(const Canvas &canvas, int64_t top, const FlatSpan *spans, int64_t count,
                  uint32_t packed, int32_t mode) {
  const Buffer &target = canvas.target;
  const Rule rule = SpanRule(mode, target.format, canvas.inkAlpha, packed);
  const SpanKernel kernel = FindSpanKernel(canvas.isa, rule, target.format);
  if (kernel != nullptr) {
    kernel(spans, count, target.Row(top), target.pitch, packed, canvas.inkAlpha);
  }
}

TrapezoidPen::TrapezoidPen(const Canvas &canvas, uint32_t packed, int32_t mode)
    : target_(canvas.target),
      packed_(packed),
      inkAlpha_(canvas.inkAlpha),
      kernel_(FindTrapezoidKernel(canvas.isa,
                                  SpanRule(mode, canvas.target.format, canvas.inkAlpha, packed),
                                  canvas.target.format)) {}

void DrawRectangle(const Canvas &canvas, const PixelBox &box, uint32_t packed, int32_t mode) {
  DrawBlock(canvas, box, SpanRule(mode, canvas.target.format, canvas.inkAlpha, packed), packed);
}

void DrawGouraudSpanList(const Canvas &canvas, const ShadedSpan *spans, int64_t count,
                         int32_t mode) {
  const ShadedKernel kernel = FindShadedKernel(canvas.isa, RuleOfMode(mode), canvas.target.format);
  if (kernel != nullptr) kernel(spans, count, canvas.target);
}

void DrawStrip(const Canvas &canvas, int32_t y, int64_t x1, int64_t x2, uint32_t packed,
               int32_t mode) {
  const Rule rule = StripRule(mode, canvas.target.format, canvas.inkAlpha);
  DrawBlock(canvas, {x1, y, x2, int64_t{y} + 1}, rule, packed);
}

}  // namespace brisal
