#include "bench/measure.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>

#include "bench/canvas.h"
#include "bench/contenders.h"

namespace brisal::bench {
namespace {

// Short turns: a busy neighbour on the machine then spoils few of them, or all of a row alike.
constexpr double kSecondsARound = 0.0003;

struct Entry {
  Contender contender;
  Role role;
};

class Collector : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context &) override { return true; }

  void ReportRuns(const std::vector<Run> &runs) override {
    for (const Run &run : runs) {
      if (run.run_type == Run::RT_Iteration) {
        times_[run.run_name.function_name].push_back(run.GetAdjustedCPUTime());
      }
    }
  }

  double MedianOf(const std::string &name) {
    std::vector<double> &times = times_[name];
    if (times.empty()) return 0;
    const auto middle = times.begin() + static_cast<int64_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
  }

 private:
  std::map<std::string, std::vector<double>> times_;
};

void Repeat(benchmark::State &state, const Contender &contender) {
  contender.prepare();
  unsigned i = 0;
  for (auto _ : state) contender.draw(i++);
  contender.finish();
}

std::vector<uint8_t> PictureOf(const Contender &contender, const Canvas &canvas) {
  canvas.FillWithNoise();
  contender.prepare();
  contender.draw(0);
  contender.finish();
  return canvas.Copy();
}

void AddPeers(const Job &job, const Canvas &canvas, std::vector<Entry> *entries, Result *result) {
  const std::vector<uint8_t> expected = PictureOf(entries->front().contender, canvas);
  for (const Peer::Offer offer : Peer::Offers()) {
    for (Contender &contender : offer(job, canvas)) {
      if (IsSamePicture(job, canvas, expected, PictureOf(contender, canvas))) {
        entries->push_back({std::move(contender), Role::kPeer});
      } else {
        result->strangers.push_back(contender.name);
      }
    }
  }
}

// The flag for turn by turn is the library's own: it shuffles the repetitions of all that is
// registered, which is one row at a time.
void StartOnce() {
  static const bool started = [] {
    char program[] = "brisal_bench";
    char shuffle[] = "--benchmark_enable_random_interleaving=true";
    char *arguments[] = {program, shuffle, nullptr};
    int count = 2;
    benchmark::Initialize(&count, arguments);
    return true;
  }();
  static_cast<void>(started);
}

}  // namespace

const Timing *Result::Named(const std::string &name) const {
  const auto found = std::find_if(timings.begin(), timings.end(),
                                  [&](const Timing &timing) { return timing.name == name; });
  return found == timings.end() ? nullptr : &*found;
}

const Timing *Result::BestOf(Role role) const {
  const Timing *best = nullptr;
  for (const Timing &timing : timings) {
    if (timing.role != role) continue;
    if (!best || timing.nanoseconds < best->nanoseconds) best = &timing;
  }
  return best;
}

Result Measure(const Job &job, int rounds) {
  StartOnce();
  Result result = {job, {}, {}};
  const Canvas canvas = Canvas::Of(job.format);
  std::vector<Entry> entries;
  for (Contender &ours : OurContenders(job, canvas)) entries.push_back({ours, Role::kOurs});
  AddPeers(job, canvas, &entries, &result);
  for (Contender &limit : LimitContenders(job, canvas)) entries.push_back({limit, Role::kLimit});
  canvas.FillWithNoise();

  benchmark::ClearRegisteredBenchmarks();
  for (const Entry &entry : entries) {
    benchmark::RegisterBenchmark(
        entry.contender.name.c_str(),
        [&entry](benchmark::State &state) { Repeat(state, entry.contender); })
        ->MinTime(kSecondsARound)
        ->Repetitions(rounds);
  }
  Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  for (const Entry &entry : entries) {
    const std::string &name = entry.contender.name;
    result.timings.push_back({name, entry.role, collector.MedianOf(name)});
  }
  return result;
}

}  // namespace brisal::bench
