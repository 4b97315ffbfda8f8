#pragma once

#include <cstdint>

#include "core/cpu.h"

namespace brisal {

// Each changes n colours of four bytes in place.
using FadeKernel = void (*)(uint8_t *colours, int n, uint32_t factor);
using GreyKernel = void (*)(uint8_t *colours, int n);

// Every byte becomes min(byte * factor >> 8, 255); the factor is at most 1024.
FadeKernel FindFadeKernel(Isa isa);
// Red, green and blue become the colour's luminance.
GreyKernel FindGreyKernel(Isa isa);

constexpr int kBlurEntries = 9 * 256;

// The memory of a blur's rows is read and written in whole vectors: their length rounded up to these.
constexpr int kBlurStep = 16;

// Three rows of colours, from which a blurred one is made. The table holds what becomes of a sum of
// nine bytes; where a factor other than 0 is given, min(sum * factor >> 16, 255) is the same.
struct BlurRows {
  const uint32_t *rows[3];
  uint32_t *out;
  int64_t width;
  const uint8_t *table;
  uint32_t factor;
};

using BlurKernel = void (*)(const BlurRows *blur);
BlurKernel FindBlurKernel(Isa isa);

}  // namespace brisal
