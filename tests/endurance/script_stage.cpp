#include "tests/endurance/script_stage.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "adapters/sqlite/sqlite_session.h"
#include "services/context.h"
#include "suite/store/schema.h"

namespace qvzj::endurance {

std::vector<std::string> Lines(SqliteSession& session, const std::string& query) {
  data::Recordset rows = session.Native(query);
  std::vector<std::string> lines;
  for (; !rows.Eof(); rows.MoveNext()) {
    std::string line;
    for (int field = 0; field < rows.FieldCount(); ++field) {
      if (field > 0) line += '\t';
      line += rows.IsNull(field) ? "NULL" : rows.Text(field);
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

std::unique_ptr<SqliteSession> MakeData(const std::string& file, const std::string& fixture) {
  std::ifstream in(fixture, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + fixture);
  std::ostringstream statements;
  statements << in.rdbuf();
  SqliteOptions options;
  options.create = true;
  options.language = [] { return static_cast<int>(Shared().Language); };
  auto session = OpenSqlite(file, options);
  store::CreateSchema(*session);
  session->NativeScript(statements.str());
  return session;
}

ScriptStage::ScriptStage(const std::string& folder)
    : connections_({.language = [] { return static_cast<int>(Shared().Language); }}),
      file_((std::filesystem::path(folder) / store::kDataFile).string()),
      own_(OpenSqlite(file_, {})) {
  ResetShared();
  headless.Install(connections_);
  headless.task.inner = &task_;
  headless.clock.Set(basic::Date::FromYmd(2024, 3, 15));
  control.InitProperties();
  control.setUserPath(folder);
  control.setMyModel("11111111111");
  control.setUserName("admin");
  control.setZgName("admin");
  script_ = std::make_unique<script::Script>(
      control, headless, [this](std::string_view sql) { return own_->Native(sql); },
      [this](std::string_view line) { printed_.emplace_back(line); });
}

ScriptStage::~ScriptStage() {
  if (frmZj* form = control.Form()) form->Close();
  script_.reset();
  ResetShared();
  Around() = {};
}

std::vector<std::string> ScriptStage::Play(const std::string& line) {
  printed_.clear();
  script_->Execute(line);
  return std::exchange(printed_, {});
}

}  // namespace qvzj::endurance
