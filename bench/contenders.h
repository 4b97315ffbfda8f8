#pragma once

#include <vector>

#include "bench/canvas.h"
#include "bench/job.h"

namespace brisal::bench {

// The library itself, in the current state of its MMX switch.
std::function<void(unsigned)> Drawing(const Job &job, const Canvas &canvas);

// The library on the wide and on the plain column.
std::vector<Contender> OurContenders(const Job &job, const Canvas &canvas);

// The plain limit: the fastest known ways to write the bytes that the job touches or, in modes that
// look at the target, to read and write them. What shows a picture reads its texels, too.
std::vector<Contender> LimitContenders(const Job &job, const Canvas &canvas);

}  // namespace brisal::bench
