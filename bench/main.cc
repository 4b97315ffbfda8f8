// Measures the library against the plain limit and against its peers.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <regex>

#include "bench/measure.h"
#include "bench/report.h"
#include "bench/rows.h"

namespace brisal::bench {
namespace {

constexpr const char *kUsage =
    "usage: brisal_bench [--filter RE] [--rounds N] [--json FILE] [--list]\n"
    "  --filter RE   only rows whose name matches, such as 'box 32x32 .* alpha'\n"
    "  --rounds N    turns of each contender (default 21)\n"
    "  --json FILE   write the time of every contender there\n"
    "  --list        name the rows and measure nothing\n";

struct Options {
  std::regex filter{""};
  int rounds = 21;
  std::string json;
  bool list = false;
};

[[noreturn]] void Fail(const std::string &message) {
  std::fprintf(stderr, "brisal_bench: %s\n%s", message.c_str(), kUsage);
  std::exit(2);
}

void ReadOption(const std::string &name, const char *value, Options *options) {
  if (!value) Fail(name + " needs a value");
  if (name == "--json") {
    options->json = value;
  } else if (name == "--rounds") {
    options->rounds = std::atoi(value);
    if (options->rounds < 1 || options->rounds > 1000) Fail("--rounds takes 1 to 1000");
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
    ReadOption(arguments[k], k + 1 < count ? arguments[k + 1] : nullptr, &options);
    ++k;
  }
  return options;
}

int Run(const Options &options) {
  std::vector<Result> results;
  if (!options.list) PrintHeading(options.rounds);
  for (const Job &job : Rows()) {
    if (!std::regex_search(job.Name(), options.filter)) continue;
    if (options.list) {
      std::printf("%s\n", job.Name().c_str());
      continue;
    }
    results.push_back(Measure(job, options.rounds));
    PrintRow(results.back());
  }
  if (options.list) return 0;
  if (results.empty()) Fail("no row matches the filter");
  PrintSummary(results);
  if (!options.json.empty() && !WriteJson(results, options.json)) {
    Fail("cannot write " + options.json);
  }
  return 0;
}

}  // namespace
}  // namespace brisal::bench

int main(int count, char **arguments) {
  try {
    const brisal::bench::Options options = brisal::bench::ReadOptions(count, arguments);
    BRSL_Init_Lib();
    return brisal::bench::Run(options);
  } catch (const std::regex_error &error) {
    brisal::bench::Fail(std::string("--filter: ") + error.what());
  }
}
