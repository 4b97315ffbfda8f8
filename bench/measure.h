#pragma once

#include <string>
#include <vector>

#include "bench/job.h"

namespace brisal::bench {

enum class Role { kOurs, kLimit, kPeer };

struct Timing {
  std::string name;
  Role role;
  double nanoseconds;  // of one repetition, the median of all rounds
};

struct Result {
  Job job;
  std::vector<Timing> timings;
  std::vector<std::string> strangers;  // peers that draw another picture, and are left out

  const Timing *Named(const std::string &name) const;
  const Timing *BestOf(Role role) const;
};

// Measures everybody who can do the job, turn by turn.
Result Measure(const Job &job, int rounds);

}  // namespace brisal::bench
