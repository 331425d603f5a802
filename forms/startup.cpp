#include "forms/startup.h"

#include <string>

#include "forms/gates.h"
#include "ledger/captions.h"
#include "ledger/editor.h"
#include "ledger/filter.h"
#include "ledger/grid.h"
#include "ledger/print.h"
#include "ledger/save.h"
#include "platform/basic/number.h"
#include "platform/surroundings.h"
#include "register/detail.h"
#include "register/edit.h"
#include "register/grid.h"
#include "register/list.h"
#include "register/search.h"
#include "register/unsaved.h"
#include "screen/design.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "screen/layout.h"
#include "services/connect.h"
#include "services/context.h"
#include "services/messages.h"
#include "services/numbering.h"
#include "services/query.h"

namespace qvzj {
namespace {

void CloseForm(frmZj& form) {
  CloseData();
  Around().presenter->Closed(form);
}

void ConnectForm(frmZj& form) {
  form.onError = ReportError;
  form.onResize = [&form] { LayoutForm(form); };
  form.onUnload = [&form] { CloseForm(form); };
  form.readClipboard = [] { return Around().clipboard->Text(); };
  form.writeClipboard = [](const std::string& text) { Around().clipboard->SetText(text); };
  form.onQueryClose = [&form](bool& cancel) { cancel = !MayCloseForm(form); };
  form.cmdExit.onClick = [&form] { form.UserClose(); };
  form.cmdTitleClose.onClick = [&form] { form.UserClose(); };

  ConnectRegisterList(form);
  ConnectRegisterGrid(form);
  ConnectRegisterSearch(form);
  ConnectRegisterEdit(form);
  ConnectRegisterDetail(form);
  ConnectEditor(form);
  ConnectSave(form);
  ConnectLedgerGrid(form);
  ConnectFilter(form);
  ConnectPrint(form);
}

// Fields without a caption of their own are named to assistive technology after their labels.
template <class Names, class Fields>
void NameFields(Names& names, Fields& fields) {
  for (int i = fields.First(); i <= fields.Last(); ++i) {
    fields(i).SetAccessibleName(names(i).AccessibleName());
  }
}

void NameAllFields(frmZj& form) {
  NameFields(form.lblAcnt, form.txtAcnt);
  NameFields(form.chkSeek, form.txtSeek);
  NameFields(form.lblAcnt2, form.txtAcnt2);
  NameFields(form.lblTotal, form.txtTotal);
  NameFields(form.chkDate, form.dtpDate);
  NameFields(form.chkID, form.txtID);
  NameFields(form.chkUser, form.txtUser);
  form.txtSeekMsg.SetAccessibleName(form.fraKhType.AccessibleName());
  form.txtBrief.SetAccessibleName(form.chkBrief.AccessibleName());
  form.cboKhOrder.SetAccessibleName(form.lblKhOrder.AccessibleName());
  form.dtpAcntDate.SetAccessibleName(form.lblAcnt2(EntryBox::Date).AccessibleName());
  form.cboDoneMan.SetAccessibleName(form.lblAcnt2(EntryBox::Doneman).AccessibleName());
  form.cboHb.SetAccessibleName(form.lblHb.AccessibleName());
  form.cboHb2.SetAccessibleName(form.lblHb2.AccessibleName());
  form.txtHbRate.SetAccessibleName(form.lblHbRate.AccessibleName());
  form.cboAcntName.SetAccessibleName(form.chkAcntName.AccessibleName());
  form.txtKhMemo.SetAccessibleName(form.lblKhMemo.AccessibleName());
  form.Grid1.SetAccessibleName(form.SSTab1.TabCaption(RegisterTab::List));
  form.Grid2.SetAccessibleName(form.SSTab2.TabCaption(LedgerTab::Both));
}

void CaptionForm(frmZj& form) {
  SetCaptions(form);
  NameAllFields(form);
  form.fraKhType.SetVisible(form.mode == kCustomers);
  LayoutForm(form);
}

void ChooseTemplate(frmZj& form) {
  const int16_t series = basic::AddInt16(form.runMode, 51);
  form.numberTemplate.clear();
  if (CountRows("tJXC_InvSet", "fSetNo=" + std::to_string(series)) > 0) {
    form.numberTemplate = form._getInvSet(series);
  }
  if (form.numberTemplate.empty()) form.numberTemplate = kDefaultTemplate;
}

void SetDatesToToday(frmZj& form) {
  const basic::Date today = Around().clock->Today();
  form.dtpAcntDate.SetValue(today);
  for (int i = form.dtpDate.First(); i <= form.dtpDate.Last(); ++i) {
    form.dtpDate(i).SetValue(today);
  }
}

void FillCurrencies(frmZj& form) {
  data::Recordset rows =
      Data().Open("Select MoneyCode,0 as aa from Moneys Order By MoneyType desc");
  std::vector<std::string> codes;
  for (; !rows.Eof(); rows.MoveNext()) codes.push_back(rows.Text(0));
  form.cboHb.SetItems(codes);
  form.cboHb2.SetItems(std::move(codes));
  form.cboHb2.SetListIndex(-1);
}

void FillStaff(frmZj& form) {
  const std::string source = Around().settings->Get("Tessary", "qv2000", "JbrFrom", "0");
  form.getListJBR(basic::ToInt16(basic::Val(source)));
}

// Older databases lack the link between a customer entry and its money account.
void UpgradeLedger() {
  if (CountRows("tAccountDetail", "fID2>0") != -1) return;
  Data().Execute("AlTER TABLE tAccountDetail add Column [fID2] long");
}

void StartUp(frmZj& form) {
  ResetForm(form);
  ConnectForm(form);
  CaptionForm(form);
  OpenData();
  ChooseTemplate(form);
  form.cboKhOrder.SetListIndex(0);
  WriteAmountHeaders(form);
  SetDatesToToday(form);
  FillCurrencies(form);
  FillStaff(form);
  if (form.mode == kCustomers) {
    UpgradeLedger();
    form.getListAcnt();
  }
  ArrangeEditor(form);
  ApplyGates(form);
  LoadRegister(form, form.registerCondition);
}

}  // namespace

void LoadForm(frmZj& form) {
  if (form.Loaded()) return;
  StartUp(form);
  form.title = Shared().Title;
  form.SetLoaded(true);
}

}  // namespace qvzj
