#pragma once

#include <cstdint>

#include "core/ints.h"

namespace brisal {

// Quotients of many numbers by one, rounded towards zero, for the price of one division.
// The product with the reciprocal is off by less than one part in 2^43, always away from zero. Below
// 2^43 a quotient that is not whole is further than that from the next whole number, so cutting the
// product gives just what a division would.
class Reciprocal {
 public:
  explicit Reciprocal(int64_t divisor)
      : divisor_(divisor), value_((1.0 + 0x1p-44) / static_cast<double>(divisor)) {}

  int64_t Quotient(int64_t n) const {
    constexpr int64_t kLimit = int64_t{1} << 43;
    if (n <= -kLimit || n >= kLimit) return n / divisor_;
    return static_cast<int64_t>(static_cast<double>(n) * value_);
  }

  // What to multiply numbers within the limit with.
  double Value() const { return value_; }

 private:
  int64_t divisor_;
  double value_;
};

}  // namespace brisal
