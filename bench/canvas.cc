#include "bench/canvas.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <random>

namespace brisal::bench {
namespace {

// Rows are an odd number of cache lines apart, so that columns of pixels spread over the cache.
int PitchOf(int bytesPerPixel) { return Canvas::kWidth * bytesPerPixel + 64; }

const std::vector<uint32_t> &Noise() {
  static const std::vector<uint32_t> noise = [] {
    std::vector<uint32_t> words(static_cast<size_t>(PitchOf(4)) * Canvas::kHeight / 4);
    std::mt19937 random(1);
    // Opaque, for the peers that weigh the target's alpha.
    for (uint32_t &word : words) word = random() | 0xFF000000;
    return words;
  }();
  return noise;
}

uint8_t *Buffer() {
  static uint8_t *const buffer = static_cast<uint8_t *>(
      std::aligned_alloc(4096, ((Noise().size() * 4 + kPlaces.back()) / 4096 + 1) * 4096));
  return buffer;
}

uint32_t ColourAt(const Canvas &canvas, const uint8_t *picture, int x, int y) {
  const uint8_t *pixel = picture + int64_t{y} * canvas.pitch + int64_t{x} * canvas.bytesPerPixel;
  uint32_t word = 0;
  std::memcpy(&word, pixel, canvas.bytesPerPixel);
  switch (canvas.format) {
    case BRSL_FORMAT_565: return (word & 0xF800) << 8 | (word & 0x7E0) << 5 | (word & 0x1F) << 3;
    case BRSL_FORMAT_555: return (word & 0x7C00) << 9 | (word & 0x3E0) << 6 | (word & 0x1F) << 3;
    case BRSL_FORMAT_RGB: return (word & 0xFF) << 16 | (word & 0xFF00) | (word >> 16 & 0xFF);
    default: return word & 0xFFFFFF;
  }
}

int DifferenceOf(uint32_t a, uint32_t b) {
  int worst = 0;
  for (int shift = 0; shift < 24; shift += 8) {
    const int one = static_cast<int>(a >> shift & 0xFF);
    const int other = static_cast<int>(b >> shift & 0xFF);
    worst = std::max(worst, std::abs(one - other));
  }
  return worst;
}

int ToleratedDifference(const Job &job) {
  const auto is16Bit = [](int format) { return format != 0 && format <= BRSL_FORMAT_555; };
  const int rounding = is16Bit(job.format) || is16Bit(job.source) ? 8 : 3;
  // In 16-bit formats some cut alpha down to five bits, and products divided by 32 or by 31 may be two
  // steps apart.
  if (job.IsCopy() && (job.HasAlpha() || job.mode == DRAW_MULT)) {
    return rounding * (is16Bit(job.format) ? 2 : 1);
  }
  // Texels are taken at a pixel's corner by some and at its middle by others.
  if (job.source != 0 && !job.IsCopy()) return rounding + 4;
  // A pixel's own colour is taken at its corner by some and at its middle by others.
  return job.IsGouraud() ? rounding + 2 + 512 / job.width : rounding;
}

int ToleratedPixels(const Job &job) {
  // Some repeat the edges of a picture, some weigh fewer pixels there.
  if (job.IsScaling() || job.kind == Kind::kBlur) return 4 * (job.width + job.height);
  if (job.IsRectangle()) return 0;
  // Some filters let the picture fade out where it ends.
  if (job.kind == Kind::kBilinearQuad) return 8 * job.height;
  if (job.IsKeyed()) return 4 * job.height + 8 + job.width * job.height / 16;
  if (job.kind == Kind::kLine) return std::max(job.width, job.height);
  if (job.kind == Kind::kRing) return 4 * job.width;
  return 4 * job.height + 8;
}

}  // namespace

Canvas Canvas::Of(const Job &job) {
  static constexpr int kBytes[] = {0, 2, 2, 3, 4, 4};
  const int bytes = kBytes[job.format];
  const Canvas canvas = {Buffer() + kPlaces[job.place], job.format, bytes, PitchOf(bytes)};
  canvas.FillWithNoise();
  return canvas;
}

void Canvas::FillWithNoise() const {
  std::memcpy(pixels, Noise().data(), static_cast<size_t>(pitch) * kHeight);
}

void Canvas::Target() const {
  BRSL_SetBuffer(pixels, pitch, format);
  BRSL_SetBufferViewPort(0, 0, kWidth, kHeight);
  BRSL_SetInkAlpha(kInkAlpha);
}

bool IsSamePicture(const Job &job, const Canvas &canvas, const std::vector<uint8_t> &expected,
                   const std::vector<uint8_t> &drawn) {
  constexpr int kMargin = 4;
  const Point spot = SpotOf(job, 0);
  const int right = std::min(Canvas::kWidth, spot.x + job.width + kMargin);
  const int bottom = std::min(Canvas::kHeight, spot.y + job.height + kMargin);
  const int tolerated = ToleratedDifference(job);
  const auto *const noise = reinterpret_cast<const uint8_t *>(Noise().data());
  const auto differ = [&](const uint8_t *a, const uint8_t *b, int x, int y) {
    return DifferenceOf(ColourAt(canvas, a, x, y), ColourAt(canvas, b, x, y)) > tolerated;
  };
  int different = 0;
  int expectedPixels = 0;
  int drawnPixels = 0;
  for (int y = std::max(0, spot.y - kMargin); y < bottom; ++y) {
    for (int x = std::max(0, spot.x - kMargin); x < right; ++x) {
      different += differ(expected.data(), drawn.data(), x, y);
      expectedPixels += differ(expected.data(), noise, x, y);
      drawnPixels += differ(drawn.data(), noise, x, y);
    }
  }
  // Whoever draws nothing at all must not get by on tolerance.
  return different <= ToleratedPixels(job) && drawnPixels > expectedPixels * 3 / 4;
}

}  // namespace brisal::bench
