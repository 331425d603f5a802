#include "ledger/captions.h"

#include "platform/basic/text.h"
#include "screen/frmZj.h"
#include "services/strings.h"

namespace qvzj {
namespace {

std::string S(int16_t id) { return LoadText(id); }

/// The noun that the mode's captions are made of: customer or account.
std::string ModeWord(const frmZj& form) { return S(form.mode == kCustomers ? 5 : 6); }

/// "按[…]排序": order by what stands in the brackets.
std::string OrderItem(const std::string& by) { return S(50) + "[" + by + "]" + S(20); }

void CaptionButtons(frmZj& form) {
  const std::string entry = S(7);
  form.cmdKhSeek.SetCaption(S(23) + "(&S)");
  form.cmdKhMemo.SetCaption(S(21) + "(&M)");
  form.cmdKhPrint.SetCaption(S(27) + "(&P)");
  form.cmdAction(0).SetCaption(entry + "查看(&V)");
  form.cmdAction(1).SetCaption(entry + S(24) + "(&N)");
  form.cmdAction(2).SetCaption(entry + S(25) + "(&E)");
  form.cmdAction(3).SetCaption(entry + S(26) + "(&D)");
  form.cmdAction(4).SetCaption(entry + S(63) + "(&K)");
  form.cmdPrint.SetCaption(entry + S(27) + "(&P)");
  form.cmdAcntRefresh.SetCaption(S(30) + "(&R)");
  form.cmdExit.SetCaption(S(22) + ">>");
  form.cmdSave.SetCaption(S(16) + "(&S)");
  form.cmdAcntSave.SetCaption(form.cmdSave.Caption());
  form.cmdCancel.SetCaption(S(29) + ">>");
  form.cmdKhCancel.SetCaption(form.cmdCancel.Caption());
  form.cmdAcntCancel.SetCaption(form.cmdCancel.Caption());
  form.cboKhOrder.SetItems({OrderItem(S(51))});
}

void CaptionAccountsMode(frmZj& form) {
  form.SetCaption(S(102));
  form.SSTab2.SetTabCaption(0, S(48));
  form.SSTab2.SetTabCaption(1, S(46));
  form.SSTab2.SetTabCaption(2, S(47));
  form.lblTotal(0).SetCaption(S(45) + ":");
  form.lblTotal(1).SetCaption(S(46) + S(8) + ":");
  form.lblTotal(4).SetCaption(S(47) + S(8) + ":");
  form.lblTotal(5).SetCaption(S(6) + S(9) + ":");
  form.lblAcnt2(3).SetCaption(S(45));
}

void CaptionCustomersMode(frmZj& form) {
  form.SetCaption(S(101));
  form.SSTab1.SetTabCaption(2, S(31));
  form.SSTab2.SetTabCaption(0, S(14));
  form.SSTab2.SetTabCaption(1, S(10) + "/" + S(12));
  form.SSTab2.SetTabCaption(2, S(11) + "/" + S(13));
  form.lblTotal(0).SetCaption(S(10) + S(8) + ":");
  form.lblTotal(1).SetCaption(S(12) + S(8) + ":");
  form.lblTotal(2).SetCaption(S(10) + S(9) + ":");
  form.lblTotal(3).SetCaption(S(11) + S(8) + ":");
  form.lblTotal(4).SetCaption(S(13) + S(8) + ":");
  form.lblTotal(5).SetCaption(S(11) + S(9) + ":");
}

void CaptionRegister(frmZj& form) {
  const std::string word = ModeWord(form);
  for (int i = 1; i <= 3; ++i) {
    form.mnuKhManage(i).SetCaption(word + S(static_cast<int16_t>(23 + i)));
  }
  form.mnuKhContact.SetCaption(word + S(17) + "(&T)");
  form.SSTab1.SetTabCaption(0, word + S(19));
  form.SSTab1.SetTabCaption(1, word + S(42));
  form.lblKhMemo.SetCaption(word + S(21) + ":");
  form.cmdManage.SetCaption(word + "(&A)");
  form.lblKhOrder.SetCaption(S(20) + ":");
  form.OptSelect(0).SetCaption(S(32) + word);
  form.OptSelect(1).SetCaption(S(33) + word);
  form.OptSelect(2).SetCaption(S(34) + word);
}

void CaptionFilter(frmZj& form) {
  form.chkDate(0).SetCaption(S(35) + ":");
  form.chkDate(1).SetCaption(S(36) + ":");
  form.chkVerify(0).SetCaption(S(40));
  form.chkVerify(1).SetCaption(S(41));
  form.chkID(0).SetCaption(S(37) + ":");
  form.chkID(1).SetCaption(S(38) + ":");
  form.chkID(2).SetCaption(S(39) + ":");
  form.chkBrief.SetCaption(S(53) + ":");
}

void CaptionEditor(frmZj& form) {
  const bool customers = form.mode == kCustomers;
  form.optType2(1).SetCaption(S(46));
  form.optType2(2).SetCaption(S(47));
  form.chkAcntInit.SetCaption(S(45));
  form.lblAcnt2(0).SetCaption(S(65));
  form.lblAcnt2(1).SetCaption(S(37));
  form.lblAcnt2(2).SetCaption(ModeWord(form) + (customers ? S(55) : ""));
  form.lblAcnt2(4).SetCaption(form.optType2(1).Caption() + S(8));
  form.lblAcnt2(6).SetCaption(S(53));
  form.lblAcnt2(7).SetCaption(S(38));
  form.lblAcnt2(8).SetCaption(S(39));
  form.lblAcnt2(9).SetCaption(S(61));
  form.lblAcnt2(10).SetCaption(S(60));
  form.lblAcnt2(11).SetCaption(S(62));
}

void CaptionRecordPage(frmZj& form) {
  form.lblAcnt(0).SetCaption(S(51));
  form.lblAcnt(1).SetCaption(form.lblAcnt2(2).Caption());
  form.lblAcnt(4).SetCaption(S(56));
  form.lblAcnt(5).SetCaption(S(53));
  form.lblAcnt(6).SetCaption(S(43));
  form.lblAcnt(7).SetCaption(S(44));
  form.lblAcnt(8).SetCaption(S(57));
  form.lblAcnt(9).SetCaption(S(58));
  form.lblAcnt(10).SetCaption(S(59));
}

/// One column a label under the label's caption, and hidden ones behind them.
void SetUpGrid(ui::Grid& grid, const ui::Array<ui::Label>& labels, int hidden) {
  grid.SetColumnCount(labels.Count() + hidden);
  for (int i = 0; i < labels.Count(); ++i) grid.SetHeader(i + 1, labels(i).Caption());
  for (int i = 1; i <= hidden; ++i) grid.SetColumnHidden(labels.Count() + i, true);
}

}  // namespace

void SetCaptions(frmZj& form) {
  CaptionButtons(form);
  if (form.mode == kCustomers) {
    CaptionCustomersMode(form);
  } else {
    CaptionAccountsMode(form);
  }
  form.cboKhOrder.AddItem(OrderItem(ModeWord(form)));
  CaptionRegister(form);
  CaptionFilter(form);
  CaptionEditor(form);
  CaptionRecordPage(form);
  SetUpGrid(form.Grid1, form.lblAcnt, 2);
  SetUpGrid(form.Grid2, form.lblAcnt2, 6);
}

}  // namespace qvzj
