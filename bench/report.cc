#include "bench/report.h"

#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <fstream>
#include <map>

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

void PrintMean(const std::vector<Result> &results) {
  double logarithms = 0;
  int shared = 0;
  for (const Result &result : results) {
    const double lead = Ratio(result.BestOf(Role::kPeer), result.Named("wide"));
    if (lead == 0) continue;
    logarithms += std::log(lead);
    ++shared;
  }
  if (shared > 0) {
    std::printf("The best peer takes %.2f times as long (geometric mean).\n",
                std::exp(logarithms / shared));
  }
}

std::string Text(const char *format, ...) {
  char text[200];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(text, sizeof text, format, arguments);
  va_end(arguments);
  return text;
}

template <class Items, class Write>
std::string Joined(const Items &items, Write write) {
  std::string text;
  for (const auto &item : items) {
    if (!text.empty()) text += ",\n";
    text += write(item);
  }
  return text;
}

std::string Processor() {
  std::ifstream file("/proc/cpuinfo");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("model name")) return line.substr(line.find(':') + 2);
  }
  return "unknown";
}

std::string Page(const char *kind, const std::string &entries) {
  return "{\"processor\": \"" + Processor() + "\", \"compiler\": \"" __VERSION__ "\", \"" + kind +
         "\": [\n" + entries + "\n]}\n";
}

std::string JsonOf(const Result &result) {
  const std::string timings = Joined(result.timings, [](const Timing &timing) {
    return Text("{\"name\": \"%s\", \"role\": \"%s\", \"ns\": %.2f, \"spread\": %.3f}",
                timing.name.c_str(), NameOf(timing.role), timing.nanoseconds, timing.spread);
  });
  const std::string strangers =
      Joined(result.strangers, [](const std::string &name) { return "\"" + name + "\""; });
  return Text("{\"row\": \"%s\", \"shape\": \"%s\", \"times\": [\n", result.job.Name().c_str(),
              result.job.Shape().c_str()) +
         timings + "],\n\"left out\": [" + strangers + "]}";
}

}  // namespace

void PrintHeading(int rounds) {
  std::printf(
      "Nanoseconds for one job, medians of %d rounds, and half of the distance of their quartiles. "
      "limit: the fastest plain stores, or\n"
      "reads and writes, of the same bytes. x limit: wide/limit. lead: peer/wide.\n\n",
      rounds);
  std::printf("%-*s %10s %4s %10s %10s %8s  %-8s %6s\n", kNameWidth, "row", "wide", "+-", "plain",
              "limit", "x limit", "peer", "lead");
}

void PrintRow(const Result &result) {
  const Timing *const wide = result.Named("wide");
  const Timing *const limit = result.BestOf(Role::kLimit);
  std::printf("%-*s %10.1f %3.0f%% %10.1f %10.1f %8.2f", kNameWidth, result.job.Name().c_str(),
              TimeOf(wide), 100 * wide->spread, TimeOf(result.Named("plain")), TimeOf(limit),
              Ratio(wide, limit));
  const Timing *const peer = result.BestOf(Role::kPeer);
  if (peer) std::printf("  %-8s %6.2f", peer->name.c_str(), Ratio(peer, wide));
  std::printf("\n");
  std::fflush(stdout);
}

void PrintSummary(const std::vector<Result> &results) {
  PrintBehind(results);
  PrintMean(results);
  PrintStrangers(results);
}

std::string JsonOf(const std::vector<Result> &results) {
  return Page("rows", Joined(results, [](const Result &result) { return JsonOf(result); }));
}

void PrintGrowth(const Growth &growth) {
  std::printf("\n%s\n%12s %12s %14s\n", growth.name.c_str(), growth.units.c_str(), "ns",
              ("ns a " + growth.unit).c_str());
  for (const auto &[size, timing] : growth.steps) {
    std::printf("%12.0f %12.1f %14.3f\n", size, timing.nanoseconds, timing.nanoseconds / size);
  }
  std::fflush(stdout);
}

std::string JsonOf(const std::vector<Growth> &growths) {
  return Page("series", Joined(growths, [](const Growth &growth) {
                const std::string steps = Joined(growth.steps, [](const Growth::Step &step) {
                  return Text("[%.0f, %.2f, %.3f]", step.size, step.timing.nanoseconds,
                              step.timing.spread);
                });
                return Text("{\"name\": \"%s\", \"unit\": \"%s\", \"units\": \"%s\", \"steps\": [",
                            growth.name.c_str(), growth.unit.c_str(), growth.units.c_str()) +
                       steps + "]}";
              }));
}

}  // namespace brisal::bench
