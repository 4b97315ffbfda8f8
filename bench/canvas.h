#pragma once

#include <cstdint>
#include <vector>

#include "bench/job.h"

namespace brisal::bench {

// The memory that every contender of every row draws into.
struct Canvas {
  static constexpr int kWidth = 1920;
  static constexpr int kHeight = 1080;

  uint8_t *pixels;
  int format;
  int bytesPerPixel;
  int pitch;

  // A view of the one buffer in a job's format, at the job's place in memory, with noise in it.
  static Canvas Of(const Job &job);
  void FillWithNoise() const;

  uint8_t *At(int x, int y) const { return pixels + int64_t{y} * pitch + x * bytesPerPixel; }
  // Makes it the target of the library's own calls.
  void Target() const;
  // Everything a repetition may touch, as it is now.
  std::vector<uint8_t> Copy() const { return {pixels, pixels + int64_t{kHeight} * pitch}; }
};

// Whether two drawings of a job are the same picture but for rounding and the choice of edge pixels.
bool IsSamePicture(const Job &job, const Canvas &canvas, const std::vector<uint8_t> &expected,
                   const std::vector<uint8_t> &drawn);

}  // namespace brisal::bench
