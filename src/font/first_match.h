#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace brisal {

// Looks for bytes in longer ones, in a time that grows with the length of both together.
class FirstMatch {
 public:
  explicit FirstMatch(size_t longestNeedle);
  ~FirstMatch() { std::free(fallBacks_); }
  FirstMatch(const FirstMatch &) = delete;
  FirstMatch &operator=(const FirstMatch &) = delete;

  // The first place of the needle, or -1. The needle is not empty.
  ptrdiff_t Find(const uint8_t *bytes, size_t count, const uint8_t *needle, size_t needleCount);

 private:
  int32_t *fallBacks_;
};

}  // namespace brisal
