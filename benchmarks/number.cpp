#include "benchmarks/ratio.h"
#include "benchmarks/world.h"
#include "services/numbering.h"

// The next voucher number.
namespace qvzj::bench {
namespace {

/// One number takes microseconds, so a turn asks for many.
constexpr int kNumbers = 200;

double TimeOfNumbers(World& world) {
  std::string templ = world.Form().numberTemplate;
  if (templ.empty()) templ = kDefaultTemplate;
  const basic::Date today = Around().clock->Today();
  return Measure([&] {
    for (int i = 0; i < kNumbers; ++i) {
      benchmark::DoNotOptimize(NextNumber(today, templ, kLedgerNumber));
    }
  });
}

/// The time in a ledger of many entries against that in one of few. Only one ledger can be open at
/// a time, so the few are measured first.
void NextNumberOf(benchmark::State& state, int32_t few, int32_t many) {
  std::vector<double> best;
  std::vector<double> work;
  {
    World small(100, few);
    TimeOfNumbers(small);
    for (int i = 0; i < 11; ++i) best.push_back(TimeOfNumbers(small));
  }
  World large(std::max(many / 100, 100), many);
  TimeOfNumbers(large);
  for (auto _ : state) {
    work.push_back(TimeOfNumbers(large));
    state.SetIterationTime(work.back());
  }
  Report(state, 2, std::move(best), std::move(work));
}

void Add(Size size) {
  const bool full = size == Size::Full;
  benchmark::RegisterBenchmark("NextNumber200Times", NextNumberOf, full ? 1'000 : 200,
                               full ? 1'000'000 : 500)
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond);
}

}  // namespace
}  // namespace qvzj::bench

int main(int argc, char** argv) { return qvzj::bench::Main(argc, argv, qvzj::bench::Add); }
