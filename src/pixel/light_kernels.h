#pragma once

#include <cstdint>

#include "core/cpu.h"

namespace brisal {

// A light seen from a row of pixels.
struct LightRow {
  uint32_t x;           // of the first pixel, from the light on
  uint32_t rowsSquare;  // the square of the rows between
  float intensity;
  float falloff;
};

// Multiplies the channels of n colours by the light's level, and gives them no alpha.
using LightKernel = void (*)(uint8_t *colours, int n, const LightRow &light);
LightKernel FindLightKernel(Isa isa);

// Replaces n colours by the light's own, with their luminance as alpha.
using PaintKernel = void (*)(uint8_t *colours, int n, const LightRow &light, uint32_t colour);
PaintKernel FindPaintKernel(Isa isa);

}  // namespace brisal
