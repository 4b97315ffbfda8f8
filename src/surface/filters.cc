#include "surface/filters.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "pixel/filter_kernels.h"
#include "pixel/format.h"
#include "pixel/light_kernels.h"
#include "surface/rows.h"

namespace brisal {
namespace {

// The sums of nine bytes, divided, cut and clamped.
void FillBlurTable(float divisor, uint8_t (&table)[kBlurEntries]) {
  const double clamped = std::clamp(divisor, -255.0f, 255.0f);
  for (int sum = 0; sum < kBlurEntries; ++sum) {
    table[sum] = static_cast<uint8_t>(std::clamp(sum / clamped, 0.0, 255.0));
  }
}

// The factor that does what the table does, 0 where there is none.
uint32_t BlurFactor(float divisor, const uint8_t (&table)[kBlurEntries]) {
  if (divisor < 1.01f) return 0;
  const uint32_t factor = static_cast<uint32_t>(65536 / static_cast<double>(divisor)) + 1;
  for (uint32_t sum = 0; sum < kBlurEntries; ++sum) {
    if (std::min(sum * factor >> 16, 255u) != table[sum]) return 0;
  }
  return factor;
}

LightRow RowOf(const Light &light, int32_t x, int32_t y) {
  const uint32_t rows = static_cast<uint32_t>(y) - static_cast<uint32_t>(light.y);
  return {static_cast<uint32_t>(x) - static_cast<uint32_t>(light.x), rows * rows, light.intensity,
          light.falloff};
}

// Copies colours within both viewports, and black where the source shows nothing.
void CopyShown(Isa isa, const Surface &source, const Surface &destination) {
  const Viewport view = ViewportOf(source);
  const int32_t left = std::max(destination.viewLeft, 0);
  const int32_t right = std::min(destination.viewRight, destination.width);
  const int32_t bottom = std::min(destination.viewBottom, destination.height);
  uint32_t colours[kRowPiece];
  for (int32_t y = std::max(destination.viewTop, 0); y < bottom; ++y) {
    for (int64_t x = left; x < right; x += kRowPiece) {
      const int64_t end = std::min<int64_t>(x + kRowPiece, right);
      std::fill_n(colours, end - x, 0);
      const int64_t first = std::max<int64_t>(x, view.left);
      const int64_t last = std::min<int64_t>(end, view.right);
      if (first < last && view.ContainsRow(y) && IsFormat(source.format)) {
        ReadRow(isa, BufferOf(source), static_cast<int32_t>(first), y, last - first,
                colours + (first - x));
      }
      for (int64_t i = 0; i < end - x; ++i) colours[i] &= 0xFFFFFF;
      WriteRow(isa, BufferOf(destination), static_cast<int32_t>(x), y, end - x, colours);
    }
  }
}

}  // namespace

void Blur(Isa isa, const Surface &surface, float divisor) {
  if (divisor == 0 || std::isnan(divisor)) return;
  if (surface.viewRight < 1 || surface.viewBottom < 1 || !IsFormat(surface.format)) return;
  const int64_t width = int64_t{surface.viewRight} - surface.viewLeft;
  const int64_t height = int64_t{surface.viewBottom} - surface.viewTop;
  if (width < 1 || height < 1) return;
  // Three rows as they were, and the result.
  const int64_t step = (width + kBlurStep - 1) / kBlurStep * kBlurStep;
  const uint64_t pixels = 4 * static_cast<uint64_t>(step);
  if (pixels > SIZE_MAX / sizeof(uint32_t)) return;
  auto *rows = static_cast<uint32_t *>(std::malloc(static_cast<size_t>(pixels) * sizeof(uint32_t)));
  if (rows == nullptr) return;

  const Buffer buffer = BufferOf(surface);
  const auto kept = [&](int64_t y) { return rows + y % 3 * step; };
  const auto read = [&](int64_t y) {
    ReadRow(isa, buffer, surface.viewLeft, static_cast<int32_t>(surface.viewTop + y), width,
            kept(y));
  };
  uint8_t table[kBlurEntries];
  FillBlurTable(divisor, table);
  const uint32_t factor = BlurFactor(std::min(divisor, 255.0f), table);
  uint32_t *result = rows + 3 * step;
  const BlurKernel kernel = FindBlurKernel(isa);
  read(0);
  for (int64_t y = 0; y < height; ++y) {
    const int64_t next = std::min<int64_t>(y + 1, height - 1);
    if (next > y) read(next);
    const BlurRows blur = {
        {kept(std::max<int64_t>(y - 1, 0)), kept(y), kept(next)}, result, width, table, factor};
    kernel(&blur);
    WriteRow(isa, buffer, surface.viewLeft, static_cast<int32_t>(surface.viewTop + y), width,
             result);
  }
  std::free(rows);
}

void Fade(Isa isa, const Surface &surface, int32_t percent) {
  const double factor = percent * static_cast<double>(0.01f) * 256;
  const uint32_t weight = static_cast<uint32_t>(std::clamp(factor, 0.0, 1024.0));
  const FadeKernel kernel = FindFadeKernel(isa);
  ChangeColours(isa, surface, [&](int32_t, int32_t, int n, uint8_t *c) { kernel(c, n, weight); });
}

void GreyScale(Isa isa, const Surface &surface) {
  const GreyKernel kernel = FindGreyKernel(isa);
  ChangeColours(isa, surface, [&](int32_t, int32_t, int n, uint8_t *c) { kernel(c, n); });
}

void LightUp(Isa isa, const Surface &surface, const Light &light) {
  const LightKernel kernel = FindLightKernel(isa);
  ChangeColours(isa, surface, [&](int32_t x, int32_t y, int n, uint8_t *colours) {
    kernel(colours, n, RowOf(light, x, y));
  });
}

void PaintLight(Isa isa, const Surface &surface, const Light &light, uint32_t colour) {
  const PaintKernel kernel = FindPaintKernel(isa);
  ChangeColours(isa, surface, [&](int32_t x, int32_t y, int n, uint8_t *colours) {
    kernel(colours, n, RowOf(light, x, y), colour);
  });
}

void PrepareEffectSurface(Isa isa, const Surface &source, const Surface &destination) {
  if (destination.format != BRSL_FORMAT_A32) return CopyShown(isa, source, destination);
  const Buffer from = BufferOf(source);
  const Buffer to = BufferOf(destination);
  const uint32_t key = MaskAsColour(source.maskColour, source.format);
  const bool marks = IsFormat(source.format) && BytesPerPixel(source.format) < 4;
  uint32_t colours[kRowPiece];
  for (int32_t y = 0; y < destination.height && IsFormat(source.format); ++y) {
    for (int64_t x = 0; x < destination.width; x += kRowPiece) {
      const int64_t n = std::min<int64_t>(destination.width - x, kRowPiece);
      ReadRow(isa, from, static_cast<int32_t>(x), y, n, colours);
      for (int64_t i = 0; i < n && marks; ++i) {
        if (colours[i] != key) colours[i] |= 0xFF000000;
      }
      WriteRow(isa, to, static_cast<int32_t>(x), y, n, colours);
    }
  }
}

}  // namespace brisal
