#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "adapters/sqlite/sqlite_session.h"
#include "control/qvJxc_Zj.h"
#include "frontends/headless/headless.h"
#include "suite/store/connections.h"

namespace qvzj::bench {

/// A data folder of that many customers and ledger entries, made once and kept beside the
/// benchmark programs. Besides the demo data it holds the customer "Bench" with 1,000 entries (all
/// of them in a smaller ledger), spread evenly over the whole ledger.
std::filesystem::path DataFolder(int32_t customers, int32_t entries);

/// The name of the customer with the 1,000 entries.
inline constexpr const char* kBenchCustomer = "Bench";

/// The engine alone on such a folder.
class Engine {
 public:
  explicit Engine(const std::filesystem::path& folder);
  /// A statement of the module in the engine's own language.
  std::string Translate(std::string_view statement) const;
  /// Steps a statement in the engine's own language to its end and reads every column.
  void Step(const std::string& sql);

 private:
  std::unique_ptr<SqliteSession> session_;
};

/// Gives a control the data folder and a user who may do everything.
void AllowEverything(qvJxc_Zj& control, const std::string& folder);

/// A control opened without a window on such a folder, in customers mode, showing one customer's
/// entries, and a second connection to measure the engine alone.
class World {
 public:
  World(int32_t customers, int32_t entries);
  ~World();
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  frmZj& Form() { return *control_.Form(); }
  /// The last statement that begins with `start` as the module built it, in the engine's own
  /// language.
  std::string Translated(std::string_view start) const;
  Engine engine;

 private:
  Headless headless_;
  store::SuiteConnections connections_;
  std::deque<std::string> ran_;  ///< the last statements, as the module built them
  qvJxc_Zj control_;
};

/// Bytes that the process holds on its heap.
size_t HeapBytes();

}  // namespace qvzj::bench
