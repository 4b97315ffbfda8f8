#pragma once

#include <cstdint>

#include "host/image.h"

namespace brisal::tools {

// Scales a picture until it covers width x height, cuts off evenly what stands over, and lays it
// on white where it is transparent. The result is opaque.
host::Image Fit(const host::Image &picture, int32_t width, int32_t height);

}  // namespace brisal::tools
