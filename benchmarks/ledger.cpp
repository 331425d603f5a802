#include "benchmarks/ratio.h"
#include "benchmarks/world.h"
#include "ledger/filter.h"
#include "ledger/query.h"

// The ledger of a whole company, of one customer, and what a loaded entry costs in memory.
namespace qvzj::bench {
namespace {

constexpr const char* kLedgerStatement = "Select b.fDate,";

/// Refilling the ledger grid, against stepping its statement and reading every column.
void LoadLedgerOfAll(benchmark::State& state, int32_t customers, int32_t entries) {
  World world(customers, entries);
  frmZj& form = world.Form();
  form.UserClick(form.OptSelect(0));
  const std::string sql = world.Translated(kLedgerStatement);
  const std::string condition = LedgerCondition(form);
  Compare(
      state, 1.5, [&] { world.engine.Step(sql); }, [&] { LoadLedger(form, condition); });
  form.Grid2.SetRowCount(0);
  const size_t before = HeapBytes();
  LoadLedger(form, condition);
  const auto rows = static_cast<double>(form.Grid2.RowCount());
  state.counters["rows"] = rows;
  state.counters["bytes_an_entry"] = static_cast<double>(HeapBytes() - before) / rows;
}

/// Row of the register grid on which the customer of 1,000 entries stands.
int32_t BenchRow(const frmZj& form) {
  for (int32_t row = 1; row <= form.Grid1.RowCount(); ++row) {
    if (form.Grid1.CellText(2, row) == kBenchCustomer) return row;
  }
  throw std::runtime_error("the customer is not in the register");
}

/// Walking in the register from a customer without entries onto one of 1,000, against stepping that
/// customer's statement.
void RowChange(benchmark::State& state, int32_t customers, int32_t entries) {
  World world(customers, entries);
  frmZj& form = world.Form();
  const int32_t row = BenchRow(form);
  const int32_t other = row == 1 ? 2 : row - 1;
  form.UserCell(form.Grid1, 2, row);
  const std::string sql = world.Translated(kLedgerStatement);
  Compare(
      state, 1.5, [&] { world.engine.Step(sql); },
      [&] {
        form.Grid1.SetActive(2, other);  // the program's: loads nothing
        form.UserCell(form.Grid1, 2, row);
      });
  state.counters["rows"] = static_cast<double>(form.Grid2.RowCount());
}

void Add(Size size) {
  struct Ledger {
    int32_t customers;
    int32_t entries;
  };
  const std::vector<Ledger> ledgers =
      size == Size::Full ? std::vector<Ledger>{{200, 10'000}, {1'000, 100'000}, {10'000, 1'000'000}}
                         : std::vector<Ledger>{{20, 500}};
  for (const Ledger& ledger : ledgers) {
    const auto add = [&](const std::string& name, auto run) {
      return benchmark::RegisterBenchmark((name + "/" + std::to_string(ledger.entries)).c_str(),
                                          run, ledger.customers, ledger.entries)
          ->UseManualTime()
          ->Unit(benchmark::kMillisecond);
    };
    const bool many = ledger.entries > 500'000;
    auto* const load = add("LoadLedger", LoadLedgerOfAll);
    if (many) load->Iterations(5);
    add("RowChange", RowChange);
  }
}

}  // namespace
}  // namespace qvzj::bench

int main(int argc, char** argv) { return qvzj::bench::Main(argc, argv, qvzj::bench::Add); }
