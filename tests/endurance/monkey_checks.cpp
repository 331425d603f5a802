#include "tests/endurance/monkey_checks.h"

#include <algorithm>
#include <array>

#include "platform/basic/date.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"

namespace qvzj::endurance {
namespace {

constexpr int kLedgerBalance = 6;
constexpr int kLedgerId = 17;
constexpr int kRegisterId = 13;

/// Errors that the monkey may rightly cause: acts that the screen does not allow, questions it had
/// no answer for, and register texts with a quote.
constexpr std::array kRightErrors = {
    "is hidden",
    "is disabled",
    "is locked",
    "takes no focus",
    "there is no item",
    "has no row",
    "has no column",
    "is open",
    "no form is open",
    "cannot be pressed",
    "is cleared by",
    "cannot be cleared",
    "no answer is queued",
    "does not fit: ",
    "no form frmList",
    "there is no control",
    "there is no tab",
    "a text without an end",
    "after the end of the statement",
    "two values stand side by side",
};

bool IsRight(const std::string& error) {
  return std::any_of(kRightErrors.begin(), kRightErrors.end(),
                     [&](const char* right) { return error.find(right) != std::string::npos; });
}

bool StartsWith(const std::string& text, const char* start) { return text.rfind(start, 0) == 0; }

bool Changes(const std::string& sql) {
  for (const char* verb : {"delete", "update", "insert"}) {
    if (StartsWith(sql, verb)) return true;
  }
  return false;
}

}  // namespace

MonkeyChecks::MonkeyChecks(ScriptStage& stage, SqliteSession& real, SqliteSession& shadow)
    : stage_(stage), real_(real), shadow_(shadow) {}

void MonkeyChecks::Before(const std::string& line) {
  fields_before_.clear();
  host_interrupts_ = StartsWith(line, "refresh ") && FocusedTextHasQuote();
  const frmZj* form = stage_.control.Form();
  // A date that is still being typed brings another number with it when the field is left.
  if (line == "click cmdAcntSave" && form && !form->dtpAcntDate.Keyed().Pending()) {
    fields_before_ = EditorFields();
  }
}

std::string MonkeyChecks::After(const std::string& line, const std::vector<std::string>& printed) {
  std::string fault = CheckErrors(printed);
  const bool failed = std::any_of(printed.begin(), printed.end(), [](const std::string& text) {
    return StartsWith(text, "error: ");
  });
  if (fault.empty()) fault = FollowStatements(line, failed);
  if (fault.empty()) fault = CheckReports(stage_.headless.boxes.TakeShown());
  // After an error the grid may be empty; the next load fills it.
  if (fault.empty() && !failed) fault = CheckScreen();
  if (fault.empty() && line == "close" && stage_.control.Form()) fault = "the form stayed open";
  stage_.headless.boxes.TakeErrors();
  stage_.headless.user.calls.clear();
  stage_.headless.task.calls.clear();
  stage_.headless.print.jobs.clear();
  return fault;
}

std::string MonkeyChecks::CompareData() {
  for (const char* table : {"tAccountDetail", "cards", "tAccounts"}) {
    const std::string query = std::string("select * from ") + table + " order by fID";
    const auto real = Lines(real_, query);
    const auto shadow = Lines(shadow_, query);
    if (real == shadow) continue;
    const auto [a, b] = std::mismatch(real.begin(), real.end(), shadow.begin(), shadow.end());
    return std::string(table) + " differs: " + (a == real.end() ? "(none)" : *a) + " should be " +
           (b == shadow.end() ? "(none)" : *b);
  }
  return {};
}

std::string MonkeyChecks::CheckErrors(const std::vector<std::string>& printed) const {
  for (const std::string& line : printed) {
    if (!StartsWith(line, "error: ") || IsRight(line) || host_interrupts_) continue;
    return "unexpected " + line;
  }
  return {};
}

bool MonkeyChecks::FocusedTextHasQuote() const {
  const frmZj* form = stage_.control.Form();
  if (!form) return false;
  const auto* box = dynamic_cast<const ui::TextBox*>(form->Focused());
  return box && box->Text().find('\'') != std::string::npos;
}

/// Plays on the shadow what changed the real data, and notes what filled the grids.
std::string MonkeyChecks::FollowStatements(const std::string& line, bool failed) {
  executed_.clear();
  ledger_.clear();
  register_.clear();
  for (const RanStatement& statement : std::exchange(stage_.headless.statements, {})) {
    if (statement.kind == data::StatementKind::Open) {
      if (StartsWith(statement.text, "Select b.fDate")) ledger_ = statement.text;
      if (StartsWith(statement.text, "select distinct a.CompCode")) register_ = statement.text;
      continue;
    }
    executed_.push_back(statement.text);
    try {
      shadow_.Execute(statement.text);
    } catch (const std::exception& error) {
      if (!failed) return "an error was not reported: " + std::string(error.what());
    }
  }
  if (StartsWith(line, "sql ") && Changes(line.substr(4))) shadow_.Native(line.substr(4));
  return {};
}

std::string MonkeyChecks::CheckScreen() {
  const frmZj* form = stage_.control.Form();
  if (!form) return {};
  if (!form->Grid1.Visible()) return "the register is hidden";
  if (!form->Grid2.Visible()) return "the ledger is hidden";
  if (form->GetMousePointer() != ui::MousePointer::Default) return "the hourglass stayed";
  if (form->Focused() && !form->Focused()->CanFocus()) {
    return "the focus is in " + form->Focused()->FullName() + ", which cannot have it";
  }
  if (!form->chkVerify(0).Ticked() && !form->chkVerify(1).Ticked()) {
    return "neither checked nor unchecked entries are asked for";
  }
  for (int32_t row = 1; row <= form->Grid2.RowCount(); ++row) {
    if (form->Grid2.CellEmpty(kLedgerBalance, row)) return "a ledger row has no balance";
  }
  std::string fault = CheckGrid(form->Grid2, kLedgerId, ledger_);
  if (fault.empty()) fault = CheckGrid(form->Grid1, kRegisterId, register_);
  return fault;
}

/// A grid that was just filled shows exactly the records of its statement, in their order.
std::string MonkeyChecks::CheckGrid(const ui::Grid& grid, int id_column,
                                    const std::string& statement) {
  if (statement.empty()) return {};
  data::Recordset records = real_.Query(statement);
  const std::string where = grid.Name() + " against " + statement + ": ";
  if (records.RecordCount() != grid.RowCount()) {
    return where + std::to_string(grid.RowCount()) + " rows instead of " +
           std::to_string(records.RecordCount());
  }
  for (int32_t row = 1; !records.Eof(); records.MoveNext(), ++row) {
    if (grid.CellText(id_column, row) != records.Text(id_column - 1)) {
      return where + "another record in row " + std::to_string(row);
    }
  }
  return {};
}

/// Every save that was reported is in the database, as the editor showed it.
std::string MonkeyChecks::CheckReports(const std::vector<ShownBox>& boxes) {
  for (const ShownBox& box : boxes) {
    const bool done = box.title.find("执行完毕！") != std::string::npos ||
                      box.title.find("執行完畢！") != std::string::npos;
    if (!done) continue;
    if (executed_.empty()) return "a save was reported without a statement: " + box.text;
    const std::string& first = executed_.front();
    if (!StartsWith(first, "Insert Into tAccountDetail") || fields_before_.empty()) continue;
    const std::string stored = NewestEntry();
    if (stored != fields_before_) {
      return "the editor held " + fields_before_ + ", the table holds " + stored;
    }
  }
  return {};
}

std::string MonkeyChecks::NewestEntry() {
  constexpr int kMoneyA = 5;
  constexpr int kMoneyB = 6;
  data::Recordset entry = real_.Native(
      "select fDate, fCompID, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, "
      "fUser, fDoneman, fChecker, fMoneyCode from tAccountDetail order by fID desc limit 1");
  if (entry.Eof()) return "nothing";
  std::string line;
  for (int field = 0; field < entry.FieldCount(); ++field) {
    const bool amount = field == kMoneyA || field == kMoneyB;
    line += field == 0 ? "" : "\t";
    line += amount ? basic::FormatFixed(entry.Number(field), 2) : entry.Text(field);
  }
  return line;
}

std::string MonkeyChecks::EditorFields() const {
  const frmZj& form = *stage_.control.Form();
  const auto amount = [&form](int i) {
    const std::string& text = form.txtAcnt2(i).Text();
    return basic::FormatFixed(basic::IsNumeric(text) ? basic::Val(text) : 0, 2);
  };
  std::vector<std::string> fields = {basic::FormatIso(form.dtpAcntDate.Value()),
                                     form.txtAcnt2(2).Tag(),
                                     form.optType2(1).Selected() ? "1" : "2",
                                     form.txtAcnt2(1).Text(),
                                     form.chkAcntInit.Ticked() ? "1" : "0",
                                     amount(3),
                                     amount(4)};
  for (int i = 6; i <= 9; ++i) fields.push_back(form.txtAcnt2(i).Text());
  fields.push_back(form.cboDoneMan.Text());
  fields.push_back("");
  fields.push_back(form.cboHb.Text());
  std::string line;
  for (const std::string& field : fields) line += (line.empty() ? "" : "\t") + field;
  return line;
}

}  // namespace qvzj::endurance
