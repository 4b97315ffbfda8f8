#pragma once

#include <cstdint>

namespace brisal {

// Writes count elements of `value`, `stride` elements apart. `size` is an element size code.
void FillElements(uint8_t *to, int64_t stride, int32_t count, uint32_t value, int32_t size);

// The number of elements equal to `value` from `at` on, walking forward or backward.
int32_t FindRunLength(const uint8_t *at, bool forward, int32_t count, int32_t size, int32_t value);

}  // namespace brisal
