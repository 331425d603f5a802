#include <algorithm>
#include <random>

#include "adapters/icu/text_order.h"
#include "benchmarks/ratio.h"
#include "platform/ui/form.h"

// A click on a header: sorting the rows of a grid, against std::sort over the bare keys.
namespace qvzj::bench {
namespace {

using basic::Column;

/// A column of values in no order.
struct Shuffled {
  Column column;
  std::vector<double> numbers;     ///< bare keys of a column of numbers
  std::vector<std::string> texts;  ///< bare keys of a column of texts
};

Shuffled Amounts(int32_t rows) {
  std::mt19937 random(1);
  Shuffled values;
  for (int32_t i = 0; i < rows; ++i) {
    values.numbers.push_back(static_cast<double>(random() % 100'000'000) / 100);
    values.column.AppendReal(values.numbers.back());
  }
  return values;
}

Shuffled Days(int32_t rows) {
  std::mt19937 random(2);
  Shuffled values;
  for (int32_t i = 0; i < rows; ++i) {
    const auto serial = static_cast<int32_t>(45292 + random() % 730);
    values.numbers.push_back(serial);
    values.column.AppendDate({serial});
  }
  return values;
}

Shuffled Texts(int32_t rows, const std::function<std::string(uint32_t)>& text,
               const basic::TextOrder* order) {
  std::mt19937 random(3);
  Shuffled values;
  for (int32_t i = 0; i < rows; ++i) {
    const std::string made = text(static_cast<uint32_t>(random()));
    values.column.AppendText(made);
    values.texts.push_back(order ? order->SortKey(made) : made);
  }
  return values;
}

/// 10,000 customers, each name many times.
std::string Customer(uint32_t random) {
  static const char* const kWords[] = {"上海", "北京", "广州", "深圳", "天津",
                                       "宏达", "永盛", "金源", "恒通", "华美"};
  const uint32_t number = random % 10'000;
  return std::string(kWords[number % 10]) + kWords[number / 10 % 10] + kWords[number / 100 % 10] +
         "贸易有限公司" + std::to_string(number / 1000);
}

/// Voucher numbers, nearly all different.
std::string Voucher(uint32_t random) {
  return "2024" + std::to_string(10 + random % 3) + "PZ" +
         std::to_string(1'000'000 + random / 3 % 9'000'000);
}

struct Screen : ui::Form {
  Screen() : ui::Form("Screen") {}
  ui::Grid grid{*this, "grid"};
};

void Sort(benchmark::State& state, Shuffled values, const basic::TextOrder* order) {
  Screen screen;
  const auto rows = static_cast<int32_t>(values.column.Size());
  screen.grid.SetColumnCount(1);
  screen.grid.SetRowCount(rows);
  screen.grid.TakeColumn(1, std::move(values.column));
  screen.grid.SetSortKey(1, ui::SortOrder::Ascending);
  std::vector<double> bare_numbers;
  std::vector<std::string> bare_texts;
  const auto shuffle = [&] {
    screen.grid.SetSortKey(1, ui::SortOrder::None);
    screen.grid.Sort(order);
    screen.grid.SetSortKey(1, ui::SortOrder::Ascending);
    bare_numbers = values.numbers;
    bare_texts = values.texts;
  };
  std::vector<double> best_times;
  std::vector<double> work_times;
  for (auto _ : state) {
    shuffle();
    best_times.push_back(Measure([&] {
      std::sort(bare_numbers.begin(), bare_numbers.end());
      std::sort(bare_texts.begin(), bare_texts.end());
    }));
    work_times.push_back(Measure([&] { screen.grid.Sort(order); }));
    state.SetIterationTime(work_times.back());
  }
  Report(state, 2, best_times, work_times);
}

void Add(Size size) {
  const int32_t rows = size == Size::Full ? 1'000'000 : 1'000;
  const auto add = [rows](const char* name, auto run) {
    benchmark::RegisterBenchmark((std::string(name) + "/" + std::to_string(rows)).c_str(), run)
        ->UseManualTime()
        ->Iterations(rows > 1'000 ? 9 : 1)
        ->Unit(benchmark::kMillisecond);
  };
  static const IcuTextOrder pinyin = IcuTextOrder::Pinyin();
  add("SortAmounts", [rows](auto& state) { Sort(state, Amounts(rows), nullptr); });
  add("SortDates", [rows](auto& state) { Sort(state, Days(rows), nullptr); });
  add("SortNamesByPinyin",
      [rows](auto& state) { Sort(state, Texts(rows, Customer, &pinyin), &pinyin); });
  add("SortVouchersByPinyin",
      [rows](auto& state) { Sort(state, Texts(rows, Voucher, &pinyin), &pinyin); });
  add("SortVouchersByBytes",
      [rows](auto& state) { Sort(state, Texts(rows, Voucher, nullptr), nullptr); });
}

}  // namespace
}  // namespace qvzj::bench

int main(int argc, char** argv) { return qvzj::bench::Main(argc, argv, qvzj::bench::Add); }
