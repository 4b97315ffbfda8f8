#include "surface/blit.h"

#include <algorithm>

#include "pixel/blit_kernels.h"
#include "pixel/format.h"

namespace brisal {

BlitArea Clip(const BlitArea &area, const Viewport &view) {
  BlitArea clipped = area;
  clipped.x = std::max<int64_t>(area.x, view.left);
  clipped.y = std::max<int64_t>(area.y, view.top);
  clipped.left += clipped.x - area.x;
  clipped.top += clipped.y - area.y;
  clipped.right -= std::max<int64_t>(area.x + (area.right - area.left) - view.right, 0);
  clipped.bottom -= std::max<int64_t>(area.y + (area.bottom - area.top) - view.bottom, 0);
  return clipped;
}

Transfer MakeTransfer(const Buffer &target, const Buffer &source, const BlitArea &area) {
  Transfer transfer;
  transfer.to = target.Row(area.y) + ByteOffset(area.x, BytesPerPixel(target.format));
  transfer.toPitch = target.pitch;
  transfer.from = source.Row(area.top) + ByteOffset(area.left, BytesPerPixel(source.format));
  transfer.fromPitch = source.pitch;
  transfer.width = static_cast<ptrdiff_t>(area.right - area.left);
  transfer.rows = area.bottom - area.top;
  return transfer;
}

void Blit(const Canvas &canvas, const Buffer &source, const BlitArea &area, uint32_t maskColour,
          uint32_t flags) {
  const Buffer &target = canvas.target;
  const BlitKernel kernel = FindBlitKernel(canvas.isa, target.format, source.format, flags);
  if (kernel == nullptr) return;
  const BlitArea clipped = Clip(area, canvas.viewport);
  if (clipped.IsEmpty()) return;
  kernel(MakeTransfer(target, source, clipped), BlitKey(target.format, source.format, maskColour));
}

}  // namespace brisal
