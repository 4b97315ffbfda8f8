#pragma once

#include <cstdint>

#include "surface/surface.h"

namespace brisal {

// Resamples the whole source to the whole destination. Modes: 0 nearest, 1 and 1111 bilinear.
void ScaleSurface(Isa isa, const Surface &source, const Surface &destination, int32_t mode);

}  // namespace brisal
