#include "screen/design.h"

#include <array>

#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"

namespace qvzj {
namespace {

// Register columns that the record page edits, in the order of its boxes, with the most bytes of
// the Chinese code page that each table column holds (0: the column has no limit).
struct RegisterField {
  const char* column;
  int16_t bytes;
};
constexpr std::array<RegisterField, 11> kRegisterFields = {{{"CompCode", 20},
                                                            {"compname", 0},
                                                            {"name", 20},
                                                            {"fBank", 50},
                                                            {"fAcntID", 30},
                                                            {"others", 50},
                                                            {"province", 20},
                                                            {"cityname", 20},
                                                            {"postcode", 10},
                                                            {"telphone", 40},
                                                            {"fax", 40}}};
constexpr std::array<const char*, 7> kSearchColumns = {
    "CompCode", "compname", "name", "province", "cityname", "postcode", "telphone"};

constexpr std::array<int32_t, 13> kRegisterWidths = {1000, 2400, 1000, 1800, 1800, 1800, 900,
                                                     900,  900,  1500, 1500, 600,  600};
constexpr std::array<int32_t, 18> kLedgerWidths = {1170, 1560, 2040, 1395, 1395, 1395,
                                                   1950, 1890, 1890, 900,  900,  900,
                                                   800,  600,  600,  800,  800,  800};

// A field that fails its check must not keep the user from giving up or leaving.
void DesignWaysOut(frmZj& form) {
  for (ui::Button* button : {&form.cmdExit, &form.cmdTitleClose, &form.cmdAcntCancel,
                             &form.cmdKhCancel, &form.cmdCancel}) {
    button->SetCausesValidation(false);
  }
}

void DesignRegister(frmZj& form) {
  form.lblKhName.SetHeading(true);
  form.fraSeekKh.SetOutlined(false);
  form.mnuSep1.SetCaption("-");
  for (int i = 0; i < static_cast<int>(kRegisterFields.size()); ++i) {
    const RegisterField& field = kRegisterFields[static_cast<size_t>(i)];
    form.lblAcnt(i).SetTag(field.column);
    form.txtAcnt(i).SetMaxLength(field.bytes);
  }
  for (int i = 0; i < form.chkSeek.Count(); ++i) {
    form.chkSeek(i).SetTag(kSearchColumns[static_cast<size_t>(i)]);
  }
  form.txtSeekMsg.SetMultiLine(true);
  form.txtSeekMsg.SetLocked(true);
  form.txtSeekMsg.SetTabStop(false);
  form.txtKhMemo.SetMultiLine(true);
  form.Grid1.SetColumnCount(static_cast<int32_t>(kRegisterWidths.size()));
  for (int32_t column = 1; column <= form.Grid1.ColumnCount(); ++column) {
    form.Grid1.SetColumnWidth(column, kRegisterWidths[static_cast<size_t>(column - 1)]);
  }
}

void DesignEditor(frmZj& form) {
  form.lblAcntTitle.SetHeading(true);
  form.fraType2.SetOutlined(false);
  const std::array columns = {"fBrief", "fInvID", "fOrderID", "fUser"};
  const std::array<int16_t, 4> bytes = {50, 20, 20, 20};
  for (int i = 6; i <= 9; ++i) {
    form.lblAcnt2(i).SetTag(columns[static_cast<size_t>(i - 6)]);
    form.txtAcnt2(i).SetMaxLength(bytes[static_cast<size_t>(i - 6)]);
  }
  form.txtAcnt2(EntryBox::Number).SetMaxLength(20);
  form.txtAcnt2(EntryBox::MoneyA).SetRightAligned(true);
  form.txtAcnt2(EntryBox::MoneyB).SetRightAligned(true);
  // The running balance is only to be read: it is no part of the entry.
  form.txtAcnt2(EntryBox::Balance).SetRightAligned(true);
  form.txtAcnt2(EntryBox::Balance).SetLocked(true);
  form.txtAcnt2(EntryBox::Balance).SetTabStop(false);
  form.txtAcnt2(EntryBox::Record).SetTabStop(false);  // the register chooses it
  form.txtHbRate.SetMaxLength(20);
  form.txtHbRate.SetRightAligned(true);
  form.cboDoneMan.SetEditable(true);
  form.cboDoneMan.SetMaxLength(20);
  form.cboAcntName.SetShownLength(40);
  form.cboAcntName.SetClearable(true);
}

void DesignLedger(frmZj& form) {
  form.cmdTitleClose.SetTabStop(false);
  for (int i = 0; i < form.txtTotal.Count(); ++i) {
    form.txtTotal(i).SetLocked(true);
    form.txtTotal(i).SetRightAligned(true);
    form.txtTotal(i).SetTabStop(false);
  }
  form.cboHb2.SetClearable(true);
  form.Grid2.SetColumnCount(static_cast<int32_t>(kLedgerWidths.size()));
  for (int32_t column = 1; column <= form.Grid2.ColumnCount(); ++column) {
    form.Grid2.SetColumnWidth(column, kLedgerWidths[static_cast<size_t>(column - 1)]);
  }
  for (int32_t amount = 4; amount <= 6; ++amount) form.Grid2.SetColumnDecimals(amount, 2);
  // The third amount is a running balance, which does not add up.
  for (int32_t amount = 4; amount <= 5; ++amount) form.Grid2.SetColumnSummed(amount, true);
}

// Numbers controls one after another in tab order.
class TabOrder {
 public:
  template <class... Controls>
  void Then(Controls&... controls) {
    (controls.SetTabIndex(next_++), ...);
  }
  template <class T>
  void ThenAll(ui::Array<T>& controls) {
    for (int i = controls.First(); i <= controls.Last(); ++i) Then(controls(i));
  }
  // a(0), b(0), a(1), b(1), …: each check box before the field it switches on.
  template <class A, class B>
  void ThenPairs(ui::Array<A>& a, ui::Array<B>& b) {
    for (int i = a.First(); i <= a.Last(); ++i) Then(a(i), b(i));
  }

