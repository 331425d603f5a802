#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <vector>

namespace qvzj::bench {

/// Processor time of `work` in seconds. Time in which the machine did something else does not
/// count.
double Measure(const std::function<void()>& work);

/// Gives the benchmark its counters from the times in seconds: the median of `best` (best_ms), the
/// ratio of the medians of `work` and `best`, and the ratio that is allowed.
void Report(benchmark::State& state, double allowed, std::vector<double> best,
            std::vector<double> work);

/// Measures `work` against `best`, the same thing done as well as the machine can, turn by turn in
/// one process, and reports them.
void Compare(benchmark::State& state, double allowed, const std::function<void()>& best,
             const std::function<void()>& work);

/// How large the data is: as the bounds name it, or tiny, to see that the programs run.
enum class Size { Full, Tiny };

/// The main function of a benchmark program: `--tiny` before all other arguments asks for tiny
/// data; `add` registers the benchmarks.
int Main(int argc, char** argv, const std::function<void(Size)>& add);

}  // namespace qvzj::bench
