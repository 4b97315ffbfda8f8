#include "hostlang/maths.h"

#include <algorithm>
#include <cmath>

namespace brisal {

float Cosine(float degrees) { return static_cast<float>(std::cos(Radians(degrees))); }

float Sine(float degrees) { return static_cast<float>(std::sin(Radians(degrees))); }

float Tangent(float degrees) { return static_cast<float>(std::tan(Radians(degrees))); }

float NaturalLogarithm(float x) {
  return static_cast<float>(std::log(static_cast<long double>(x)));
}

float DecimalLogarithm(float x) {
  return static_cast<float>(std::log10(static_cast<long double>(x)));
}

float Power(float x, float y) {
  return static_cast<float>(std::pow(static_cast<double>(x), static_cast<double>(y)));
}

float WrapAngle(float degrees) {
  const float rest = std::fmod(degrees, 360.0f);
  return rest < 0 ? rest + 360.0f : rest;
}

float WrapValue(float value, float a, float b) {
  // The range is a float; other differences of floats are taken in double, so that they are not
  // rounded before the remainder.
  const double low = std::min(a, b);
  const double high = std::max(a, b);
  const double range = static_cast<float>(high - low);
  if (value < low) value = static_cast<float>(high - std::fmod(low - value, range));
  if (value < high) return value;
  return static_cast<float>(low + std::fmod(value - high, range));
}

}  // namespace brisal
