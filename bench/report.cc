#include "bench/report.h"

#include <cstdio>
#include <map>
#include <set>

namespace brisal::bench {
namespace {

constexpr int kNameWidth = 40;

double TimeOf(const Timing *timing) { return timing ? timing->nanoseconds : 0; }

// How many times as long a takes as b; 0 where either is not known.
double Ratio(const Timing *a, const Timing *b) {
  return TimeOf(a) > 0 && TimeOf(b) > 0 ? a->nanoseconds / b->nanoseconds : 0;
}

const char *NameOf(Role role) {
  static constexpr const char *kNames[] = {"ours", "limit", "peer"};
  return kNames[static_cast<int>(role)];
}

void PrintBehind(const std::vector<Result> &results) {
  int shared = 0;
  int behind = 0;
  for (const Result &result : results) {
    const double lead = Ratio(result.BestOf(Role::kPeer), result.Named("wide"));
    if (lead == 0) continue;
    ++shared;
    if (lead >= 1) continue;
    if (behind++ == 0) std::printf("\nBehind a peer:\n");
    std::printf("  %-*s %-8s %.2f\n", kNameWidth, result.job.Name().c_str(),
                result.BestOf(Role::kPeer)->name.c_str(), lead);
  }
  std::printf("\nAhead of every peer on %d of the %d rows that one of them offers.\n",
              shared - behind, shared);
}

void PrintStrangers(const std::vector<Result> &results) {
  std::map<std::string, int> rows;
  for (const Result &result : results) {
    for (const std::string &name : result.strangers) ++rows[name];
  }
  for (const auto &[name, count] : rows) {
    std::printf("Left out %s on %d rows: its picture differs by more than rounding.\n",
                name.c_str(), count);
  }
}

void WriteRow(std::FILE *file, const Result &result) {
  std::fprintf(file, "{\"row\": \"%s\", \"nanoseconds\": {", result.job.Name().c_str());
  const char *separator = "";
  for (const Timing &timing : result.timings) {
    std::fprintf(file, "%s\"%s %s\": %.2f", separator, NameOf(timing.role), timing.name.c_str(),
                 timing.nanoseconds);
    separator = ", ";
  }
  std::fprintf(file, "}, \"left out\": [");
  separator = "";
  for (const std::string &name : result.strangers) {
    std::fprintf(file, "%s\"%s\"", separator, name.c_str());
    separator = ", ";
  }
  std::fprintf(file, "]}");
}

}  // namespace

void PrintHeading(int rounds) {
  std::printf(
      "Nanoseconds for one job, medians of %d rounds. limit: the fastest plain stores, or\n"
      "reads and writes, of the same bytes. x limit: wide/limit. lead: peer/wide.\n\n",
      rounds);
  std::printf("%-*s %10s %10s %10s %8s  %-8s %6s\n", kNameWidth, "row", "wide", "plain", "limit",
              "x limit", "peer", "lead");
}

void PrintRow(const Result &result) {
  const Timing *const wide = result.Named("wide");
  const Timing *const limit = result.BestOf(Role::kLimit);
  std::printf("%-*s %10.1f %10.1f %10.1f %8.2f", kNameWidth, result.job.Name().c_str(),
              TimeOf(wide), TimeOf(result.Named("plain")), TimeOf(limit), Ratio(wide, limit));
  const Timing *const peer = result.BestOf(Role::kPeer);
  if (peer) std::printf("  %-8s %6.2f", peer->name.c_str(), Ratio(peer, wide));
  std::printf("\n");
  std::fflush(stdout);
}

void PrintSummary(const std::vector<Result> &results) {
  PrintBehind(results);
  PrintStrangers(results);
}

bool WriteJson(const std::vector<Result> &results, const std::string &path) {
  std::FILE *file = std::fopen(path.c_str(), "w");
  if (!file) return false;
  std::fprintf(file, "[\n");
  for (size_t k = 0; k < results.size(); ++k) {
    WriteRow(file, results[k]);
    std::fprintf(file, k + 1 < results.size() ? ",\n" : "\n]\n");
  }
  return std::fclose(file) == 0;
}

}  // namespace brisal::bench
