#pragma once

#include <cstdint>

namespace brisal {

// Whether drawing or measuring the block, whose `size` bytes came from a file, reads nothing outside
// of them. What is never drawn may be anything.
bool IsSoundGlyph(const uint8_t *bytes, int32_t size);

}  // namespace brisal
