#pragma once

#include <string>

#include "adapters/sqlite/sqlite_session.h"
#include "suite/store/schema.h"
#include "tests/endurance/script_process.h"
#include "tests/endurance/script_stage.h"
#include "tests/support/world.h"

namespace qvzj::endurance {

/// A data folder with the schema and the scenarios' rows, and a connection to look at it.
struct DataFolder {
  test::TemporaryFolder folder;
  std::unique_ptr<SqliteSession> session =
      MakeData((folder.Path() / store::kDataFile).string(), QV_SCENARIO_FIXTURE);

  /// The arguments with which qvzj-script works on it.
  std::vector<std::string> Arguments() const { return {"--data", folder.Path().string()}; }
  std::string One(const std::string& query) {
    const auto lines = Lines(*session, query);
    return lines.empty() ? std::string() : lines[0];
  }
};

/// Opens the customers' register on its record in row `row` and arms a new entry.
inline void ArmNewEntry(ScriptProcess& process, int row) {
  process.Send("refresh 0 0");
  process.Send("cell Grid1 1 " + std::to_string(row));
  process.Send("click cmdAction(1)");
}

/// Keys and saves one entry whose summary is `brief`.
inline void SendEntry(ScriptProcess& process, const std::string& brief) {
  process.Send("focus txtAcnt2(3)");
  process.Send("type txtAcnt2(3) 10");
  process.Send("type txtAcnt2(6) " + brief);
  process.Send("click cmdAcntSave");
}

inline bool IsReport(const std::string& line) {
  return line.starts_with("message 64 ") && line.find("执行完毕！") != std::string::npos;
}

}  // namespace qvzj::endurance
