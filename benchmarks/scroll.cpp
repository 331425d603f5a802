#include <QApplication>
#include <QScrollBar>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>

#include "benchmarks/ratio.h"
#include "frontends/qt/form_window.h"
#include "frontends/qt/grid_view.h"
#include "platform/ui/form.h"

// Scrolling a grid of a million rows in its window, against scrolling one of a thousand.
namespace qvzj::bench {
namespace {

constexpr int kPages = 50;

/// A window with a grid of that many rows and six columns like the ledger's.
struct GridWindow : ui::Form {
  explicit GridWindow(int32_t rows) : ui::Form("GridWindow") {
    SetSize(16'500, 10'500);
    grid.SetBounds({0, 0, 16'500, 10'500});
    grid.SetVisible(false);
    grid.SetColumnCount(6);
    grid.SetRowCount(rows);
    Fill(1, [](basic::Column& column, int32_t i) { column.AppendDate({45'292 + i / 2'000}); });
    Fill(2, [](basic::Column& column, int32_t i) {
      column.AppendText("202403PZ" + std::to_string(10'000 + i % 1'000));
    });
    Fill(3, [](basic::Column& column, int32_t i) {
      column.AppendText("上海第一百货有限公司" + std::to_string(i / 100 % 10));
    });
    for (int32_t amount : {4, 5, 6}) {
      grid.SetColumnDecimals(amount, 2);
      Fill(amount, [](basic::Column& column, int32_t i) { column.AppendReal(i % 10'000 / 4.0); });
    }
    grid.SetActive(1, 1);
    grid.SetVisible(true);
    window = std::make_unique<qt::FormWindow>(*this, qt::WindowOptions{});
    window->show();
    QApplication::processEvents();
  }
  ~GridWindow() override { window.reset(); }

  template <class Append>
  void Fill(int32_t number, Append append) {
    basic::Column column;
    for (int32_t i = 0; i < grid.RowCount(); ++i) append(column, i);
    grid.TakeColumn(number, std::move(column));
  }

  /// Goes through the whole grid in some large steps and paints what stands there.
  void Scroll() {
    qt::GridTable* const table = static_cast<qt::GridView*>(window->ViewOf(grid))->Table();
    QScrollBar* const bar = table->verticalScrollBar();
    if (!table->isVisible() || bar->maximum() == 0) throw std::runtime_error("nothing to scroll");
    for (int page = 0; page < kPages; ++page) {
      bar->setValue(static_cast<int>(int64_t{bar->maximum()} * page / kPages));
      table->viewport()->repaint();
    }
  }

  ui::Grid grid{*this, "grid"};
  std::unique_ptr<qt::FormWindow> window;
};

void Scroll(benchmark::State& state, int32_t few, int32_t many) {
  GridWindow small(few);
  GridWindow large(many);
  Compare(
      state, 1.2, [&] { small.Scroll(); }, [&] { large.Scroll(); });
}

void Add(Size size) {
  const bool full = size == Size::Full;
  benchmark::RegisterBenchmark("ScrollFiftyPages", Scroll, full ? 1'000 : 50,
                               full ? 1'000'000 : 500)
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond);
}

}  // namespace
}  // namespace qvzj::bench

int main(int argc, char** argv) {
  // No display takes part: the toolkit paints into memory.
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication application(argc, argv);
  return qvzj::bench::Main(argc, argv, qvzj::bench::Add);
}
