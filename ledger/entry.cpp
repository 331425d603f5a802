#include "ledger/entry.h"

#include <charconv>

#include "ledger/columns.h"
#include "ledger/unchanged.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"

namespace qvzj {
namespace {

namespace col = ledger_column;

constexpr const char* kTable = "tAccountDetail";
constexpr const char* kNull = "Null";
constexpr std::array<const char*, kEntryColumns> kNames = {
    "fDate",    "fCompID",  "fType1", "fType2",     "fAcntNo",   "fInit",
    "fMoneyA",  "fMoneyB",  "fBrief", "fInvID",     "fOrderID",  "fUser",
    "fDoneman", "fChecker", "fID2",   "fMoneyCode", "fMoneyRate"};

// The rate box's text; a text that a statement could not hold as a number is written by its value.
std::string RateText(const std::string& text) {
  const bool plain = text.find_first_not_of("0123456789.") == std::string::npos;
  return plain && basic::IsNumeric(text) ? text : basic::NumberText(basic::Val(text));
}

// The shortest text that reads back as exactly this number.
std::string ExactNumber(double value) {
  char text[40];
  const auto end = std::to_chars(text, text + sizeof text, value);
  return {text, end.ptr};
}

// What a row holds in a number column: the text that shows it where that text says it exactly.
std::string StoredNumber(double value, const std::string& shown) {
  return basic::Val(shown) == value ? shown : ExactNumber(value);
}

std::string LinkedAccount(const frmZj& form) {
  if (form.mode != kCustomers) return "0";
  const std::string& id = LinkedAccountId(form);
  return id.empty() ? "0" : id;
}

// Reads the cells of one row of the ledger grid as they were filled.
class Row {
 public:
  Row(const frmZj& form, int32_t row) : grid_(form.Grid2), stored_(grid_.StoredRow(row)) {}
  bool Null(int32_t column) const { return grid_.Stored(column).IsNull(stored_); }
  bool IsDate(int32_t column) const {
    return grid_.Stored(column).GetKind() == basic::Column::Kind::Date;
  }
  double Number(int32_t column) const { return grid_.Stored(column).Number(stored_); }
  std::string Text(int32_t column) const { return grid_.Stored(column).Text(stored_); }
  std::string QuotedText(int32_t column) const {
    return Null(column) ? kNull : Quoted(Text(column));
  }
  std::string Integer(int32_t column) const { return Null(column) ? kNull : Text(column); }

