#include "ledger/save.h"

#include "ledger/actions.h"
#include "ledger/columns.h"
#include "ledger/editor.h"
#include "ledger/entry.h"
#include "ledger/filter.h"
#include "ledger/query.h"
#include "ledger/unchanged.h"
#include "ledger/unsaved.h"
#include "ledger/voucher.h"
#include "platform/basic/number.h"
#include "platform/data/errors.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "screen/layout.h"
#include "services/connect.h"
#include "services/messages.h"
#include "services/query.h"
#include "services/strings.h"
#include "services/text_ids.h"

namespace qvzj {
namespace {

bool NumberIsZero(const std::string& text) { return basic::Val(text) == 0; }

// Entries under the shown entry's id in the ledger that is open. The engine's error rises when
// they cannot be counted, so that a broken connection is not taken for a vanished entry.
bool EntryExists(const frmZj& form) {
  const std::string condition =
      "fID=" + ShownEntryId(form) + " And fType1=" + std::to_string(form.mode);
  const int16_t rows = CountRows("tAccountDetail", condition);
  if (rows >= 0) return rows > 0;
  return !NumberIsZero(FirstValue("select count(*) from tAccountDetail Where " + condition));
}

bool CheckEntryThere(const frmZj& form) {
  if (NumberIsZero(ShownEntryId(form))) {
    Message("请选择[帐目] !", box::kExclamation);
    return false;
  }
  if (EntryExists(form)) return true;
  Message(ShownReference(form) + "：帐目已不存在！", box::kCritical);
  return false;
}

void CancelEntry(frmZj& form) {
  form.picAcnt.SetVisible(false);
  LayoutEditor(form);
  form.currentAction = kActionView;
  form.cmdAcntSave.SetTag(std::to_string(kActionView));
  LockEntry(form, kActionView);
  form.Grid2.ShowActive();
  form.SetFocus(form.Grid2);
  // What was keyed and not saved must not come back with the next look at the entry.
  ShowLedgerRow(form, form.Grid2.ActiveRow());
}

// An entry that somebody else has changed since it was shown is listed and shown as it is now. What
// the ledger does not list any more cannot be acted on.
bool CheckEntryAsShown(frmZj& form) {
  if (EntryUnchanged(form)) return true;
  const std::string id = ShownEntryId(form);
  EntryAtRest(form);  // what was typed belongs to an entry that is there no more
  LoadLedger(form, LedgerCondition(form));
  if (form.Grid2.RowCount() == 0 || ShownEntryId(form) != id) CancelEntry(form);
  ReportChangedMeanwhile();
  return false;
}

// A required field is missing: says which and takes the user to it.
bool Refuse(frmZj& form, const std::string& request, const std::string& what, ui::Control& field) {
  Message(request + " [" + what + "] !", box::kExclamation);
  form.SetFocus(field);
  return false;
}

bool CheckFields(frmZj& form) {
  if (form.txtAcnt2(EntryBox::Number).Text().empty()) {
    return Refuse(form, "请输入", form.lblAcnt2(EntryBox::Number).Caption(),
                  form.txtAcnt2(EntryBox::Number));
  }
  if (NumberIsZero(EntryRecordId(form))) {
    return Refuse(form, "请选择", form.lblAcnt2(EntryBox::Record).Caption(),
                  form.txtAcnt2(EntryBox::Record));
  }
  if (NumberIsZero(form.txtAcnt2(EntryBox::MoneyA).Text()) &&
      NumberIsZero(form.txtAcnt2(EntryBox::MoneyB).Text())) {
    // The second amount's caption stands for both halves.
    const std::string& amount = form.lblAcnt2(EntryBox::MoneyB).Caption();
    const std::string both =
        form.lblAcnt2(EntryBox::MoneyA).Visible() ? amount + "/" + amount : amount;
    return Refuse(form, "请输入", both, form.txtAcnt2(EntryBox::MoneyB));
  }
  return EntryTextsFit(form);
}

std::optional<Commit> PrepareNew(frmZj& form) {
  if (!CheckFields(form)) return std::nullopt;
  TakeFreeNumber(form);
  return Commit{{InsertStatement(EntryInEditor(form))}, ":"};
}

std::optional<Commit> PrepareChange(frmZj& form) {
  if (!CheckFields(form)) return std::nullopt;
  return Commit{{UpdateStatement(form, EntryToWrite(form), ShownEntryId(form))}, ":"};
}

std::optional<Commit> Prepare(frmZj& form, int action) {
  if (action != kActionNew && !(CheckEntryThere(form) && CheckEntryAsShown(form))) {
    return std::nullopt;
  }
  switch (action) {
    case kActionNew:
      return PrepareNew(form);
    case kActionChange:
      return PrepareChange(form);
    case kActionDelete:
      return PrepareDelete(form);
    default:
      return PrepareCheck(form);
  }
}

void Report(const frmZj& form, const Commit& commit) {
  std::string text = "[" + form.lblAcnt2(EntryBox::Number).Caption() + commit.colon +
                     form.txtAcnt2(EntryBox::Number).Text() + "]";
  if (commit.counter_entry) {
    text += "\r\n\r\n同时，系统已经自动产生相同票号的[" + form.chkAcntName.Caption() + "凭证] 。";
  }
  Message(text, box::kInformation,
          form.lblAcntTitle.Caption() + " " + LoadText(text_id::kDone) + "！");
}

bool HasCounterEntry(const frmZj& form) {
  return CountRows("tAccountDetail", "fType1=1 and fID2=" + ShownEntryId(form)) > 0;
}

// Runs the statements. False, after saying so, when another program has brought the counter-entry
// since the ledger was looked at: the table takes no second one, for money would be booked twice.
// Other rules of the table, which an administrator may have added, are reported as what they are.
bool Run(const frmZj& form, const Commit& commit) {
  try {
    for (const std::string& statement : commit.statements) Data().Execute(statement);
    return true;
  } catch (const data::ConstraintError& error) {
    if (!commit.counter_entry || error.Broken() != data::Rule::Unique) throw;
    if (!HasCounterEntry(form)) throw;
    Message("[" + form.chkAcntName.Caption() +
                "凭证] 已经存在，可能他人刚刚审核了本帐目！\r\n\r\n没有重复产生，请核对！",
            box::kExclamation);
    return false;
  }
}

bool Holds(const basic::Column& texts, size_t row, const std::string& text) {
  if (texts.GetKind() == basic::Column::Kind::Text) return texts.TextView(row) == text;
  return texts.Text(row) == text;
}

// The row of the new entry of that number that was stored last; 0 where the filter hides it.
int32_t RowOfNewEntry(const frmZj& form, const std::string& number) {
  const basic::Column& numbers = form.Grid2.Stored(ledger_column::kNumber);
  const basic::Column& ids = form.Grid2.Stored(ledger_column::kID);
  size_t found = 0;
  double last = 0;
  for (size_t row = 0; row < ids.Size(); ++row) {
    if (ids.Number(row) <= last || !Holds(numbers, row, number)) continue;
    last = ids.Number(row);
    found = row + 1;
  }
  return static_cast<int32_t>(found);
}

// The entry that was just stored becomes the current row of the ledger, also for later reloads.
void ShowSaved(frmZj& form, const std::string& number) {
  const int32_t row = RowOfNewEntry(form, number);
  if (row == 0) return;
  form.Grid2.SetActive(form.Grid2.ActiveColumn(), row);
  form.chkAcntInit.SetTag(form.Grid2.CellText(ledger_column::kID, row));
  OfferActions(form, row);
  form.Grid2.MarkRow(row);
}

}  // namespace

void ConnectSave(frmZj& form) {
  form.cmdAcntSave.onClick = [&form] { SaveEntry(form); };
  form.cmdAcntCancel.onClick = [&form] { CancelEntry(form); };
  form.picAcnt.onEscape = [&form](bool&) {
    if (MayGiveUpEntry(form)) CancelEntry(form);
  };
}

void SaveEntry(frmZj& form) {
  const int action = ArmedAction(form);
  if (action == kActionView) return;
  const std::optional<Commit> commit = Prepare(form, action);
  if (!commit) return;
  const bool done = Run(form, *commit);
  EntryAtRest(form);
  if (done) Report(form, *commit);
  LoadLedger(form, LedgerCondition(form));
  if (action == kActionNew) {
    ShowSaved(form, form.txtAcnt2(EntryBox::Number).Text());
    ResetEntry(form);
    form.SetFocus(form.dtpAcntDate);
  }
}

}  // namespace qvzj
