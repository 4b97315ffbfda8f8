#pragma once

#include <cstdint>

#include "core/host_services.h"

namespace brisal {

// The block of a plain glyph image, as the host's handle; 0 for a depth that is neither 8 nor 32, for
// an image too wide for run lists, and when the host has no memory.
uintptr_t CompressGlyph(const HostServices &services, const uint8_t *plainImage);

}  // namespace brisal
