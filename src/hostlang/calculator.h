#pragma once

#include <cstdint>

#include "core/random_state.h"

namespace brisal {

// Runs `count` instructions of a program over an array of variables; the accumulator they leave.
float Calculate(RandomState &random, float *variables, const int32_t *program, int32_t count);

}  // namespace brisal
