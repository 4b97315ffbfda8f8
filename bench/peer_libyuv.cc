#include <libyuv.h>

#include "bench/canvas.h"
#include "bench/picture.h"

namespace brisal::bench {
namespace {

using Combine = int (*)(const uint8_t *, int, const uint8_t *, int, uint8_t *, int, int, int);

int SubtractFromSource(const uint8_t *source, int sourcePitch, const uint8_t *target,
                       int targetPitch, uint8_t *result, int resultPitch, int width, int height) {
  return libyuv::ARGBSubtract(target, targetPitch, source, sourcePitch, result, resultPitch, width,
                              height);
}

Combine CombineOf(int mode) {
  switch (mode) {
    case DRAW_ALPHA:
    case DRAW_HALF: return libyuv::ARGBBlend;
    case DRAW_ADD: return libyuv::ARGBAdd;
    case DRAW_SUB: return SubtractFromSource;
    case DRAW_REVSUB: return libyuv::ARGBSubtract;
    case DRAW_MULT: return libyuv::ARGBMultiply;
    default: return nullptr;
  }
}

// Blending takes a premultiplied source.
uint32_t InkOf(const Job &job) {
  const uint32_t alpha = OpacityOf(job);
  uint32_t ink = alpha << 24;
  for (int shift = 0; shift < 24; shift += 8) {
    ink |= ((kInk >> shift & 0xFF) * alpha / 255) << shift;
  }
  return ink;
}

using Convert = int (*)(const uint8_t *, int, uint8_t *, int, int, int);

Convert ConversionOf(int source, int target) {
  if (source == BRSL_FORMAT_X32 && target == BRSL_FORMAT_565) return libyuv::ARGBToRGB565;
  if (source == BRSL_FORMAT_565 && target == BRSL_FORMAT_X32) return libyuv::RGB565ToARGB;
  if (source == BRSL_FORMAT_X32 && target == BRSL_FORMAT_RGB) return libyuv::ARGBToRAW;
  if (source == BRSL_FORMAT_RGB && target == BRSL_FORMAT_X32) return libyuv::RAWToARGB;
  return nullptr;
}

int Mean(const uint8_t *source, int sourcePitch, const uint8_t *target, int targetPitch,
         uint8_t *result, int resultPitch, int width, int height) {
  return libyuv::ARGBInterpolate(source, sourcePitch, target, targetPitch, result, resultPitch,
                                 width, height, 128);
}

std::vector<Contender> Copy(const Job &job, const Canvas &canvas) {
  const Picture picture = Picture::Of(job);
  if (job.source != job.format) {
    const Convert convert = ConversionOf(job.source, job.format);
    if (!convert) return {};
    return {{"libyuv", [=](unsigned i) {
               const auto [x, y] = SpotOf(job, i);
               convert(picture.pixels, picture.Pitch(), canvas.At(x, y), canvas.pitch, job.width,
                       job.height);
             }}};
  }
  return {{"libyuv", [=](unsigned i) {
             const auto [x, y] = SpotOf(job, i);
             libyuv::CopyPlane(picture.pixels, picture.Pitch(), canvas.At(x, y), canvas.pitch,
                               job.width * canvas.bytesPerPixel, job.height);
           }}};
}

// Mask colour becomes transparent: it is left out by alpha only.
std::vector<Contender> Merge(const Job &job, const Canvas &canvas) {
  if (canvas.bytesPerPixel != 4) return {};
  const Combine combine = job.mode == DRAW_SOLID  ? libyuv::ARGBBlend
                          : job.mode == DRAW_HALF ? Mean
                                                  : CombineOf(job.mode);
  if (!combine) return {};
  return {{"libyuv", [=, pixels = PremultipliedPicture(job)](unsigned i) {
             const auto [x, y] = SpotOf(job, i);
             uint8_t *target = canvas.At(x, y);
             combine(reinterpret_cast<const uint8_t *>(pixels.data()), job.width * 4, target,
                     canvas.pitch, target, canvas.pitch, job.width, job.height);
           }}};
}

std::vector<Contender> Scale(const Job &job, const Canvas &canvas) {
  if (canvas.bytesPerPixel != 4) return {};
  const auto filter = job.IsBilinear() ? libyuv::kFilterBilinear : libyuv::kFilterNone;
  return {{"libyuv", [=, picture = Picture::Of(job)](unsigned i) {
             const auto [x, y] = SpotOf(job, i);
             libyuv::ARGBScale(picture.pixels, picture.Pitch(), picture.width, picture.height,
                               canvas.At(x, y), canvas.pitch, job.width, job.height, filter);
           }}};
}

std::vector<Contender> Filter(const Job &job, const Canvas &canvas) {
  // In 64ths.
  static constexpr int8_t kGrey[16] = {5, 45, 14, 0, 5, 45, 14, 0, 5, 45, 14, 0, 0, 0, 0, 64};
  constexpr uint32_t kShade = 0x01010101U * (255 * kFadePercent / 100);
  std::vector<int32_t> sums(job.kind == Kind::kBlur ? (job.width * 4) * (job.height + 1) : 0);
  return {{"libyuv", [=](unsigned i) mutable {
             const auto [x, y] = SpotOf(job, i);
             uint8_t *box = canvas.At(x, y);
             const int pitch = canvas.pitch;
             if (job.kind == Kind::kGrey) {
               libyuv::ARGBColorMatrix(box, pitch, box, pitch, kGrey, job.width, job.height);
             } else if (job.kind == Kind::kFade) {
               libyuv::ARGBShade(box, pitch, box, pitch, job.width, job.height, kShade);
             } else {
               libyuv::ARGBBlur(box, pitch, box, pitch, sums.data(), job.width * 4, job.width,
                                job.height, 1);
             }
           }}};
}

std::vector<Contender> Offer(const Job &job, const Canvas &canvas) {
  if (job.IsCopy()) {
    const bool copies = job.texels == Texels::kOpaque && job.mode == DRAW_SOLID;
    return copies ? Copy(job, canvas) : Merge(job, canvas);
  }
  if (job.IsScaling()) return Scale(job, canvas);
  if (job.IsFilter()) return Filter(job, canvas);
  const bool isBox = job.kind == Kind::kBox || job.kind == Kind::kStrip;
  if (!isBox || canvas.bytesPerPixel != 4) return {};
  if (job.mode == DRAW_SOLID) {
    return {{"libyuv", [job, canvas](unsigned i) {
               const auto [x, y] = SpotOf(job, i);
               libyuv::ARGBRect(canvas.pixels, canvas.pitch, x, y, job.width, job.height, kInk);
             }}};
  }
  const Combine combine = CombineOf(job.mode);
  if (!combine) return {};
  // One row of ink is the source of every row.
  const std::vector<uint32_t> ink(job.width, InkOf(job));
  return {{"libyuv", [job, canvas, combine, ink](unsigned i) {
             const auto [x, y] = SpotOf(job, i);
             uint8_t *target = canvas.At(x, y);
             combine(reinterpret_cast<const uint8_t *>(ink.data()), 0, target, canvas.pitch, target,
                     canvas.pitch, job.width, job.height);
           }}};
}

const Peer kLibyuv(Offer);

}  // namespace
}  // namespace brisal::bench
