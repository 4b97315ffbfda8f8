#include "hostlang/calculator.h"

#include <cmath>

#include "hostlang/maths.h"
#include "hostlang/random.h"

namespace brisal {
namespace {

// An opcode up to 64 is an operator and, in its tens, what is made of the variable first.
enum Operator { kAdd = 1, kSubtract = 2, kMultiply = 3, kDivide = 4 };
enum Function { kValue = 0, kCosine = 2, kSine = 3, kTangent = 4, kRandom = 5, kSquareRoot = 6 };

// The ones that are not of that kind.
enum Opcode { kStore = 5, kPower = 6, kLoad = 10 };

bool IsArithmetic(int32_t opcode) {
  const int32_t function = opcode / 10;
  const int32_t operation = opcode % 10;
  return opcode > 0 && function <= kSquareRoot && function != 1 && kAdd <= operation &&
         operation <= kDivide;
}

long double Apply(int32_t function, float v, RandomState &random) {
  switch (function) {
    case kCosine: return std::cos(Radians(v));
    case kSine: return std::sin(Radians(v));
    case kTangent: return std::tan(Radians(v));
    case kRandom: return RandomUpTo(random, v);
    case kSquareRoot: return std::sqrt(static_cast<long double>(v));
    default: return v;
  }
}

long double Combine(int32_t opcode, float accumulator, long double operand) {
  switch (opcode % 10) {
    case kAdd: return accumulator + operand;
    case kSubtract: return accumulator - operand;
    case kMultiply: return accumulator * operand;
    default: break;
  }
  const bool guarded = opcode / 10 == kRandom || opcode / 10 == kSquareRoot;
  return guarded && operand == 0 ? 0 : accumulator / operand;
}

}  // namespace

float Calculate(RandomState &random, float *variables, const int32_t *program, int32_t count) {
  float accumulator = variables[*program++];
  for (int32_t i = 0; i < count; ++i) {
    const int32_t opcode = *program++;
    if (IsArithmetic(opcode)) {
      const long double operand = Apply(opcode / 10, variables[*program++], random);
      accumulator = static_cast<float>(Combine(opcode, accumulator, operand));
    } else if (opcode == kStore) {
      variables[*program++] = accumulator;
    } else if (opcode == kPower) {
      accumulator = Power(accumulator, variables[*program++]);
    } else if (opcode == kLoad) {
      accumulator = variables[*program++];
    }
  }
  return accumulator;
}

}  // namespace brisal
