#include "screen/design.h"

#include <array>

#include "screen/frmZj.h"

namespace qvzj {
namespace {

// Register columns that the record page edits, in the order of its boxes, with the most bytes of
// the Chinese code page that each table column holds (0: the column has no limit).
struct RegisterField {
  const char* column;
  const char* caption;
  int16_t bytes;
};
constexpr std::array<RegisterField, 11> kRegisterFields = {{{"CompCode", "编号", 20},
                                                            {"compname", "客户单位", 0},
                                                            {"name", "联系人", 20},
                                                            {"fBank", "开户行", 50},
                                                            {"fAcntID", "帐号", 30},
                                                            {"others", "摘要", 50},
                                                            {"province", "地区", 20},
                                                            {"cityname", "城市", 20},
                                                            {"postcode", "邮编", 10},
                                                            {"telphone", "电话", 40},
                                                            {"fax", "传真", 40}}};

struct SearchField {
  const char* column;
  const char* simplified;
  const char* traditional;
};
constexpr std::array<SearchField, 7> kSearchFields = {{{"CompCode", "客户编号:", "客戶編號:"},
                                                       {"compname", "客户单位:", "客戶單位:"},
                                                       {"name", "联系人:", "聯系人:"},
                                                       {"province", "所属地区:", "所屬地區:"},
                                                       {"cityname", "所属城市:", "所屬城市:"},
                                                       {"postcode", "邮编:", "郵編:"},
                                                       {"telphone", "电话:", "電話:"}}};

constexpr std::array<int32_t, 13> kRegisterWidths = {1000, 2400, 1000, 1800, 1800, 1800, 900,
                                                     900,  900,  1500, 1500, 600,  600};
constexpr std::array<int32_t, 18> kLedgerWidths = {1170, 1560, 2040, 1395, 1395, 1395,
                                                   1950, 1890, 1890, 900,  900,  900,
                                                   800,  600,  600,  800,  800,  800};

/// A field that fails its check must not keep the user from giving up or leaving.
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
  form.lblKhMemo.SetCaption("客户详情：");
  for (int i = 0; i < static_cast<int>(kRegisterFields.size()); ++i) {
    const RegisterField& field = kRegisterFields[static_cast<size_t>(i)];
    form.lblAcnt(i).SetCaption(field.caption);
    form.lblAcnt(i).SetTag(field.column);
    form.txtAcnt(i).SetMaxLength(field.bytes);
  }
  for (int i = 0; i < form.chkSeek.Count(); ++i) {
    form.chkSeek(i).SetTag(kSearchFields[static_cast<size_t>(i)].column);
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
  form.lblAcnt2(5).SetCaption("余额");
  const std::array columns = {"fBrief", "fInvID", "fOrderID", "fUser"};
  const std::array<int16_t, 4> bytes = {50, 20, 20, 20};
  for (int i = 6; i <= 9; ++i) {
    form.lblAcnt2(i).SetTag(columns[static_cast<size_t>(i - 6)]);
    form.txtAcnt2(i).SetMaxLength(bytes[static_cast<size_t>(i - 6)]);
  }
  form.txtAcnt2(1).SetMaxLength(20);
  form.txtAcnt2(3).SetRightAligned(true);
  form.txtAcnt2(4).SetRightAligned(true);
  // The running balance is only to be read: it is no part of the entry.
  form.txtAcnt2(5).SetRightAligned(true);
  form.txtAcnt2(5).SetLocked(true);
  form.txtAcnt2(5).SetTabStop(false);
  form.txtAcnt2(2).SetTabStop(false);  // the register chooses it
  form.txtHbRate.SetMaxLength(20);
  form.txtHbRate.SetRightAligned(true);
  form.cboDoneMan.SetEditable(true);
  form.cboDoneMan.SetMaxLength(20);
  form.cboAcntName.SetShownLength(40);
  form.cboAcntName.SetClearable(true);
}

void DesignLedger(frmZj& form) {
  form.cmdTitleClose.SetCaption("×");
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
  /// a(0), b(0), a(1), b(1), …: each check box before the field it switches on.
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
  order.Then(form.dtpAcntDate, form.txtAcnt2(1), form.txtAcnt2(2));
  order.ThenAll(form.optType2);
  order.Then(form.chkAcntInit, form.txtAcnt2(3), form.txtAcnt2(4), form.txtAcnt2(5), form.cboHb,
             form.txtHbRate, form.chkAcntName, form.cboAcntName);
  order.Then(form.txtAcnt2(6), form.txtAcnt2(7), form.txtAcnt2(8), form.txtAcnt2(9),
             form.cboDoneMan, form.cmdAcntSave, form.cmdAcntCancel);

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
  form.SSTab1.SetTab(0);
  form.Grid1.SetRowCount(0);
  form.Grid1.SetSortKey(0, ui::SortOrder::None);
  for (int i = 0; i < form.txtAcnt.Count(); ++i) form.txtAcnt(i).SetLocked(true);
  form.optKhType(0).Select();
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
  form.SSTab2.SetTab(0);
  form.Grid2.SetRowCount(0);
  form.Grid2.SetSortKey(0, ui::SortOrder::None);
  form.picAcnt.SetVisible(false);
  form.lblAcntTitle.SetCaption("");
  form.entryShown.clear();
  form.entryStored.clear();
  form.chkAcntInit.SetTag("0");
  form.cboAcntName.SetTag("0");
  form.cmdAcntSave.SetTag("0");
  form.cmdAcntCancel.SetTag("");
  for (int i = form.txtAcnt2.First(); i <= form.txtAcnt2.Last(); ++i) form.txtAcnt2(i).SetText("");
  form.txtAcnt2(2).SetTag("0");
  for (int i = 0; i < form.cmdAction.Count(); ++i) form.cmdAction(i).SetEnabled(true);
  form.optType2(1).Select();
  form.lblSHR.SetCaption("");
  form.lblSHR.SetVisible(false);
  form.fraSHR.SetVisible(false);
  for (int i = 0; i < form.txtTotal.Count(); ++i) form.txtTotal(i).SetText("0.00");
}

void ResetFilter(frmZj& form) {
  form.OptSelect(2).Select();
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

// Customer types and the search page, which shows the rule that goes with them.
void CaptionSearch(frmZj& form, bool traditional) {
  using Types = std::array<const char*, 4>;
  const Types types = traditional ? Types{"供銷商", "供應商", "銷售商", "代銷商"}
                                  : Types{"供销商", "供应商", "销售商", "代销商"};
  for (int i = 0; i < form.optKhType.Count(); ++i) {
    form.optKhType(i).SetCaption(types[static_cast<size_t>(i)]);
    form.optSeek(i).SetCaption(i == 0 ? "全部" : types[static_cast<size_t>(i)]);
  }
  for (int i = 0; i < form.chkSeek.Count(); ++i) {
    const SearchField& field = kSearchFields[static_cast<size_t>(i)];
    form.chkSeek(i).SetCaption(traditional ? field.traditional : field.simplified);
  }
  form.chkSeek2.SetCaption(traditional ? "限定：已發生[往来帳目]的客戶"
                                       : "限定：已发生[往来帐目]的客户");
  form.txtSeekMsg.SetText(traditional ? "<供銷商>可任意歸入\n\n----<供應商> <銷售商> <代銷商>"
                                      : "<供销商>可任意归入\n\n----<供应商> <销售商> <代销商>");
}

}  // namespace

void frmZj::Design() {
  DesignRegister(*this);
  DesignEditor(*this);
  DesignLedger(*this);
  DesignTabOrder(*this);
  DesignWaysOut(*this);
  DesignCaptions(*this, 0);
  ResetForm(*this);
  // A size that shows every column of interest on a usual screen; the window may change it.
  SetSize(15000, 10200);
}

void DesignCaptions(frmZj& form, int16_t language) {
  // The fixed part of the design, the same in both languages.
  form.lblAcnt(2).SetCaption("联系人");
  form.lblAcnt(3).SetCaption("开户行");

  const auto text = [language](const char* simplified, const char* traditional) {
    return language == 1 ? traditional : simplified;
  };
  CaptionSearch(form, language == 1);
  form.mnuKh.SetCaption(text("客户", "客戶"));
  form.cmdAction(0).SetCaption(text("帐目查看(&V)", "帳目查看(&V)"));
  form.SSTab1.SetTabCaption(2, text("条件查询", "條件查詢"));
  form.fraKhType.SetCaption(text("客户类型", "客戶類型"));
  form.lblAcnt2(3).SetCaption(text("应收/应付", "應收/應付"));
  form.chkAcntName.SetCaption(text("资金帐户", "資金帳戶"));
  form.lblHb.SetCaption(text("币种", "幣種"));
  form.lblHbRate.SetCaption(text("汇率", "匯率"));
  form.lblHb2.SetCaption(text("币种", "幣種"));
  form.chkUser(0).SetCaption(text("登录人:", "登錄人:"));
  form.chkUser(1).SetCaption(text("经办人:", "經辦人:"));
  form.chkUser(2).SetCaption(text("审核人:", "審核人:"));
}

void ForgetRecord(frmZj& form) {
  if (form.txtAcnt2(2).Tag() == form.lblKhName.Tag()) {
    form.txtAcnt2(2).SetText("");
    form.txtAcnt2(2).SetTag("0");
  }
  form.lblKhName.SetCaption("客户名称");
  form.lblKhName.SetTag("0");
  for (int i = 0; i < form.txtAcnt.Count(); ++i) form.txtAcnt(i).SetText("");
  form.txtKhMemo.SetText("");
}

void ResetForm(frmZj& form) {
  ResetRegister(form);
  ResetLedger(form);
  ResetFilter(form);
}

}  // namespace qvzj
