#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "bench/job.h"

namespace brisal::bench {

enum class Role { kOurs, kLimit, kPeer };

struct Timing {
  std::string name;
  Role role;
  double nanoseconds;  // of one repetition, the median of all rounds
  double spread;       // half of the distance between the quartiles, as a part of the median
};

struct Result {
  Job job;
  std::vector<Timing> timings;
  std::set<std::string> strangers;  // peers that draw another picture, and are left out

  const Timing *Named(const std::string &name) const;
  const Timing *BestOf(Role role) const;
};

// Whose name, or whose role, matches is measured; ours always is, as peers are compared with it.
using Choice = std::function<bool(const std::string &name)>;

// Measures everybody who can do the job, turn by turn, at each of several places in memory.
Result Measure(const Job &job, int rounds, const Choice &isChosen);

// Measures one thing that is no job of the table.
Timing Measure(const Contender &contender, int rounds);

}  // namespace brisal::bench
