#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adapters/sqlite/sqlite_session.h"
#include "tests/endurance/script_stage.h"

namespace qvzj::endurance {

/// What must hold after every act of the monkey. Keeps a second data file in step by playing every
/// statement on it that changed the first, so that nothing can be lost or changed unseen.
class MonkeyChecks {
 public:
  /// `real` is a connection of its own to the data the stage works on; `shadow` to a copy.
  MonkeyChecks(ScriptStage& stage, SqliteSession& real, SqliteSession& shadow);

  /// To be called before the line `line` is played.
  void Before(const std::string& line);
  /// To be called after it, with what it printed. Answers what is wrong, "" when nothing is.
  std::string After(const std::string& line, const std::vector<std::string>& printed);
  /// Compares all rows of both files. Answers what is wrong.
  std::string CompareData();

 private:
  /// The user is in the midst of a text that could not be left.
  bool FocusedTextHasQuote() const;
  std::string CheckErrors(const std::vector<std::string>& printed) const;
  std::string FollowStatements(const std::string& line, bool failed);
  std::string CheckScreen();
  std::string CheckGrid(const ui::Grid& grid, int id_column, const std::string& statement);
  std::string CheckReports(const std::vector<ShownBox>& boxes);

  /// The editor's fields as the table's columns would hold them, parted by tabs.
  std::string EditorFields() const;
  /// The entry added last, in the same form.
  std::string NewestEntry();

  ScriptStage& stage_;
  SqliteSession& real_;
  SqliteSession& shadow_;
  std::vector<std::string> executed_;  // statements of the last act that changed data
  std::string ledger_;                 // statement of the last act that filled the ledger
  std::string register_;               // and the register
  std::string fields_before_;
  bool host_interrupts_ = false;  // the host searches before the user has left such a text
};

}  // namespace qvzj::endurance
