#include "bench/picture.h"

#include <algorithm>
#include <cstring>
#include <random>

#include "bench/canvas.h"

namespace brisal::bench {
namespace {

constexpr int kTextureSize = 128;
constexpr int kSpriteSize = 64;

Point SizeOf(const Job &job) {
  if (job.kind == Kind::kTexturedTriangle) return {kTextureSize, kTextureSize};
  if (job.IsTurned()) return {kSpriteSize, kSpriteSize};
  if (job.IsScaling()) return {job.width / 2, job.height / 2};
  return {job.width, job.height};
}

uint32_t Packed(uint32_t colour, int format) {
  switch (format) {
    case BRSL_FORMAT_565: return RGBto565(colour);
    case BRSL_FORMAT_555: return RGBto555(colour);
    case BRSL_FORMAT_RGB: return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
    default: return colour;
  }
}

// Copied pixels are noise, with mask colour or another class of alpha in runs of random length.
class Noise {
 public:
  explicit Noise(Texels texels) : texels_(texels) {}

  uint32_t Next() {
    if (left_-- == 0) StartRun();
    const uint32_t colour = random_() & 0xFFFFFF;
    switch (texels_) {
      case Texels::kKeyed: return class_ == 0 ? kMaskColour : colour;
      case Texels::kPartialAlpha: return colour | PartialAlpha();
      case Texels::kMixedAlpha:
        if (class_ == 2) return colour | PartialAlpha();
        return class_ == 1 ? colour | 0xFF000000 : colour;
      default: return colour | 0xFF000000;
    }
  }

 private:
  void StartRun() {
    class_ = random_() % 3;
    left_ = random_() % 24;
  }
  uint32_t PartialAlpha() { return (16 + random_() % 224) << 24; }

  std::mt19937 random_{2};
  Texels texels_;
  uint32_t class_ = 0;
  uint32_t left_ = 0;
};

// Resampled pixels run smoothly, as a place half a texel away must not count as another picture. A
// keyed one is a sheet of discs with a third of mask colour around them.
uint32_t SmoothColour(const Job &job, Point size, int x, int y) {
  if (job.IsKeyed()) {
    const int period = std::min(size.x, 32);
    const int dx = 2 * (x % period) + 1 - period;
    const int dy = 2 * (y % period) + 1 - period;
    if ((dx * dx + dy * dy) * 100 > period * period * 85) return kMaskColour;
  }
  const uint32_t red = 64 + x * 128 / size.x;
  const uint32_t green = 64 + y * 128 / size.y;
  const uint32_t colour = red << 16 | green << 8 | (256 - red);
  return job.IsKeyed() ? colour : colour | 0xFF000000;
}

template <class Put>
void ForPixels(const Job &job, Put put) {
  const Point size = SizeOf(job);
  Noise noise(job.texels);
  for (int y = 0; y < size.y; ++y) {
    for (int x = 0; x < size.x; ++x) {
      put(x, y, job.IsCopy() ? noise.Next() : SmoothColour(job, size, x, y));
    }
  }
}

uint32_t Premultiplied(uint32_t colour, uint32_t alpha) {
  uint32_t result = alpha << 24;
  for (int shift = 0; shift < 24; shift += 8) {
    result |= ((colour >> shift & 0xFF) * alpha + 127) / 255 << shift;
  }
  return result;
}

}  // namespace

Picture Picture::Of(const Job &job) {
  static constexpr int kBytes[] = {0, 2, 2, 3, 4, 4};
  alignas(4096) static uint8_t memory[kPlaces.size()][640 * 480 * 4 + (kPlaces.back() | 4095) + 1];
  const Point size = SizeOf(job);
  uint8_t *const pixels = memory[job.place] + kPlaces[job.place];
  const Picture picture = {pixels, job.source, kBytes[job.source], size.x, size.y};
  ForPixels(job, [&](int x, int y, uint32_t colour) {
    const uint32_t word = Packed(colour, job.source);
    std::memcpy(picture.At(x, y), &word, picture.bytesPerPixel);
  });
  return picture;
}

std::vector<uint32_t> PremultipliedPicture(const Job &job) {
  std::vector<uint32_t> pixels;
  ForPixels(job, [&](int, int, uint32_t colour) {
    const uint32_t alpha = job.IsKeyed() ? (colour == kMaskColour ? 0 : 255) : colour >> 24;
    pixels.push_back(Premultiplied(colour, alpha));
  });
  return pixels;
}

Affine PlacesOf(const Job &job, const Picture &picture) {
  if (job.IsScaling()) {
    // The first pixel shows the first texel's middle.
    const double x = picture.width / static_cast<double>(job.width);
    const double y = picture.height / static_cast<double>(job.height);
    return {x, 0, 0.5 - 0.5 * x, 0, y, 0.5 - 0.5 * y};
  }
  const auto corners = TurnedCorners(job);
  const double dx = corners[1].x - corners[0].x;
  const double dy = corners[1].y - corners[0].y;
  const double scale = picture.width / (dx * dx + dy * dy);
  const double ox = corners[0].x;
  const double oy = corners[0].y;
  return {dx * scale,  dy * scale, -(ox * dx + oy * dy) * scale,
          -dy * scale, dx * scale, (ox * dy - oy * dx) * scale};
}

std::array<Point, 3> TexelsOf(const Job &job, const Picture &picture) {
  const int last = std::min(job.width, picture.width) - 1;
  return {Point{0, last / 4}, Point{last, 0}, Point{last / 2, last}};
}

}  // namespace brisal::bench
