#pragma once

#include <cstdint>
#include <vector>

#include "bench/job.h"

namespace brisal::bench {

// The mask colour that one of the peers has built in.
constexpr uint32_t kMaskColour = 0x00FF00FF;

// What a job reads besides the target. Rows follow each other without a gap, as one of the peers wants
// its textures.
struct Picture {
  uint8_t *pixels;
  int format;
  int bytesPerPixel;
  int width;
  int height;

  // Paints the picture of a job into the memory that all pictures at the job's place share.
  static Picture Of(const Job &job);

  int Pitch() const { return width * bytesPerPixel; }
  uint8_t *At(int x, int y) const { return pixels + y * Pitch() + x * bytesPerPixel; }
};

// The picture of a job in format 5 with its colours multiplied by alpha; what the mask colour or the
// alpha hides is 0. Some peers blend only this.
std::vector<uint32_t> PremultipliedPicture(const Job &job);

// Where a pixel of a scaling or turned job takes its colour: middles of pixels, relative to the job's
// spot, to places in the picture.
struct Affine {
  double xx, xy, x0;
  double yx, yy, y0;
};
Affine PlacesOf(const Job &job, const Picture &picture);

// The texels at the corners of a textured triangle.
std::array<Point, 3> TexelsOf(const Job &job, const Picture &picture);

}  // namespace brisal::bench
