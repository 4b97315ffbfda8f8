#pragma once

#include <cstdint>

#include "pixel/blit_kernels.h"
#include "pixel/mode.h"

namespace brisal {

// Combines the pixels of `transfer.from` with those of another picture of the same format and
// writes the result to `transfer.to`.
using MixKernel = void (*)(const Transfer &transfer, const uint8_t *with, ptrdiff_t withPitch);

// Null for rules that mix no pictures and for codes that are no format.
MixKernel FindMixKernel(Isa isa, Rule rule, int32_t format);

}  // namespace brisal
