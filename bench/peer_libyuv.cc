#include <libyuv.h>

#include "bench/canvas.h"

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

std::vector<Contender> Offer(const Job &job, const Canvas &canvas) {
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
