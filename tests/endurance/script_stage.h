#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adapters/sqlite/sqlite_session.h"
#include "control/qvJxc_Zj.h"
#include "frontends/headless/headless.h"
#include "frontends/script/script.h"
#include "suite/store/connections.h"
#include "suite/visits/task.h"

namespace qvzj::endurance {

/// Rows of a native query, fields parted by tabs, null as "NULL".
std::vector<std::string> Lines(SqliteSession& session, const std::string& query);

/// Makes a data file with the schema and the rows of `fixture` (a file of statements). The session
/// orders texts by the module's present language.
std::unique_ptr<SqliteSession> MakeData(const std::string& file, const std::string& fixture);

/// A scripted front end inside this process, on a data folder of its own. Only one may live at a
/// time.
class ScriptStage {
 public:
  /// `folder` holds the data file already.
  explicit ScriptStage(const std::string& folder);
  ~ScriptStage();

  /// Plays a line and answers what it printed.
  std::vector<std::string> Play(const std::string& line);

  Headless headless;
  qvJxc_Zj control;

 private:
  store::SuiteConnections connections_;
  visits::BoxTask task_;
  std::string file_;
  std::unique_ptr<SqliteSession> own_;
  std::vector<std::string> printed_;
  std::unique_ptr<script::Script> script_;
};

}  // namespace qvzj::endurance
