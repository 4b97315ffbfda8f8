#include "poly/stored_texels.h"

#include "pixel/blit_kernels.h"
#include "pixel/format.h"

namespace brisal {
namespace {

// Where gaps are filled, it is with what the texels there are anyway.
MaskTexels MaskOf(const TexelPlan &plan) {
  if (!plan.cutsMask) return MaskTexels::kCopied;
  return plan.keepsTarget ? MaskTexels::kLeftOut : MaskTexels::kCopiedAmongOthers;
}

void CopyRows(const Canvas &canvas, const TexelPlan &plan, const Viewport &part, int64_t x,
              int64_t y) {
  const Buffer &target = canvas.target;
  const int pixelBytes = BytesPerPixel(target.format);
  const Transfer transfer = {
      target.Row(part.top) + ByteOffset(part.left, pixelBytes),
      target.pitch,
      plan.path.address + (part.top - y) * plan.path.pitch + (part.left - x) * pixelBytes,
      plan.path.pitch,
      ptrdiff_t{part.right} - part.left,
      int64_t{part.bottom} - part.top};
  const bool keyed = MaskOf(plan) == MaskTexels::kLeftOut;
  FindBlitKernel(canvas.isa, target.format, target.format, keyed)(transfer, plan.path.storedKey);
}

}  // namespace

void CopyStoredSpans(const Canvas &canvas, const TexelPlan &plan, const Span *spans,
                     int64_t count) {
  FindCopyKernel(canvas.isa, canvas.target.format, MaskOf(plan))(plan.path, spans, count,
                                                                 canvas.target);
}

void CopyStoredBlock(const Canvas &canvas, const TexelPlan &plan, const Viewport &part, int64_t x,
                     int64_t y) {
  if (!plan.FillsGaps()) return CopyRows(canvas, plan, part, x, y);
  // Rows of nothing but mask colour are left alone.
  const MaskKernel findMaskRow = FindMaskKernel(canvas.target.format);
  TexelPath path = plan.path;
  path.u = static_cast<uint32_t>((part.left - x) * 65536);
  path.du = 0x10000;
  for (int32_t top = part.top; top < part.bottom;) {
    path.v = static_cast<uint32_t>((top - y) * 65536);
    const int32_t shown = findMaskRow(path, ptrdiff_t{part.right} - part.left, part.bottom - top);
    CopyRows(canvas, plan, {part.left, top, part.right, top + shown}, x, y);
    top += shown + 1;
  }
}

}  // namespace brisal
