#pragma once

#include "bench/job.h"

namespace brisal::bench {

// Comparing the lists of two shapes of which no opaque pixels lie on each other, so that every pixel is
// looked at.
std::function<void(unsigned)> Collision(const Job &job);

}  // namespace brisal::bench
