#include "register/detail.h"

#include <utility>

#include "ledger/unchanged.h"
#include "platform/basic/number.h"
#include "platform/surroundings.h"
#include "register/table.h"
#include "register/unsaved.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/layout.h"
#include "services/connect.h"
#include "services/context.h"
#include "services/form_texts.h"
#include "services/messages.h"
#include "services/query.h"

namespace qvzj {
namespace {

void HideDetail(frmZj& form) {
  form.fraKhMemo.SetVisible(false);
  LayoutForm(form);
  // A window too small to be arranged anew still gives the ledger its place back.
  LayoutLedgerSide(form);
}

// The frame's button and Esc lose nothing unasked; the cancel button says that it does.
void LeaveDetail(frmZj& form) {
  if (MayGiveUpDetail(form)) HideDetail(form);
}

void ToggleDetail(frmZj& form) {
  if (form.fraKhMemo.Visible()) return LeaveDetail(form);
  LoadRegisterDetail(form, CurrentRecordId(form));
  form.fraKhMemo.SetVisible(true);
  LayoutLedgerSide(form);
  form.Grid2.ShowActive();  // the frame has taken the room of some rows
  form.SetFocus(form.txtKhMemo);
}

void OfferNoSave(frmZj& form) {
  form.cmdSave.SetEnabled(false, LoadText(form_text::kDetailUnchanged));
}

TaskCall ContactOf(const frmZj& form) {
  const Context& shared = Shared();
  TaskCall call;
  call.language = shared.Language;
  call.access = {shared.UserPath, shared.Password, shared.SQLData, shared.UserID, shared.Default};
  call.comp_name = shared.CompName;
  call.user_name = shared.UserName;
  call.my_power = shared.myPower;
  call.zg_name = shared.ZgName;
  call.date = Around().clock->Today();
  call.customer_name = form.lblKhName.Caption();
  call.customer_id = basic::ToInt32(basic::Val(CurrentRecordId(form)));
  return call;
}

void OpenContact(const frmZj& form) {
  if (!HasCurrentRecord(form)) return;
  if (!Around().task) {
    Message(LoadText(form_text::kNoTaskComponent), box::kExclamation);
    return;
  }
  Around().task->Open(ContactOf(form));
}

}  // namespace

data::RowTexts ReadRegisterDetail(const frmZj& form, const std::string& id) {
  if (!basic::IsNumeric(id) || basic::Val(id) == 0) return {};
  return data::TextsOfRow(
      Data().Open("select a.detail from " + RegisterTable(form) + " a Where a.fID=" + id));
}

void ShowRegisterDetail(frmZj& form, data::RowTexts&& detail) {
  form.txtKhMemo.SetText(detail.empty() ? "" : detail.front().value_or(""));
  form.detailRow = std::move(detail);
  DetailAtRest(form);
}

void LoadRegisterDetail(frmZj& form, const std::string& id) {
  ShowRegisterDetail(form, ReadRegisterDetail(form, id));
}

void SaveRegisterDetail(frmZj& form) {
  const std::string id = CurrentRecordId(form);
  if (basic::Val(id) == 0) return;
  data::RowTexts stored = ReadRegisterDetail(form, id);
  if (stored != form.detailRow) {
    ShowRegisterDetail(form, std::move(stored));
    ReportChangedMeanwhile();
    return;
  }
  Data().Execute("Update " + RegisterTable(form) + " set detail='" + form.txtKhMemo.Text() +
                 "' Where fID=" + id);
  form.detailRow = {form.txtKhMemo.Text()};
  Message(form.lblKhMemo.Caption() + " [" + form.lblKhName.Caption() + "] 修改完毕 ！",
          box::kPlain);
}

void ConnectRegisterDetail(frmZj& form) {
  OfferNoSave(form);
  form.cmdKhMemo.onClick = [&form] { ToggleDetail(form); };
  form.cmdCancel.onClick = [&form] { HideDetail(form); };
  form.txtKhMemo.onChange = [&form] { form.cmdSave.SetEnabled(true); };
  form.cmdSave.onClick = [&form] {
    if (!HasCurrentRecord(form) || !NoQuote(form.txtKhMemo.Text())) return;
    SaveRegisterDetail(form);
    DetailAtRest(form);
    OfferNoSave(form);
  };
  form.fraKhMemo.onEscape = [&form](bool&) { LeaveDetail(form); };
  form.mnuKhContact.onClick = [&form] { OpenContact(form); };
}

}  // namespace qvzj
