#pragma once

#include <functional>
#include <string>
#include <vector>

#include "bench/measure.h"

namespace brisal::bench {

// Jobs of the library that differ in their amount of work alone.
struct Series {
  struct Step {
    double size;  // in units
    std::function<Contender()> make;
  };
  std::string name;
  std::string unit;
  std::string units;
  std::vector<Step> steps;
};

std::vector<Series> AllSeries();

struct Growth {
  struct Step {
    double size;
    Timing timing;
  };
  std::string name;
  std::string unit;
  std::string units;
  std::vector<Step> steps;
};

Growth Measure(const Series &series, int rounds);

}  // namespace brisal::bench
