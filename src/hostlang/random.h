#pragma once

#include <cstdint>

#include "core/random_state.h"

namespace brisal {

// The next number, any of 32 bits.
uint32_t NextRandom(RandomState &state);

// Starts all words but the carry from the seed; 0 changes nothing.
void Randomize(RandomState &state, uint32_t seed);

// A number from 0 to max, both included, for a positive max.
float RandomUpTo(RandomState &state, float max);

}  // namespace brisal
