// What each statement of the module costs on a private PostgreSQL server, by the size of the
// ledger; how much slower row change, number and register become from the smallest ledger to the
// largest up to a million; and what the module adds to fetching the same rows through ODBC alone.
//
//   bench_server [--tiny | --entries N ...]

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>

#include "benchmarks/server_ledger.h"
#include "ledger/filter.h"
#include "ledger/query.h"
#include "register/list.h"
#include "services/numbering.h"

namespace qvzj::bench {
namespace {

using Clock = std::chrono::steady_clock;
using Work = std::function<void()>;

/// Customers in the register, the same for every size of the ledger.
constexpr int64_t kCustomers = 1000;
constexpr int64_t kManyCustomers = 100'000;
/// Up to here times must stay alike.
constexpr int64_t kBoundedSize = 1'000'000;

/// By the clock: the work is the server's as well as this process's.
double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

double Seconds(const Work& work) {
  const auto start = Clock::now();
  work();
  return SecondsSince(start);
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

/// Median seconds of a few runs, one after another; of one that takes long.
double TurnOf(const Work& work) {
  std::vector<double> runs{Seconds(work)};
  while (runs.front() < 0.005 && runs.size() < 20) runs.push_back(Seconds(work));
  return Median(std::move(runs));
}

/// Seconds by work and turn.
using Turns = std::vector<std::vector<double>>;

/// Runs each work turn by turn, so that what else the machine does weighs on all alike: for
/// `budget` seconds, at least three turns.
Turns InTurns(double budget, const std::vector<Work>& works) {
  for (const Work& work : works) work();  // pays for cold caches
  Turns turns(works.size());
  const auto start = Clock::now();
  for (int turn = 0; turn < 3 || (SecondsSince(start) < budget && turn < 100); ++turn) {
    for (size_t i = 0; i < works.size(); ++i) turns[i].push_back(TurnOf(works[i]));
  }
  return turns;
}

std::vector<double> MediansOf(const Turns& turns) {
  std::vector<double> medians;
  for (const std::vector<double>& times : turns) medians.push_back(Median(times));
  return medians;
}

/// Median ratio of two works of the same turn.
double RatioOf(const std::vector<double>& times, const std::vector<double>& against) {
  std::vector<double> ratios;
  for (size_t turn = 0; turn < times.size(); ++turn) ratios.push_back(times[turn] / against[turn]);
  return Median(std::move(ratios));
}

std::string Grouped(int64_t number) {
  std::string text = std::to_string(number);
  for (auto at = static_cast<std::ptrdiff_t>(text.size()) - 3; at > 0; at -= 3) {
    text.insert(static_cast<size_t>(at), ",");
  }
  return text;
}

struct Row {
  std::string name;
  std::vector<double> values;       ///< by size; milliseconds or a ratio
  std::optional<double> growth{};   ///< from the smallest size to the largest bounded one
  std::optional<double> allowed{};  ///< of the growth, or of each value when they are ratios
};

class Bench {
 public:
  Bench(const std::vector<int64_t>& sizes, int64_t many_customers, double budget)
      : sizes_(sizes), budget_(budget) {
    server_ =
        std::make_unique<test::PrivatePostgres>(std::vector<std::string>{"shared_buffers=512MB"});
    for (const int64_t size : sizes) {
      std::cerr << "Filling a ledger of " << Grouped(size) << " entries" << std::endl;
      ledgers_.push_back(std::make_unique<ServerLedger>(*server_, kCustomers, size));
    }
    std::cerr << "Filling a register of " << Grouped(many_customers) << " customers" << std::endl;
    wide_ = std::make_unique<ServerLedger>(*server_, many_customers, sizes.front());
  }

  void Run() {
    for (const ServerStatement& statement : ServerStatements()) MeasureStatement(statement);
    MeasureForm("row change in the register, in the module", &ChangeRow);
    MeasureForm("next voucher number, in the module", &AskNumber);
    MeasureForm("register of 1,000 customers, in the module", &LoadCustomers);
    MeasureLedgers();
    MeasureManyCustomers();
    Print();
  }

 private:
  void MeasureStatement(const ServerStatement& statement) {
    std::cerr << statement.name << std::endl;
    std::vector<Work> works;
    for (const auto& ledger : ledgers_) {
      works.emplace_back([&session = ledger->Session(), &statement] {
        if (statement.writes) return session.Execute(statement.text);
        session.Query(statement.text);
      });
    }
    Add(statement.name, MediansOf(InTurns(budget_, works)));
  }

  /// Goes from another customer, without loading its entries, to the one on the first row.
  static void ChangeRow(frmZj& form) {
    form.Grid1.SetActive(2, 2);
    form.UserCell(form.Grid1, 2, 1);
  }
  static void AskNumber(frmZj& form) {
    std::string templ = form.numberTemplate.empty() ? kDefaultTemplate : form.numberTemplate;
    NextNumber(basic::Date::FromYmd(2023, 3, 15), templ, kLedgerNumber);
  }
  /// Fills the register and the ledger of the customer on its first row.
  static void LoadCustomers(frmZj& form) { LoadRegister(form, form.registerCondition); }

  /// What a user does, in the form as it opens. Only one form is there at a time, so it is opened
  /// anew for every turn.
  void MeasureForm(const std::string& name, void (*act)(frmZj&)) {
    std::cerr << name << std::endl;
    constexpr int kTurns = 7;
    const int acts_a_turn = budget_ > 0 ? 15 : 1;
    Turns turns(ledgers_.size());
    for (int turn = 0; turn < kTurns; ++turn) {
      for (size_t i = 0; i < ledgers_.size(); ++i) {
        ServerForm opened(ledgers_[i]->Login());
        act(opened.Form());
        std::vector<double> acts;
        for (int n = 0; n < acts_a_turn; ++n) acts.push_back(Seconds([&] { act(opened.Form()); }));
        turns[i].push_back(Median(std::move(acts)));
      }
    }
    Add(name, MediansOf(turns));
    rows_.back().growth = RatioOf(turns[Bounded()], turns[0]);
    rows_.back().allowed = 1.2;
  }

  /// The whole ledger into the grid, against the same rows through ODBC alone.
  void MeasureLedgers() {
    std::vector<double> loads;
    std::vector<double> ratios;
    for (const auto& ledger : ledgers_) {
      std::cerr << "the module and ODBC alone, " << Grouped(ledger->Entries()) << std::endl;
      ServerForm opened(ledger->Login());
      frmZj& form = opened.Form();
      form.UserClick(form.OptSelect(0));
      const std::string condition = LedgerCondition(form);
      const Turns times = InTurns(budget_, {[&] { ledger->FetchBare(WholeLedger()); },
                                            [&] { LoadLedger(form, condition); }});
      loads.push_back(Median(times[1]));
      ratios.push_back(RatioOf(times[1], times[0]));
    }
    Add("ledger of all customers, in the module", std::move(loads));
    rows_.push_back({"  against the same rows through ODBC alone", std::move(ratios), {}, 1.5});
  }

  /// A register of very many customers, against its two statements through ODBC alone.
  void MeasureManyCustomers() {
    ServerForm opened(wide_->Login());
    const Work bare = [&] {
      wide_->FetchBare(WholeRegister());
      wide_->FetchBare(LedgerOfOne());
    };
    const Turns times = InTurns(budget_, {bare, [&] { LoadCustomers(opened.Form()); }});
    many_ = Median(times[1]);
    many_ratio_ = RatioOf(times[1], times[0]);
    many_rows_ = opened.Form().Grid1.RowCount();
  }

  void Add(const std::string& name, std::vector<double> seconds) {
    for (double& value : seconds) value *= 1000;
    rows_.push_back({name, std::move(seconds)});
  }

  /// Place of the largest size up to which times must stay alike.
  size_t Bounded() const {
    size_t place = 0;
    for (size_t i = 0; i < sizes_.size(); ++i) {
      if (sizes_[i] <= kBoundedSize) place = i;
    }
    return place;
  }

  static void PrintValue(double value) { std::printf(" %.*f |", value < 10 ? 2 : 0, value); }

  void Print() const {
    std::printf(
        "%ld processors; PostgreSQL on the same machine, 512 MB of shared buffers, fsync "
        "off; milliseconds, median\n\n| |",
        sysconf(_SC_NPROCESSORS_ONLN));
    for (const int64_t size : sizes_) std::printf(" %s entries |", Grouped(size).c_str());
    std::printf(" %s : %s | allowed |\n|---|", Grouped(sizes_[Bounded()]).c_str(),
                Grouped(sizes_.front()).c_str());
    for (size_t i = 0; i < sizes_.size() + 2; ++i) std::printf("---:|");
    std::printf("\n");
    for (const Row& row : rows_) {
      std::printf("| %s |", row.name.c_str());
      for (const double value : row.values) PrintValue(value);
      if (row.growth) {
        std::printf(" %.2f |", *row.growth);
      } else {
        std::printf(" |");
      }
      if (row.allowed) {
        std::printf(" %.1f |\n", *row.allowed);
      } else {
        std::printf(" |\n");
      }
    }
    std::printf(
        "\nA register of %s customers takes %.0f ms in the module, %.2f times its two "
        "statements through ODBC alone (allowed 1.5).\n",
        Grouped(many_rows_).c_str(), many_ * 1000, many_ratio_);
  }

  std::vector<int64_t> sizes_;
  double budget_;  ///< seconds for each statement
  std::unique_ptr<test::PrivatePostgres> server_;
  std::vector<std::unique_ptr<ServerLedger>> ledgers_;
  std::unique_ptr<ServerLedger> wide_;
  std::vector<Row> rows_;
  double many_ = 0;
  double many_ratio_ = 0;
  int64_t many_rows_ = 0;
};

int Main(const std::vector<std::string>& arguments) {
  std::vector<int64_t> sizes{10'000, 100'000, 1'000'000, 5'000'000};
  int64_t many_customers = kManyCustomers;
  double budget = 3;
  if (!arguments.empty() && arguments[0] == "--tiny") {
    sizes = {1500, 3000};
    many_customers = 2000;
    budget = 0;
  }
  if (!arguments.empty() && arguments[0] == "--entries") {
    sizes.clear();
    for (size_t i = 1; i < arguments.size(); ++i) sizes.push_back(std::stoll(arguments[i]));
  }
  if (sizes.empty() || sizes.front() < 1) {
    std::fputs("usage: bench_server [--tiny | --entries N ...]\n", stderr);
    return 2;
  }
  if (const std::string missing = test::PrivatePostgres::Missing(); !missing.empty()) {
    std::printf("skipped: %s\n", missing.c_str());
    return 77;
  }
  std::sort(sizes.begin(), sizes.end());
  Bench(sizes, many_customers, budget).Run();
  return 0;
}

}  // namespace
}  // namespace qvzj::bench

int main(int argc, char** argv) {
  try {
    return qvzj::bench::Main(std::vector<std::string>(argv + 1, argv + argc));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench_server: %s\n", error.what());
    return 1;
  }
}
