// The calculator: one accumulator, an opcode and an operand at a time.
#include <cmath>

#include "reference/reference.h"

namespace reference {

float Reference::FastCalc(float *variables, const int32_t *program, int32_t count) {
  const auto radians = [](float v) { return v * static_cast<long double>(0.017453292519444445); };
  const auto operand = [&](int32_t function, float v) -> long double {
    switch (function) {
      case 0: return v;
      case 2: return std::cos(radians(v));
      case 3: return std::sin(radians(v));
      case 4: return std::tan(radians(v));
      case 5: return Rnd(v);
      default: return std::sqrt(static_cast<long double>(v));
    }
  };
  long double acc = variables[*program++];
  for (int32_t i = 0; i < count; i++, acc = static_cast<float>(acc)) {
    const int32_t code = *program++, function = code / 10, operation = code % 10;
    const bool combines = operation >= 1 && operation <= 4 && code <= 64 && function != 1;
    if (code < 1 || (!combines && code != 5 && code != 6 && code != 10)) continue;
    float &v = variables[*program++];
    if (code == 5) v = static_cast<float>(acc);
    if (code == 6) acc = std::pow(static_cast<double>(acc), double{v});
    if (code == 10) acc = v;
    if (!combines) continue;
    const long double x = operand(function, v);
    const bool guarded = function >= 5 && x == 0;
    if (operation == 1) acc += x;
    if (operation == 2) acc -= x;
    if (operation == 3) acc *= x;
    if (operation == 4) acc = guarded ? 0 : acc / x;
  }
  return static_cast<float>(acc);
}

}  // namespace reference
