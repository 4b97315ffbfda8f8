#pragma once

#include <cstdint>

namespace brisal {

// The words of the random generator, as they are when the library is loaded.
struct RandomState {
  static constexpr uint32_t kStart = 30903;

  uint32_t x = kStart;  // congruential
  uint32_t y = kStart;  // shift register
  uint32_t z = kStart;  // add with carry: the two last words and the carry
  uint32_t w = kStart;
  uint32_t carry = 0;
};

}  // namespace brisal
