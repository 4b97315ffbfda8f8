#include "pixel/light_kernels.h"

#include <algorithm>
#include <cmath>

#include "core/ints.h"
#include "pixel/column.h"
#include "pixel/format.h"

namespace brisal {
namespace {

// The level at the i-th pixel, 1 for an intensity of 255. From 256 on it makes every byte but 0 to 255. It
// is 0 where the light does not reach, where intensity and falloff are no numbers, and where the square of
// the distance wrapped below 0.
BRISAL_INLINE double LevelAt(const LightRow &light, int i) {
  constexpr float kStep = 1.0f / 255.0f;
  const uint32_t x = light.x + static_cast<uint32_t>(i);
  const double distance = std::sqrt(static_cast<double>(Wrap(x * x + light.rowsSquare)));
  const double level = (light.intensity - distance * light.falloff) * kStep;
  return level > 0 ? std::min(level, 256.0) : 0;
}

// By way of a signed number, which every set converts to.
BRISAL_INLINE uint32_t Whole(double value) {
  return static_cast<uint32_t>(static_cast<int32_t>(value));
}

struct LightColours : UpTo64Bytes {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(uint8_t *colours, int n, const LightRow &given) {
    const LightRow light = given;
    for (int i = 0; i < n; ++i) {
      const uint32_t factor = Whole(LevelAt(light, i) * 65536);
      const uint32_t colour = Xrgb32::Load(colours + 4 * i);
      Xrgb32::Store(colours + 4 * i, Lit(colour >> 16 & 0xFF, factor) << 16 |
                                         Lit(colour >> 8 & 0xFF, factor) << 8 |
                                         Lit(colour & 0xFF, factor));
    }
  }

  BRISAL_INLINE static uint32_t Lit(uint32_t byte, uint32_t factor) {
    return std::min(byte * factor >> 16, 255u);
  }
};

struct PaintColours : UpTo64Bytes {
  template <int VectorBytes>
  BRISAL_INLINE static void Run(uint8_t *colours, int n, const LightRow &given, uint32_t colour) {
    const LightRow light = given;
    const double red = colour >> 16 & 0xFF;
    const double green = colour >> 8 & 0xFF;
    const double blue = colour & 0xFF;
    for (int i = 0; i < n; ++i) {
      const double level = LevelAt(light, i);
      const uint32_t r = Channel(level * red);
      const uint32_t g = Channel(level * green);
      const uint32_t b = Channel(level * blue);
      const uint32_t luminance = (225 * r + 723 * g + 76 * b) >> 10;
      Xrgb32::Store(colours + 4 * i, luminance << 24 | r << 16 | g << 8 | b);
    }
  }

  BRISAL_INLINE static uint32_t Channel(double value) { return Whole(std::min(value, 255.0)); }
};

}  // namespace

LightKernel FindLightKernel(Isa isa) {
  return Kernels<uint8_t *, int, const LightRow &>::Of<LightColours>().For(isa);
}

PaintKernel FindPaintKernel(Isa isa) {
  return Kernels<uint8_t *, int, const LightRow &, uint32_t>::Of<PaintColours>().For(isa);
}

}  // namespace brisal
