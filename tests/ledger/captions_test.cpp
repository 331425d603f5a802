#include "ledger/captions.h"

#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

class Captions : public LedgerTest {};

TEST_F(Captions, NameTheButtonsWithTheirAccessKeys) {
  frmZj& form = Open();
  EXPECT_EQ(form.cmdKhSeek.Caption(), "查询(&S)");
  EXPECT_EQ(form.cmdKhMemo.Caption(), "详情(&M)");
  EXPECT_EQ(form.cmdKhPrint.Caption(), "打印(&P)");
  const Texts actions = {"帐目查看(&V)", "帐目新增(&N)", "帐目修改(&E)", "帐目删除(&D)",
                         "帐目审核(&K)"};
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(form.cmdAction(i).Caption(), actions[static_cast<size_t>(i)]);
  }
  EXPECT_EQ(form.cmdPrint.Caption(), "帐目打印(&P)");
  EXPECT_EQ(form.cmdAcntRefresh.Caption(), "刷新(&R)");
  EXPECT_EQ(form.cmdExit.Caption(), "退出>>");
  EXPECT_EQ(form.cmdSave.Caption(), "存盘(&S)");
  EXPECT_EQ(form.cmdAcntSave.Caption(), "存盘(&S)");
  EXPECT_EQ(form.cmdCancel.Caption(), "取消>>");
  EXPECT_EQ(form.cmdKhCancel.Caption(), "取消>>");
  EXPECT_EQ(form.cmdAcntCancel.Caption(), "取消>>");
}

TEST_F(Captions, SpeakOfCustomersInTheirMode) {
  frmZj& form = Open();
  EXPECT_EQ(form.Caption(), "客户往来帐管理系统");
  EXPECT_EQ(form.SSTab1.TabCaption(0), "客户列表");
  EXPECT_EQ(form.SSTab1.TabCaption(1), "客户管理");
  EXPECT_EQ(form.SSTab1.TabCaption(2), "条件查询");
  EXPECT_EQ(form.SSTab2.TabCaption(0), "往来总帐");
  EXPECT_EQ(form.SSTab2.TabCaption(1), "应收/实收");
  EXPECT_EQ(form.SSTab2.TabCaption(2), "应付/实付");
  const Texts totals = {
      "应收金额:", "实收金额:", "应收余额:", "应付金额:", "实付金额:", "应付余额:"};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(form.lblTotal(i).Caption(), totals[static_cast<size_t>(i)]);
  }
  EXPECT_EQ(form.cboKhOrder.Items(), (Texts{"按[编号]排序", "按[客户]排序"}));
  EXPECT_EQ(form.mnuKhManage(1).Caption(), "客户新增");
  EXPECT_EQ(form.mnuKhManage(2).Caption(), "客户修改");
  EXPECT_EQ(form.mnuKhManage(3).Caption(), "客户删除");
  EXPECT_EQ(form.mnuKhContact.Caption(), "客户联系(&T)");
  EXPECT_EQ(form.lblKhMemo.Caption(), "客户详情:");
  EXPECT_EQ(form.cmdManage.Caption(), "客户(&A)");
  EXPECT_EQ(form.OptSelect(0).Caption(), "全部客户");
  EXPECT_EQ(form.OptSelect(1).Caption(), "选入客户");
  EXPECT_EQ(form.OptSelect(2).Caption(), "单个客户");
  EXPECT_EQ(form.lblAcnt2(2).Caption(), "客户单位");
}

TEST_F(Captions, SpeakOfAccountsInTheirMode) {
  frmZj& form = Open(kAccounts);
  EXPECT_EQ(form.Caption(), "资金帐户管理系统");
  EXPECT_EQ(form.SSTab1.TabCaption(0), "帐户列表");
  EXPECT_EQ(form.SSTab2.TabCaption(0), "进出总帐");
  EXPECT_EQ(form.SSTab2.TabCaption(1), "进帐");
  EXPECT_EQ(form.SSTab2.TabCaption(2), "出帐");
  EXPECT_EQ(form.lblTotal(0).Caption(), "期初金额:");
  EXPECT_EQ(form.lblTotal(1).Caption(), "进帐金额:");
  EXPECT_EQ(form.lblTotal(4).Caption(), "出帐金额:");
  EXPECT_EQ(form.lblTotal(5).Caption(), "帐户余额:");
  EXPECT_EQ(form.cboKhOrder.Items(), (Texts{"按[编号]排序", "按[帐户]排序"}));
  EXPECT_EQ(form.lblAcnt2(2).Caption(), "帐户");
  EXPECT_EQ(form.lblAcnt2(3).Caption(), "期初金额");
  EXPECT_EQ(form.lblAcnt(1).Caption(), "帐户");
}

TEST_F(Captions, NameTheFieldsOfTheEditorAndTheFilter) {
  frmZj& form = Open();
  EXPECT_EQ(form.chkDate(0).Caption(), "起始日期:");
  EXPECT_EQ(form.chkDate(1).Caption(), "终止日期:");
  EXPECT_EQ(form.chkVerify(0).Caption(), "已审核");
  EXPECT_EQ(form.chkVerify(1).Caption(), "未审核");
  EXPECT_EQ(form.chkID(0).Caption(), "票号:");
  EXPECT_EQ(form.chkID(1).Caption(), "单号:");
  EXPECT_EQ(form.chkID(2).Caption(), "订单号:");
  EXPECT_EQ(form.chkBrief.Caption(), "摘要:");
  EXPECT_EQ(form.lblKhOrder.Caption(), "排序:");
  EXPECT_EQ(form.optType2(1).Caption(), "进帐");
  EXPECT_EQ(form.optType2(2).Caption(), "出帐");
  const std::vector<std::pair<int, std::string>> labels = {
      {0, "日期"}, {1, "票号"},   {4, "进帐金额"}, {5, "余额"},    {6, "摘要"},
      {7, "单号"}, {8, "订单号"}, {9, "登录人"},   {10, "经办人"}, {11, "审核人"}};
  for (const auto& [index, text] : labels) EXPECT_EQ(form.lblAcnt2(index).Caption(), text);
}