 private:
  int next_ = 0;
};

void DesignTabOrder(frmZj& form) {
  TabOrder order;
  order.Then(form.cboKhOrder, form.cmdManage, form.cmdKhMemo, form.cmdKhPrint, form.SSTab1,
             form.Grid1);
  order.ThenAll(form.txtAcnt);
  order.ThenAll(form.optKhType);
  order.Then(form.cmdKhSave, form.cmdKhCancel);
  order.ThenPairs(form.chkSeek, form.txtSeek);
  order.ThenAll(form.optSeek);
  order.Then(form.chkSeek2, form.cmdKhSeek, form.txtSeekMsg);

  order.ThenAll(form.cmdAction);
  order.Then(form.cmdPrint, form.cmdExit, form.cmdTitleClose);
  order.Then(form.dtpAcntDate, form.txtAcnt2(EntryBox::Number), form.txtAcnt2(EntryBox::Record));
  order.ThenAll(form.optType2);
  order.Then(form.chkAcntInit, form.txtAcnt2(EntryBox::MoneyA), form.txtAcnt2(EntryBox::MoneyB),
             form.txtAcnt2(EntryBox::Balance), form.cboHb, form.txtHbRate, form.chkAcntName,
             form.cboAcntName);
  order.Then(form.txtAcnt2(EntryBox::Brief), form.txtAcnt2(EntryBox::InvID),
             form.txtAcnt2(EntryBox::OrderID), form.txtAcnt2(EntryBox::User), form.cboDoneMan,
             form.cmdAcntSave, form.cmdAcntCancel);

  order.Then(form.SSTab2, form.Grid2);
  order.ThenAll(form.txtTotal);
  order.Then(form.cboHb2);
  order.ThenAll(form.OptSelect);
  order.ThenPairs(form.chkDate, form.dtpDate);
  order.ThenPairs(form.chkID, form.txtID);
  order.Then(form.chkBrief, form.txtBrief);
  order.ThenPairs(form.chkUser, form.txtUser);
  order.ThenAll(form.chkVerify);
  order.Then(form.cmdAcntRefresh, form.txtKhMemo, form.cmdSave, form.cmdCancel);
}

void ResetRegister(frmZj& form) {
  form.registerCondition.clear();
  ForgetRecord(form);
  form.SSTab1.SetTab(RegisterTab::List);
  form.Grid1.SetRowCount(0);
  form.Grid1.SetSortKey(0, ui::SortOrder::None);
  for (int i = 0; i < form.txtAcnt.Count(); ++i) form.txtAcnt(i).SetLocked(true);
  form.optKhType(CustomerType::Both).Select();
  form.cmdKhSave.SetTag("");
  form.cmdKhSave.SetVisible(false);
  form.cmdKhCancel.SetVisible(false);
  for (int i = 0; i < form.chkSeek.Count(); ++i) {
    form.chkSeek(i).SetValue(0);
    form.txtSeek(i).SetText("");
  }
  form.optSeek(0).Select();
  form.chkSeek2.SetValue(0);
  form.fraKhMemo.SetVisible(false);
  form.cmdSave.SetEnabled(false);
}

void ResetLedger(frmZj& form) {
  form.currentAction = kActionView;
  form.SSTab2.SetTab(LedgerTab::Both);
  form.Grid2.SetRowCount(0);
  form.Grid2.SetSortKey(0, ui::SortOrder::None);
  form.picAcnt.SetVisible(false);
  form.lblAcntTitle.SetCaption("");
  form.entryShown.clear();
  form.entryStored.clear();
  form.entryRow.clear();
  form.proposedNumber.clear();
  form.lblNumberUse.SetVisible(false);
  form.lblAcnt2(EntryBox::Checker).SetVisible(true);
  form.entryAtRest.clear();
  form.chkAcntInit.SetTag("0");
  form.cboAcntName.SetTag("0");
  form.cmdAcntSave.SetTag("0");
  form.cmdAcntCancel.SetTag("");
  for (int i = form.txtAcnt2.First(); i <= form.txtAcnt2.Last(); ++i) form.txtAcnt2(i).SetText("");
  form.txtAcnt2(EntryBox::Record).SetTag("0");
  for (int i = 0; i < form.cmdAction.Count(); ++i) form.cmdAction(i).SetEnabled(true);
  form.optType2(Direction::In).Select();
  form.lblSHR.SetCaption("");
  form.lblSHR.SetVisible(false);
  form.fraSHR.SetVisible(false);
  for (int i = 0; i < form.txtTotal.Count(); ++i) form.txtTotal(i).SetText("0.00");
}

void ResetFilter(frmZj& form) {
  form.OptSelect(Selection::Single).Select();
  for (int i = 0; i < form.chkVerify.Count(); ++i) form.chkVerify(i).SetValue(1);
  for (int i = 0; i < form.chkDate.Count(); ++i) form.chkDate(i).SetValue(0);
  for (int i = 0; i < form.chkID.Count(); ++i) {
    form.chkID(i).SetValue(0);
    form.txtID(i).SetText("");
    form.chkUser(i).SetValue(0);
    form.txtUser(i).SetText("");
  }
  form.chkBrief.SetValue(0);
  form.txtBrief.SetText("");
  form.cboHb2.SetListIndex(-1);
}

}  // namespace

void frmZj::Design() {
  DesignRegister(*this);
  DesignEditor(*this);
  DesignLedger(*this);
  DesignTabOrder(*this);
  DesignWaysOut(*this);
  ResetForm(*this);
  // A size that shows every column of interest on a usual screen; the window may change it.
  SetSize(15000, 10200);
}

void ForgetRecord(frmZj& form) {
  if (EntryRecordId(form) == CurrentRecordId(form)) {
    form.txtAcnt2(EntryBox::Record).SetText("");
    form.txtAcnt2(EntryBox::Record).SetTag("0");
  }
  form.lblKhName.SetCaption("");
  form.lblKhName.SetTag("0");
  for (int i = 0; i < form.txtAcnt.Count(); ++i) form.txtAcnt(i).SetText("");
  form.txtKhMemo.SetText("");
  form.recordRow.clear();
  form.detailRow.clear();
}

void ResetForm(frmZj& form) {
  ResetRegister(form);
  ResetLedger(form);
  ResetFilter(form);
}

}  // namespace qvzj
