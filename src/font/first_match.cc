#include "font/first_match.h"

#include <cstring>

namespace brisal {
namespace {

ptrdiff_t FindPlainly(const uint8_t *bytes, size_t count, const uint8_t *needle,
                      size_t needleCount) {
  for (size_t at = 0; at + needleCount <= count; ++at) {
    if (std::memcmp(bytes + at, needle, needleCount) == 0) return static_cast<ptrdiff_t>(at);
  }
  return -1;
}

// How much of the needle still matches when the byte after its first k bytes does not.
void FindFallBacks(const uint8_t *needle, size_t count, int32_t *fallBacks) {
  fallBacks[0] = -1;
  int32_t border = 0;
  for (size_t k = 1; k < count; ++k) {
    fallBacks[k] = needle[k] == needle[border] ? fallBacks[border] : border;
    while (border >= 0 && needle[k] != needle[border]) border = fallBacks[border];
    ++border;
  }
}

}  // namespace

FirstMatch::FirstMatch(size_t longestNeedle)
    : fallBacks_(static_cast<int32_t *>(std::malloc((longestNeedle + 1) * sizeof(int32_t)))) {}

// Knuth, Morris and Pratt; where nothing matches yet, memchr is quicker.
ptrdiff_t FirstMatch::Find(const uint8_t *bytes, size_t count, const uint8_t *needle,
                           size_t needleCount) {
  if (needleCount > count) return -1;
  if (fallBacks_ == nullptr) return FindPlainly(bytes, count, needle, needleCount);
  FindFallBacks(needle, needleCount, fallBacks_);
  const uint8_t *const end = bytes + count;
  const auto length = static_cast<int32_t>(needleCount);
  int32_t matched = 0;
  for (const uint8_t *at = bytes; at != end; ++at) {
    if (matched == 0 && *at != needle[0]) {
      at = static_cast<const uint8_t *>(std::memchr(at, needle[0], static_cast<size_t>(end - at)));
      if (at == nullptr) return -1;
    }
    while (matched >= 0 && *at != needle[matched]) matched = fallBacks_[matched];
    if (++matched == length) return at + 1 - length - bytes;
  }
  return -1;
}

}  // namespace brisal
