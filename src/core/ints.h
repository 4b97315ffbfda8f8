#pragma once

#include <bit>
#include <cstdint>

static_assert(
    std::endian::native == std::endian::little,
    "Pixels and elements are stored as little-endian words; this build's processor is not.");

namespace brisal {

// Quotient rounded towards zero. Most operands fit 32 bits, where the processor divides several
// times faster.
inline int64_t Divide(int64_t a, int64_t b) {
  if (a == static_cast<int32_t>(a) && b == static_cast<int32_t>(b) && b != -1) {
    return static_cast<int32_t>(a) / static_cast<int32_t>(b);
  }
  return a / b;
}

// The bits of a product of a row or element number and a byte step, which may be negative.
inline intptr_t ByteOffset(int64_t index, int64_t step) {
  return static_cast<intptr_t>(index * step);
}

// The low 32 bits as a number: how sums of 32-bit numbers wrap around.
inline int32_t Wrap(int64_t value) { return static_cast<int32_t>(value); }

// The integer part, or the 32-bit number nearest to it; the lowest for what is not a number.
inline int32_t Truncate(double value) {
  if (!(value > INT32_MIN)) return INT32_MIN;
  return value < INT32_MAX ? static_cast<int32_t>(value) : INT32_MAX;
}

}  // namespace brisal