 private:
  const ui::Grid& grid_;
  size_t stored_;
};

}  // namespace

std::string Quoted(const std::string& text) { return "'" + text + "'"; }

EntryTexts EntryInEditor(const frmZj& form) {
  using enum EntryColumn;
  EntryTexts entry;
  const std::string& comp = EntryRecordId(form);
  entry[Date] = Quoted(basic::FormatMonthDayYear(form.dtpAcntDate.Value()));
  entry[CompID] = comp.empty() ? "0" : comp;
  entry[Type1] = std::to_string(form.mode);
  entry[Type2] = form.optType2(Direction::In).Selected() ? "1" : "2";
  entry[AcntNo] = Quoted(form.txtAcnt2(EntryBox::Number).Text());
  entry[Init] = form.chkAcntInit.Value() == 0 ? "0" : "1";
  entry[MoneyA] = basic::NumberText(basic::Val(form.txtAcnt2(EntryBox::MoneyA).Text()));
  entry[MoneyB] = basic::NumberText(basic::Val(form.txtAcnt2(EntryBox::MoneyB).Text()));
  entry[Brief] = Quoted(form.txtAcnt2(EntryBox::Brief).Text());
  entry[InvID] = Quoted(form.txtAcnt2(EntryBox::InvID).Text());
  entry[OrderID] = Quoted(form.txtAcnt2(EntryBox::OrderID).Text());
  entry[User] = Quoted(form.txtAcnt2(EntryBox::User).Text());
  entry[Doneman] = Quoted(form.cboDoneMan.Text());
  entry[Checker] = Quoted(form.lblSHR.Caption());
  entry[ID2] = LinkedAccount(form);
  entry[MoneyCode] = Quoted(form.cboHb.Text());
  entry[MoneyRate] = RateText(form.txtHbRate.Text());
  return entry;
}

EntryTexts EntryToWrite(const frmZj& form) {
  EntryTexts entry = EntryInEditor(form);
  if (form.entryShown.empty()) return entry;
  for (size_t i = 0; i < kEntryColumns; ++i) {
    if (entry.texts[i] == form.entryShown[i]) entry.texts[i] = form.entryStored[i];
  }
  return entry;
}

void RememberEntry(frmZj& form, int32_t row_number, const std::optional<std::string>& currency) {
  using enum EntryColumn;
  const EntryTexts shown = EntryInEditor(form);
  const Row row(form, row_number);
  EntryTexts stored = shown;
  if (row.Null(col::kDate) || !row.IsDate(col::kDate)) stored[Date] = row.QuotedText(col::kDate);
  stored[CompID] = row.Integer(col::kCompID);
  stored[Type2] = row.Integer(col::kType2);
  stored[AcntNo] = row.QuotedText(col::kNumber);
  stored[Init] = row.Integer(col::kInit);
  stored[MoneyA] = StoredNumber(UnsignedAmount(form, col::kMoneyA, row_number), shown[MoneyA]);
  stored[MoneyB] = StoredNumber(UnsignedAmount(form, col::kMoneyB, row_number), shown[MoneyB]);
  stored[Brief] = row.QuotedText(col::kBrief);
  stored[InvID] = row.QuotedText(col::kInvID);
  stored[OrderID] = row.QuotedText(col::kOrderID);
  stored[User] = row.QuotedText(col::kUser);
  stored[Doneman] = row.QuotedText(col::kDoneman);
  stored[Checker] = row.QuotedText(col::kChecker);
  stored[ID2] = row.Integer(col::kID2);
  stored[MoneyCode] = currency ? Quoted(*currency) : kNull;
  stored[MoneyRate] =
      row.Null(col::kRate) ? kNull : StoredNumber(row.Number(col::kRate), shown[MoneyRate]);
  form.entryShown.assign(shown.texts.begin(), shown.texts.end());
  form.entryStored.assign(stored.texts.begin(), stored.texts.end());
  form.entryRow = EntryRow(form, row_number, currency);
}

void ForgetEntry(frmZj& form) {
  form.entryShown.clear();
  form.entryStored.clear();
  form.entryRow.clear();
}

double UnsignedAmount(const frmZj& form, int32_t column, int32_t row) {
  const ui::Grid& grid = form.Grid2;
  const double shown = grid.Stored(column).Number(grid.StoredRow(row));
  if (shown == 0) return 0;
  const bool opening = column == col::kMoneyA && form.mode != kCustomers;
  const bool positive = opening || grid.Stored(col::kType2).Number(grid.StoredRow(row)) == 1;
  return positive == (form.SSTab2.Tab() == LedgerTab::Out) ? -shown : shown;
}

std::string InsertStatement(const EntryTexts& entry) {
  std::string names;
  std::string values;
  for (size_t i = 0; i < kEntryColumns; ++i) {
    const std::string separator = i == 0 ? "" : ",";
    names += separator + kNames[i];
    values += separator + (i == static_cast<size_t>(EntryColumn::Checker) ? "''" : entry.texts[i]);
  }
  return std::string("Insert Into ") + kTable + " (" + names + ") Values (" + values + ")";
}

std::string UpdateStatement(const frmZj& form, const EntryTexts& entry, const std::string& id) {
  constexpr auto kFirstText = static_cast<size_t>(EntryColumn::Brief);
  constexpr auto kLastText = static_cast<size_t>(EntryColumn::User);
  std::string statement = std::string("Update ") + kTable + " Set ";
  for (size_t i = 0; i < kEntryColumns; ++i) {
    // The labels of the four free texts have the indexes 6 to 9.
    const bool free_text = i >= kFirstText && i <= kLastText;
    const std::string name =
        free_text ? form.lblAcnt2(static_cast<int>(i - kFirstText) + 6).Tag() : kNames[i];
    statement += (i == 0 ? "" : ",") + name + "=" + entry.texts[i];
  }
  return statement + " Where fID=" + id;
}

}  // namespace qvzj
