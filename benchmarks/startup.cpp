#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QWidget>
#include <cstdlib>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "benchmarks/ratio.h"
#include "benchmarks/world.h"
#include "frontends/qt/surroundings.h"
#include "platform/ui/form.h"

// From the start of a process to the first painted screen: the module's main screen on a customer's
// ledger, against an empty window of the same toolkit and the two statements. Each start is a
// process of its own; its processor time counts, without what the machine does beside it.
namespace qvzj::bench {
namespace {

/// Counts what is painted in the process.
struct PaintCounter : QObject {
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Paint && object->isWidgetType()) ++paints;
    return false;
  }
  int paints = 0;
};

/// Runs the toolkit until everything that wanted to be painted is.
void PaintAll(QApplication& application) {
  PaintCounter counter;
  application.installEventFilter(&counter);
  for (int before = -1; counter.paints == 0 || counter.paints != before;) {
    before = counter.paints;
    QApplication::processEvents();
  }
}

/// What the child does that measures the best: an empty window, then the statements. Both end where
/// they stand, so that taking down does not count.
[[noreturn]] void ShowEmptyWindow(QApplication& application, const std::string& folder,
                                  const std::vector<std::string>& statements) {
  QWidget window;
  window.resize(1200, 800);
  window.show();
  PaintAll(application);
  Engine engine(folder);
  for (const std::string& sql : statements) engine.Step(sql);
  _exit(0);
}

/// What the child does that measures the module.
[[noreturn]] void ShowModule(QApplication& application, const std::string& folder) {
  qt::QtSurroundings surroundings(QString::fromStdString(folder + "/settings.ini"));
  surroundings.Install();
  store::SuiteConnections connections;
  Around().connections = &connections;
  qvJxc_Zj control;
  AllowEverything(control, folder);
  control.refresh(0, 0);
  if (!control.Form()) throw std::runtime_error("the main form did not open");
  PaintAll(application);
  _exit(0);
}

int Child(int argc, char** argv) {
  QApplication application(argc, argv);
  const std::vector<std::string> words(argv + 2, argv + argc);
  if (words.size() == 1) ShowModule(application, words[0]);
  ShowEmptyWindow(application, words[0], {words.begin() + 1, words.end()});
}

/// Processor time in seconds of this program started again with `words`.
double TimeOfChild(std::vector<std::string> words) {
  words.insert(words.begin(), {"bench_startup", "--child"});
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  const pid_t child = fork();
  if (child == 0) {
    execv("/proc/self/exe", arguments.data());
    _exit(127);
  }
  int status = 0;
  rusage usage{};
  if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
    throw std::runtime_error("a start failed");
  }
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void StartUp(benchmark::State& state, int32_t customers, int32_t entries) {
  const std::string folder = DataFolder(customers, entries).string();
  std::vector<std::string> best_words{folder};
  {
    World world(customers, entries);
    best_words.push_back(world.Translated("select distinct a.CompCode"));
    best_words.push_back(world.Translated("Select b.fDate,"));
  }
  TimeOfChild(best_words);
  TimeOfChild({folder});
  std::vector<double> best;
  std::vector<double> work;
  for (auto _ : state) {
    best.push_back(TimeOfChild(best_words));
    work.push_back(TimeOfChild({folder}));
    state.SetIterationTime(work.back());
  }
  Report(state, 2, std::move(best), std::move(work));
}

void Add(Size size) {
  const bool full = size == Size::Full;
  benchmark::RegisterBenchmark("FirstScreen", StartUp, full ? 10'000 : 20, full ? 100'000 : 500)
      ->UseManualTime()
      ->Iterations(full ? 11 : 1)
      ->Unit(benchmark::kMillisecond);
}

}  // namespace
}  // namespace qvzj::bench

int main(int argc, char** argv) {
  // No display takes part: the toolkit paints into memory.
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("XDG_RUNTIME_DIR", "/tmp", 0);
  if (argc > 2 && std::string_view(argv[1]) == "--child") return qvzj::bench::Child(argc, argv);
  return qvzj::bench::Main(argc, argv, qvzj::bench::Add);
}