TEST_F(Captions, HeadTheRegisterWithTheRecordPagesLabels) {
  frmZj& form = Open();
  EXPECT_EQ(form.Grid1.ColumnCount(), 13);
  EXPECT_EQ(world.Row(form.Grid1, 0), (Texts{"编号", "客户单位", "联系人", "开户行", "帐号", "摘要",
                                             "地区", "城市", "邮编", "电话", "传真", "", ""}));
  EXPECT_TRUE(form.Grid1.ColumnHidden(12));
  EXPECT_TRUE(form.Grid1.ColumnHidden(13));
  EXPECT_FALSE(form.Grid1.ColumnHidden(11));
}

TEST_F(Captions, HeadTheLedgerWithTheEditorsLabelsAndHideItsLastSixColumns) {
  frmZj& form = Open();
  EXPECT_EQ(form.Grid2.ColumnCount(), 18);
  const Texts headers = world.Row(form.Grid2, 0);
  EXPECT_EQ(Texts(headers.begin(), headers.begin() + 3), (Texts{"日期", "票号", "客户单位"}));
  EXPECT_EQ(Texts(headers.begin() + 6, headers.begin() + 12),
            (Texts{"摘要", "单号", "订单号", "登录人", "经办人", "审核人"}));
  for (int column = 1; column <= 18; ++column) {
    EXPECT_EQ(form.Grid2.ColumnHidden(column), column > 12) << column;
  }
}

TEST_F(Captions, ComeFromTheTraditionalTableInTraditionalChinese) {
  Shared().Language = 1;
  frmZj& form = Open();
  EXPECT_EQ(form.Caption(), "客戶往来帳管理系統");
  EXPECT_EQ(form.cmdAction(0).Caption(), "帳目查看(&V)");
  EXPECT_EQ(form.cmdAction(4).Caption(), "帳目審核(&K)");
  EXPECT_EQ(form.cmdSave.Caption(), "保存(&S)");
  EXPECT_EQ(form.SSTab2.TabCaption(1), "應收/實收");
  EXPECT_EQ(form.lblTotal(5).Caption(), "應付余额:");
  EXPECT_EQ(form.cboKhOrder.Items(), (Texts{"按[編號]排序", "按[客戶]排序"}));
  EXPECT_EQ(form.lblAcnt2(9).Caption(), "登錄人");
  EXPECT_EQ(form.chkAcntInit.Caption(), "期初金额");
}

TEST_F(Captions, WriteTheFieldsWithoutAStringOfTheTableInTheLanguageAndKeepTheFixedOnes) {
  Shared().Language = 1;
  frmZj& form = Open();
  EXPECT_EQ(form.lblHb.Caption(), "幣種");
  EXPECT_EQ(form.lblHb2.Caption(), "幣種");
  EXPECT_EQ(form.lblHbRate.Caption(), "匯率");
  EXPECT_EQ(form.chkAcntName.Caption(), "資金帳戶");
  EXPECT_EQ(form.chkUser(2).Caption(), "審核人:");
  EXPECT_EQ(form.lblAcnt2(3).Caption(), "應收/應付");
  EXPECT_EQ(form.mnuKh.Caption(), "客戶");
  EXPECT_EQ(form.lblAcnt(2).Caption(), "联系人");
  EXPECT_EQ(form.lblAcnt(3).Caption(), "开户行");
  EXPECT_EQ(form.lblAcnt2(5).Caption(), "余额");
}

TEST_F(Captions, SayThatNoRecordIsCurrentWhereTheRegisterIsEmpty) {
  world.Sql("delete from cards;");
  EXPECT_EQ(Open().lblKhName.Caption(), "客户名称");
}

TEST_F(Captions, WriteTheSearchPageAndTheTypesInSimplifiedChinese) {
  frmZj& form = Open();
  EXPECT_EQ(form.chkSeek(0).Caption(), "客户编号:");
  EXPECT_EQ(form.chkSeek2.Caption(), "限定：已发生[往来帐目]的客户");
  EXPECT_EQ(form.optSeek(0).Caption(), "全部");
  EXPECT_EQ(form.optKhType(3).Caption(), "代销商");
  EXPECT_EQ(form.fraKhType.Caption(), "客户类型");
  EXPECT_EQ(form.txtSeekMsg.Text(), "<供销商>可任意归入\n\n----<供应商> <销售商> <代销商>");
  EXPECT_TRUE(form.txtSeekMsg.Locked());
}

TEST_F(Captions, WriteTheSearchPageAndTheTypesInTraditionalChinese) {
  Shared().Language = 1;
  frmZj& form = Open();
  EXPECT_EQ(form.chkSeek(0).Caption(), "客戶編號:");
  EXPECT_EQ(form.chkSeek(6).Caption(), "電話:");
  EXPECT_EQ(form.chkSeek2.Caption(), "限定：已發生[往来帳目]的客戶");
  EXPECT_EQ(form.optSeek(1).Caption(), "供應商");
  EXPECT_EQ(form.optKhType(0).Caption(), "供銷商");
  EXPECT_EQ(form.txtSeekMsg.Text(), "<供銷商>可任意歸入\n\n----<供應商> <銷售商> <代銷商>");
}

}  // namespace
}  // namespace qvzj::test
