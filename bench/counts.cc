// Does each job of a list eight times on either column, for a profiler that counts instructions. It
// finds a part of its output named after column and job for each.
#include <valgrind/callgrind.h>

#include <cstdio>
#include <fstream>
#include <string>

#include "bench/contenders.h"
#include "bench/rows.h"

namespace brisal::bench {
namespace {

constexpr unsigned kTimes = 8;

const Job *Find(const std::vector<Job> &rows, const std::string &name) {
  for (const Job &job : rows) {
    if (job.Name() == name) return &job;
  }
  return nullptr;
}

void Count(const Job &job) {
  const Canvas canvas = Canvas::Of(job);
  for (const Contender &ours : OurContenders(job, canvas)) {
    ours.prepare();
    ours.draw(0);
    const std::string part = ours.name + " " + job.Name();
    CALLGRIND_ZERO_STATS;
    for (unsigned i = 0; i < kTimes; ++i) ours.draw(i);
    CALLGRIND_DUMP_STATS_AT(part.c_str());
  }
}

int Run(const char *path) {
  std::ifstream file(path);
  const std::vector<Job> rows = Rows();
  for (std::string name; std::getline(file, name);) {
    const Job *const job = Find(rows, name);
    if (!job) {
      std::fprintf(stderr, "brisal_counts: no row is called '%s'\n", name.c_str());
      return 2;
    }
    Count(*job);
  }
  return 0;
}

}  // namespace
}  // namespace brisal::bench

int main(int count, char **arguments) {
  if (count != 2) {
    std::fprintf(stderr,
                 "usage: valgrind --tool=callgrind brisal_counts FILE (a row's name a line)\n");
    return 2;
  }
  BRSL_Init_Lib();
  return brisal::bench::Run(arguments[1]);
}
