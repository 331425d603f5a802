#include "register/edit.h"

#include <optional>
#include <string>

#include "ledger/captions.h"
#include "ledger/fields.h"
#include "ledger/unchanged.h"
#include "ledger/unsaved.h"
#include "register/grid.h"
#include "register/list.h"
#include "register/table.h"
#include "register/unsaved.h"
#include "screen/current.h"
#include "screen/design.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "screen/keys.h"
#include "services/connect.h"
#include "services/messages.h"
#include "services/query.h"
#include "services/strings.h"
#include "services/text_ids.h"

namespace qvzj {
namespace {

// What an action leaves to be done: one statement, and the record's name for the report.
struct Commit {
  std::string statement;
  std::string name;
};

void EmptyRecord(frmZj& form) {
  for (int i = 0; i < form.txtAcnt.Count(); ++i) form.txtAcnt(i).SetText("");
}

void LockRecord(frmZj& form, bool locked) {
  for (int i = 0; i < form.txtAcnt.Count(); ++i) form.txtAcnt(i).SetLocked(locked);
}

void ShowRecordButtons(frmZj& form, bool visible) {
  form.cmdKhSave.SetVisible(visible);
  form.cmdKhCancel.SetVisible(visible);
}

// The boxes show the register's row again, or nothing where there is none.
void ShowRecord(frmZj& form) {
  if (form.Grid1.ActiveRow() > 0) {
    ShowRegisterRow(form, form.Grid1.ActiveRow());
  } else {
    EmptyRecord(form);
  }
}

// Nothing is armed: a second press cannot repeat what was done.
void DisarmRecord(frmZj& form) {
  ShowRecordButtons(form, false);
  LockRecord(form, true);
}

std::string TypeCode(const frmZj& form) {
  for (int type = 1; type <= 3; ++type) {
    if (form.optKhType(type).Selected()) return std::to_string(type);
  }
  return "0";
}

bool Confirmed(const std::string& action, const std::string& name) {
  return Message("确认：" + action + " " + name + " ?", box::kQuestionOkCancel) == Answer::Ok;
}

// Code and name are required; the other boxes may stay empty.
bool RequiredAreFilled(const frmZj& form) {
  for (int i = 0; i <= 1; ++i) {
    if (!form.txtAcnt(i).Text().empty()) continue;
    Message("请输入[" + form.lblAcnt(i).Caption() + "] !", box::kExclamation);
    return false;
  }
  return true;
}

// A change or delete without a record would report what it has not done.
bool RecordIsChosen(const frmZj& form) {
  if (HasCurrentRecord(form)) return true;
  Message("请选择[" + form.lblAcnt(RecordBox::Name).Caption() + "] !", box::kExclamation);
  return false;
}

std::string InsertStatement(const frmZj& form) {
  std::string columns;
  std::string values;
  for (int i = 0; i < form.txtAcnt.Count(); ++i) {
    columns += form.lblAcnt(i).Tag() + ",";
    values += "'" + form.txtAcnt(i).Text() + "',";
  }
  const std::string table = RegisterTable(form);
  const std::string id = std::to_string(NewRecordId(table));
  if (form.mode == kAccounts) {
    return "Insert Into " + table + " (" + columns + "fID) Values (" + values + id + ")";
  }
  return "Insert Into " + table + " (" + columns + "fID,fType0) Values (" + values + id + "," +
         TypeCode(form) + ")";
}

std::string UpdateStatement(const frmZj& form) {
  std::string sets;
  for (int i = 0; i < form.txtAcnt.Count(); ++i) {
    if (i > 0) sets += ",";
    sets += form.lblAcnt(i).Tag() + "='" + form.txtAcnt(i).Text() + "'";
  }
  if (form.mode != kAccounts) sets += ",fType0=" + TypeCode(form);
  return "Update " + RegisterTable(form) + " Set " + sets + " Where fID=" + CurrentRecordId(form);
}

// A quote would break the statement that the box's text is put into.
bool TextsFit(const frmZj& form) {
  for (int i = 0; i < form.txtAcnt.Count(); ++i) {
    if (!NoQuote(form.txtAcnt(i).Text())) return false;
  }
  return true;
}

bool RecordUnchanged(const frmZj& form) {
  std::string columns;
  for (int i = 0; i < form.lblAcnt.Count(); ++i) columns += "a." + form.lblAcnt(i).Tag() + ",";
  const std::string statement = "select " + columns + "a.fType0 from " + RegisterTable(form) +
                                " a Where a.fID=" + CurrentRecordId(form);
  return data::TextsOfRow(Data().Open(statement)) == form.recordRow;
}

// A record that somebody else has changed since it was shown is listed and shown as it is now, and
// the action is given up.
bool RecordIsAsShown(frmZj& form) {
  if (RecordUnchanged(form)) return true;
  DisarmRecord(form);
  LoadRegister(form, form.registerCondition);
  ReportChangedMeanwhile();
  return false;
}

std::optional<Commit> Add(const frmZj& form) {
  const std::string name = form.txtAcnt(RecordBox::Name).Text();
  if (!RequiredAreFilled(form) || !TextsFit(form) || !Confirmed("新增", name)) return {};
  return Commit{InsertStatement(form), name};
}

std::optional<Commit> Change(frmZj& form) {
  const std::string name = form.lblKhName.Caption();
  if (!RequiredAreFilled(form) || !TextsFit(form) || !RecordIsChosen(form)) return {};
  if (!RecordIsAsShown(form) || !Confirmed("修改", name)) return {};
  return Commit{UpdateStatement(form), name};
}

// -1 is the count of more rows than it can say too, and of a table that the suite does not have.
bool AnyRow(const char* table, const std::string& condition) {
  const int16_t rows = CountRows(table, condition);
  if (rows >= 0) return rows > 0;
  if (CountRows(table, "1=2") != 0) return false;
  return FirstValue(std::string("select count(*) from ") + table + " Where " + condition) != "0";
}

// What else in the suite still refers to the record, as the refusal says it; "" when nothing does.
// Money accounts are asked about the customers' documents too.
std::string WhatRefersTo(const frmZj& form, const std::string& id) {
  const auto rows = AnyRow;
  // -1 is also the answer for more entries than the count can say.
  if (CountRows("tAccountDetail", "fCompID=" + id + " And fType1=" + std::to_string(form.mode)) !=
      0) {
    return "：已有帐目存在，必须先删除所有相关帐目，才能够" + form.cmdKhSave.Caption() + "！";
  }
  if (rows("tTaskList", "taskID=" + id + " And fType=1")) {
    return "：已有[拜访记录]存在，必须先删除所有相关记录！";
  }
  if (rows("tJXC_CkDj01", "fKhID=" + id)) {
    return "：已有[仓库出入记录]存在，必须先删除所有相关记录！";
  }
  if (rows("tJXC_CkHt01", "fKhID=" + id)) {
    return "：已有[合同订单记录]存在，必须先删除所有相关记录！";
  }
  return "";
}

std::optional<Commit> Delete(frmZj& form) {
  if (!RecordIsChosen(form) || !RecordIsAsShown(form)) return {};
  const std::string id = CurrentRecordId(form);
  const std::string name = form.lblKhName.Caption();
  const std::string refusal = WhatRefersTo(form, id);
  if (!refusal.empty()) {
    Message(name + refusal, box::kExclamation);
    return {};
  }
  if (!Confirmed("删除", name)) return {};
  return Commit{"Delete from " + RegisterTable(form) + " Where fID=" + id, name};
}

std::optional<Commit> Prepare(frmZj& form) {
  switch (ArmedRecordAction(form)) {
    case RecordAction::Add:
      return Add(form);
    case RecordAction::Change:
      return Change(form);
    case RecordAction::Delete:
      return Delete(form);
    default:
      // The empty statement is refused by the connection and reported as an error.
      return Commit{};
  }
}

// Arms `action` (RecordAction) on the record page.
void ArmRecordAction(frmZj& form, int action) {
  if (!MayGiveUpRecord(form)) return;
  // An action that was armed before may have emptied or changed the boxes.
  if (form.cmdKhSave.Visible()) {
    DisarmRecord(form);
    ShowRecord(form);
  }
  form.cmdKhSave.SetTag(std::to_string(action));
  form.cmdKhSave.SetCaption(form.mnuKhManage(action).Caption());
  ShowRecordButtons(form, true);
  if (action == RecordAction::Add) EmptyRecord(form);
  RecordAtRest(form);
  LockRecord(form, action == RecordAction::Delete);
  form.SSTab1.SetTab(RegisterTab::Record);
  form.SetFocus(form.txtAcnt(RecordBox::Code));
}

void SaveRecord(frmZj& form) {
  const std::optional<Commit> commit = Prepare(form);
  if (!commit) return;
  Data().Execute(commit->statement);
  Message(commit->name + ":" + form.cmdKhSave.Caption() + LoadText(text_id::kDone) + "！",
          box::kInformation);
  DisarmRecord(form);
  // A record that is gone must not stay current where no other takes its place.
  if (ArmedRecordAction(form) == RecordAction::Delete) {
    ForgetRecord(form);
    RecordOfEntryAtRest(form);
    CaptionNoRecord(form);
  }
  LoadRegister(form, form.registerCondition);
}

void LeaveRecordEditing(frmZj& form) {
  DisarmRecord(form);
  ShowRecord(form);
  form.SSTab1.SetTab(RegisterTab::List);
  form.SetFocus(form.Grid1);
}

}  // namespace

void ConnectRegisterEdit(frmZj& form) {
  form.cmdManage.onMouseDown = [&form](int32_t x, int32_t) {
    const ui::Bounds& button = form.cmdManage.GetBounds();
    const ui::Bounds& frame = form.fraOrder.GetBounds();
    form.PopUp(form.mnuKh, frame.left + button.left + x, frame.top + button.top + button.height);
  };
  for (int i = form.mnuKhManage.First(); i <= form.mnuKhManage.Last(); ++i) {
    form.mnuKhManage(i).onClick = [&form, i] { ArmRecordAction(form, i); };
  }
  form.cmdKhSave.onClick = [&form] { SaveRecord(form); };
  form.cmdKhCancel.onClick = [&form] { LeaveRecordEditing(form); };
  form.SSTab1.onEscape = [&form](bool& used) {
    used = form.cmdKhCancel.OnScreen();
    if (used && MayGiveUpRecord(form)) LeaveRecordEditing(form);
  };
  for (int i = 0; i < form.txtAcnt.Count(); ++i) ConnectKeys(form.txtAcnt(i));
  for (int i = 0; i < form.optKhType.Count(); ++i) EnterWalksOn(form.optKhType(i));
}

}  // namespace qvzj
