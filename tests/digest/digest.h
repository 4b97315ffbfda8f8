// One checksum per family of functions over a fixed stream of random cases.
#pragma once

#include "support/cases.h"

namespace digest {

inline constexpr uint64_t kCases = 3000;

// Processors differ in the bits of what is not a number, which the calculator's random operands meet, and
// C libraries in the last bit of a logarithm.
constexpr bool IsComparable(Family family) {
#if (defined(__x86_64__) || defined(__i386__)) && !defined(_WIN32)
  static_cast<void>(family);
  return true;
#else
  return family != Family::kCalculator;
#endif
}

using Drawer = Scene (*)(const Case &, std::vector<uint32_t> &results);

// Of one case: the pictures' whole allocations and every result.
uint64_t OfCase(Family family, uint64_t number, Drawer draw);

uint64_t OfFamily(Family family, Drawer draw);

// What expected.txt holds for a family; 0 where it holds nothing.
uint64_t Expected(const std::string &file, Family family);

}  // namespace digest
