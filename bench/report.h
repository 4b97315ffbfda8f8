#pragma once

#include <string>
#include <vector>

#include "bench/measure.h"

namespace brisal::bench {

void PrintHeading(int rounds);
void PrintRow(const Result &result);

// Where a peer was faster, and who was left out and why.
void PrintSummary(const std::vector<Result> &results);

bool WriteJson(const std::vector<Result> &results, const std::string &path);

}  // namespace brisal::bench
