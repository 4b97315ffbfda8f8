// The same numbers on every platform and compiler.
#pragma once

#include <cstddef>
#include <cstdint>

class Random {
 public:
  explicit Random(uint64_t seed) : state_(seed) {}

  uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15;
    uint64_t z = state_;
    z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9;
    z = (z ^ z >> 27) * 0x94D049BB133111EB;
    return z ^ z >> 31;
  }

  // From first to last, both included.
  int32_t Between(int64_t first, int64_t last) {
    const uint64_t size = static_cast<uint64_t>(last - first) + 1;
    return static_cast<int32_t>(first + static_cast<int64_t>(Next() % size));
  }

  bool OneIn(int n) { return Between(1, n) == 1; }

  template <class T, size_t N>
  T Pick(const T (&values)[N]) {
    return values[Next() % N];
  }

 private:
  uint64_t state_;
};
