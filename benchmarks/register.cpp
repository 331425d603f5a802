#include "register/list.h"

#include "benchmarks/ratio.h"
#include "benchmarks/world.h"

// The register of customers.
namespace qvzj::bench {
namespace {

/// Refilling the register grid and, for the customer on its first row, the ledger, against stepping
/// the two statements.
void LoadRegisterOfCustomers(benchmark::State& state, int32_t customers) {
  World world(customers, 10'000);
  frmZj& form = world.Form();
  LoadRegister(form, form.registerCondition);
  const std::string customers_sql = world.Translated("select distinct a.CompCode");
  const std::string ledger_sql = world.Translated("Select b.fDate,");
  Compare(
      state, 1.5,
      [&] {
        world.engine.Step(customers_sql);
        world.engine.Step(ledger_sql);
      },
      [&] { LoadRegister(form, form.registerCondition); });
  form.Grid1.SetRowCount(0);
  const size_t before = HeapBytes();
  LoadRegister(form, form.registerCondition);
  const auto rows = static_cast<double>(form.Grid1.RowCount());
  state.counters["rows"] = rows;
  state.counters["bytes_a_row"] = static_cast<double>(HeapBytes() - before) / rows;
}

void Add(Size size) {
  const int32_t customers = size == Size::Full ? 100'000 : 100;
  benchmark::RegisterBenchmark(("LoadRegister/" + std::to_string(customers)).c_str(),
                               LoadRegisterOfCustomers, customers)
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond);
}

}  // namespace
}  // namespace qvzj::bench

int main(int argc, char** argv) { return qvzj::bench::Main(argc, argv, qvzj::bench::Add); }
