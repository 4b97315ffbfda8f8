#include "raster/pixels.h"

#include <array>

#include "pixel/format.h"

namespace brisal {
namespace {

template <class F>
uint32_t ReadAs(const Buffer &buffer, int32_t x, int32_t y) {
  return F::Widen(F::Load(buffer.Row(y) + ByteOffset(x, F::kBytes)));
}

using Reader = uint32_t (*)(const Buffer &, int32_t, int32_t);

template <class... F>
constexpr std::array<Reader, sizeof...(F)> Readers(TypeList<F...>) {
  return {&ReadAs<F>...};
}

constexpr auto kReaders =
    Readers(TypeList<Rgb565, Rgb565, Rgb555, Rgb24, Xrgb32, Argb32, Argb32>{});

}  // namespace

PixelPen::PixelPen(const Canvas &canvas, uint32_t packed, int32_t mode)
    : kernel_(FindPixelKernel(PixelRule(mode, canvas.inkAlpha), canvas.target.format)),
      target_(canvas.target),
      pixelBytes_(BytesPerPixel(canvas.target.format)),
      packed_(packed),
      inkAlpha_(canvas.inkAlpha) {}

void DrawPixel(const Canvas &canvas, int32_t x, int32_t y, uint32_t packed, int32_t mode) {
  const PixelPen pen(canvas, packed, mode);
  if (pen.Draws()) pen.Plot(x, y);
}

uint32_t ReadPixel(const Buffer &buffer, int32_t x, int32_t y) {
  if (buffer.format == BRSL_FORMAT_565) return ReadAs<Rgb565>(buffer, x, y);
  if (buffer.format < BRSL_FORMAT_RGB) return ReadAs<Rgb555>(buffer, x, y);
  if (buffer.format == BRSL_FORMAT_RGB) return ReadAs<Rgb24>(buffer, x, y);
  return ReadAs<Xrgb32>(buffer, x, y);
}

uint32_t ReadPixelByTable(const Buffer &buffer, int32_t x, int32_t y) {
  const uint32_t code = static_cast<uint32_t>(buffer.format);
  return code < kReaders.size() ? kReaders[code](buffer, x, y) : 0;
}

}  // namespace brisal
