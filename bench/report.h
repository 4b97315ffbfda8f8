#pragma once

#include <string>
#include <vector>

#include "bench/growth.h"
#include "bench/measure.h"

namespace brisal::bench {

void PrintHeading(int rounds);
void PrintRow(const Result &result);

// Where a peer was faster, and who was left out and why.
void PrintSummary(const std::vector<Result> &results);

// The time and spread of every contender, and the processor that they belong to.
std::string JsonOf(const std::vector<Result> &results);

void PrintGrowth(const Growth &growth);
std::string JsonOf(const std::vector<Growth> &growths);

}  // namespace brisal::bench
