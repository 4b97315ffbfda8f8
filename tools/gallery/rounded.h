#pragma once

#include <cmath>

// Functions of floats that give the same everywhere. C libraries differ in the last bits of their
// results, which rounding from doubles takes away.

namespace brisal::tools {

inline float Sin(float x) { return static_cast<float>(std::sin(double{x})); }
inline float Cos(float x) { return static_cast<float>(std::cos(double{x})); }
inline float Asin(float x) { return static_cast<float>(std::asin(double{x})); }
inline float Exp(float x) { return static_cast<float>(std::exp(double{x})); }
inline float Pow(float x, float y) { return static_cast<float>(std::pow(double{x}, double{y})); }

}  // namespace brisal::tools
