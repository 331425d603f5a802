#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sqlite/sqlite_session.h"
#include "control/qvJxc_Zj.h"
#include "frontends/headless/headless.h"
#include "services/context.h"
#include "suite/store/connections.h"
#include "tests/support/temporary_folder.h"

namespace qvzj::test {

/// One world for one test: fresh shared values and headless surroundings, an empty database with
/// the schema in a folder of its own, and a control that is allowed to open (rights, user
/// "admin" exempt from the gates, 2024-03-15 as today). Two at the same time are not possible.
class World {
 public:
  World();
  ~World();

  /// Runs statements in the engine's own language, each ended by ";", on a second connection.
  void Sql(std::string_view statements);
  /// Rows of a native query; null reads "NULL".
  std::vector<std::vector<std::string>> Rows(const std::string& query);
  /// First field of the first row of a native query as text; "" when there is no row.
  std::string One(const std::string& query);

  /// `refresh` in that run mode; the main form must be open afterwards.
  frmZj& Open(int16_t run_mode);
  /// The main form that Open opened.
  frmZj& Form() { return *control.Form(); }
  /// Shown texts of a grid row, hidden columns included; row 0 is the header.
  std::vector<std::string> Row(const ui::Grid& grid, int32_t row) const;
  /// Shown texts of one column, top to bottom without the header.
  std::vector<std::string> ColumnTexts(const ui::Grid& grid, int32_t column) const;

  /// Moves the focus to a box, selects all and types key by key; "" deletes what is there. False
  /// when the focus could not go there.
  bool Type(ui::Control& box, std::string_view text);
  /// Queues "ok", "cancel", "yes" or "no" for the next question.
  void Answer(const std::string& word) { headless.boxes.Queue({word, false}); }
  /// Queues a text for the next input box.
  void AnswerText(const std::string& text) { headless.boxes.Queue({text, true}); }
  /// The texts of the boxes shown since the last call.
  std::vector<std::string> Messages();
  /// The statements run on the shared connection since the last call, as built.
  std::vector<std::string> Statements();

  std::filesystem::path DataFile() const;

  TemporaryFolder folder;
  Headless headless;
  store::SuiteConnections connections{{.language = [] { return int{Shared().Language}; }}};
  qvJxc_Zj control;

 private:
  std::unique_ptr<SqliteSession> native_;
};

}  // namespace qvzj::test
