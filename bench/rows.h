#pragma once

#include <vector>

#include "bench/job.h"

namespace brisal::bench {

// Every row of the table, in its order.
std::vector<Job> Rows();

}  // namespace brisal::bench
