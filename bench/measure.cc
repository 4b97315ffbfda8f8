#include "bench/measure.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>
#include <set>

#include "bench/canvas.h"
#include "bench/contenders.h"

namespace brisal::bench {
namespace {

// Short turns: a busy neighbour on the machine then spoils few of them, or all of a row alike.
constexpr double kSecondsARound = 0.0003;

// Somebody doing the job at one of the places.
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

  Timing TimingOf(const std::string &name, Role role) {
    std::vector<double> &times = times_[name];
    if (times.empty()) return {name, role, 0, 0};
    std::sort(times.begin(), times.end());
    const size_t last = times.size() - 1;
    const double median = times[last / 2];
    return {name, role, median, (times[last * 3 / 4] - times[last / 4]) / (2 * median)};
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

void AddPeers(const Job &job, const Canvas &canvas, const Choice &isChosen,
              std::vector<Entry> *entries, std::set<std::string> *strangers) {
  const std::vector<uint8_t> expected = PictureOf(entries->front().contender, canvas);
  for (const Peer::Offer offer : Peer::Offers()) {
    for (Contender &contender : offer(job, canvas)) {
      if (!isChosen(contender.name)) continue;
      if (IsSamePicture(job, canvas, expected, PictureOf(contender, canvas))) {
        entries->push_back({std::move(contender), Role::kPeer});
      } else {
        strangers->insert(contender.name);
      }
    }
  }
}

std::vector<Entry> EntriesOf(const Job &job, const Choice &isChosen,
                             std::set<std::string> *strangers) {
  const Canvas canvas = Canvas::Of(job);
  std::vector<Entry> entries;
  for (Contender &ours : OurContenders(job, canvas)) entries.push_back({ours, Role::kOurs});
  AddPeers(job, canvas, isChosen, &entries, strangers);
  if (isChosen("limit")) {
    for (Contender &limit : LimitContenders(job, canvas)) entries.push_back({limit, Role::kLimit});
  }
  canvas.FillWithNoise();
  return entries;
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

// What is to be measured together.
class Turns {
 public:
  Turns() {
    StartOnce();
    benchmark::ClearRegisteredBenchmarks();
  }

  void Add(const std::vector<Entry> &entries, int rounds) {
    for (const Entry &entry : entries) {
      benchmark::RegisterBenchmark(
          entry.contender.name.c_str(),
          [contender = entry.contender](benchmark::State &state) { Repeat(state, contender); })
          ->MinTime(kSecondsARound)
          ->Repetitions(rounds);
      roles_.emplace(entry.contender.name, entry.role);
    }
  }

  std::vector<Timing> Take() {
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    std::vector<Timing> timings;
    for (const auto &[name, role] : roles_) timings.push_back(collector.TimingOf(name, role));
    return timings;
  }

 private:
  std::map<std::string, Role> roles_;
};

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

Result Measure(const Job &job, int rounds, const Choice &isChosen) {
  Result result = {job, {}, {}};
  const int places = std::min(rounds, static_cast<int>(kPlaces.size()));
  Turns turns;
  for (int place = 0; place < places; ++place) {
    Job there = job;
    there.place = static_cast<size_t>(place);
    turns.Add(EntriesOf(there, isChosen, &result.strangers), rounds / places);
  }
  result.timings = turns.Take();
  return result;
}

Timing Measure(const Contender &contender, int rounds) {
  Turns turns;
  turns.Add({{contender, Role::kOurs}}, rounds);
  return turns.Take().front();
}

}  // namespace brisal::bench
