// Measures the library against the plain limit and against its peers.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <regex>
#include <sstream>

#include "bench/growth.h"
#include "bench/measure.h"
#include "bench/report.h"
#include "bench/rows.h"

namespace brisal::bench {
namespace {

constexpr const char *kUsage =
    "usage: brisal_bench [--filter RE] [--only NAMES] [--rounds N] [--json FILE] [--list] "
    "[--growth]\n"
    "  --filter RE   only rows whose name matches, such as 'box 32x32 .* alpha'\n"
    "  --only NAMES  besides the library only these, such as 'limit,pixman,libyuv'\n"
    "  --rounds N    turns of each contender (default 21)\n"
    "  --json FILE   write the time of every contender there\n"
    "  --list        name the rows and measure nothing\n"
    "  --growth      measure the library alone, on jobs whose size doubles\n";

struct Options {
  std::regex filter{""};
  int rounds = 21;
  std::set<std::string> only;
  std::string json;
  bool list = false;
  bool growth = false;

  bool IsChosen(const std::string &name) const { return only.empty() || only.contains(name); }
};

[[noreturn]] void Fail(const std::string &message) {
  std::fprintf(stderr, "brisal_bench: %s\n%s", message.c_str(), kUsage);
  std::exit(2);
}

std::set<std::string> PartsOf(const std::string &list) {
  std::set<std::string> parts;
  std::istringstream stream(list);
  for (std::string part; std::getline(stream, part, ',');) parts.insert(part);
  return parts;
}

void ReadOption(const std::string &name, const char *value, Options *options) {
  if (!value) Fail(name + " needs a value");
  if (name == "--json") {
    options->json = value;
  } else if (name == "--rounds") {
    options->rounds = std::atoi(value);
    if (options->rounds < 1 || options->rounds > 1000) Fail("--rounds takes 1 to 1000");
  } else if (name == "--only") {
    options->only = PartsOf(value);
  } else if (name == "--filter") {
    options->filter = std::regex(value);
  } else {
    Fail("unknown option " + name);
  }
}

Options ReadOptions(int count, char **arguments) {
  Options options;
  for (int k = 1; k < count; ++k) {
    if (std::strcmp(arguments[k], "--help") == 0) {
      std::printf("%s", kUsage);
      std::exit(0);
    }
    if (std::strcmp(arguments[k], "--list") == 0) {
      options.list = true;
      continue;
    }
    if (std::strcmp(arguments[k], "--growth") == 0) {
      options.growth = true;
      continue;
    }
    ReadOption(arguments[k], k + 1 < count ? arguments[k + 1] : nullptr, &options);
    ++k;
  }
  return options;
}

void Write(const std::string &path, const std::string &json) {
  if (path.empty()) return;
  std::ofstream file(path);
  file << json;
  if (!file.flush()) Fail("cannot write " + path);
}

int Grow(const Options &options) {
  std::vector<Growth> growths;
  for (const Series &series : AllSeries()) {
    if (!std::regex_search(series.name, options.filter)) continue;
    if (options.list) {
      std::printf("%s\n", series.name.c_str());
      continue;
    }
    growths.push_back(Measure(series, options.rounds));
    PrintGrowth(growths.back());
  }
  if (options.list) return 0;
  if (growths.empty()) Fail("no series matches the filter");
  Write(options.json, JsonOf(growths));
  return 0;
}

int Run(const Options &options) {
  std::vector<Result> results;
  const Choice isChosen = [&](const std::string &name) { return options.IsChosen(name); };
  if (!options.list) PrintHeading(options.rounds);
  for (const Job &job : Rows()) {
    if (!std::regex_search(job.Name(), options.filter)) continue;
    if (options.list) {
      std::printf("%s\n", job.Name().c_str());
      continue;
    }
    results.push_back(Measure(job, options.rounds, isChosen));
    PrintRow(results.back());
  }
  if (options.list) return 0;
  if (results.empty()) Fail("no row matches the filter");
  PrintSummary(results);
  Write(options.json, JsonOf(results));
  return 0;
}

}  // namespace
}  // namespace brisal::bench

int main(int count, char **arguments) {
  try {
    const brisal::bench::Options options = brisal::bench::ReadOptions(count, arguments);
    BRSL_Init_Lib();
    return options.growth ? brisal::bench::Grow(options) : brisal::bench::Run(options);
  } catch (const std::regex_error &error) {
    brisal::bench::Fail(std::string("--filter: ") + error.what());
  }
}
