#include "benchmarks/ratio.h"

#include <algorithm>
#include <ctime>
#include <string_view>
#include <vector>

namespace qvzj::bench {
namespace {

double Now() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

double Measure(const std::function<void()>& work) {
  const double start = Now();
  work();
  return Now() - start;
}

void Report(benchmark::State& state, double allowed, std::vector<double> best,
            std::vector<double> work) {
  const double best_time = Median(std::move(best));
  state.counters["best_ms"] = best_time * 1000;
  state.counters["ratio"] = Median(std::move(work)) / best_time;
  state.counters["allowed"] = allowed;
}

void Compare(benchmark::State& state, double allowed, const std::function<void()>& best,
             const std::function<void()>& work) {
  best();  // what only the first run pays: cold caches, statements seen for the first time
  work();
  std::vector<double> best_times;
  std::vector<double> work_times;
  for (auto _ : state) {
    best_times.push_back(Measure(best));
    work_times.push_back(Measure(work));
    state.SetIterationTime(work_times.back());
  }
  Report(state, allowed, std::move(best_times), std::move(work_times));
}

int Main(int argc, char** argv, const std::function<void(Size)>& add) {
  const bool tiny = argc > 1 && std::string_view(argv[1]) == "--tiny";
  if (tiny) {
    std::rotate(argv + 1, argv + 2, argv + argc);
    --argc;
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  add(tiny ? Size::Tiny : Size::Full);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}

}  // namespace qvzj::bench
