#pragma once

#include <cstdint>

#include "host/image.h"

namespace brisal::tools {

// A picture like a photograph, computed pixel by pixel: evening sky, hills, a lake, pines.
host::Image Landscape(int32_t width, int32_t height);

}  // namespace brisal::tools
