#pragma once

namespace brisal {

// An angle for the trigonometric functions. The factor is a little short of pi / 180, so that the
// cosine of 90 degrees is not 0 and its tangent is finite.
inline long double Radians(float degrees) {
  constexpr double kRadiansPerDegree = 0.017453292519444445;
  return static_cast<long double>(degrees) * kRadiansPerDegree;
}

float Cosine(float degrees);
float Sine(float degrees);
float Tangent(float degrees);

float NaturalLogarithm(float x);
float DecimalLogarithm(float x);
float Power(float x, float y);

// The same angle from 0 up to 360.
float WrapAngle(float degrees);

// The value moved by whole ranges to where it lies between a and b, the larger of them excluded.
float WrapValue(float value, float a, float b);

}  // namespace brisal
