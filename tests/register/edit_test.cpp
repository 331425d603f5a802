#include "register/edit.h"

#include "platform/ui/form.h"
#include "tests/register/register_fixture.h"

namespace qvzj::test {
namespace {

class RegisterEdit : public RegisterTest {
 protected:
  /// Arms 1 add, 2 change or 3 delete through the menu.
  frmZj& Arm(int action) {
    frmZj& form = world.Form();
    EXPECT_TRUE(form.UserClick(form.mnuKhManage(action)));
    return form;
  }
  void Save() {
    frmZj& form = world.Form();
    ASSERT_TRUE(form.UserClick(form.cmdKhSave));
  }
  /// The engine refuses every change of a customer from now on.
  void RefuseUpdates() {
    world.Sql("Create Trigger refuse Before Update On cards Begin Select Raise(Abort,'no');End;");
  }
  std::string Count(const std::string& table) { return world.One("Select count(*) From " + table); }
};

struct MenuWatcher : ui::FormObserver {
  void ControlChanged(ui::Control&, ui::Aspect) override {}
  void FormChanged(ui::Form&, ui::Aspect) override {}
  void PopUpMenu(ui::Form&, ui::MenuItem& menu, int32_t x, int32_t y) override {
    name = menu.Name();
    left = x;
    top = y;
  }
  std::string name;
  int32_t left = 0;
  int32_t top = 0;
};

TEST_F(RegisterEdit, PopsTheMenuUpBelowItsButtonUnderThePointer) {
  frmZj& form = Customers();
  MenuWatcher watcher;
  form.AddObserver(&watcher);
  ASSERT_TRUE(form.UserPress(form.cmdManage, 75, 30));
  form.RemoveObserver(&watcher);
  const ui::Bounds& frame = form.fraOrder.GetBounds();
  const ui::Bounds& button = form.cmdManage.GetBounds();
  EXPECT_EQ(watcher.name, "mnuKh");
  EXPECT_EQ(watcher.left, frame.left + button.left + 75);
  EXPECT_EQ(watcher.top, frame.top + button.top + button.height);
}

TEST_F(RegisterEdit, StartsAddingFromEmptyBoxes) {
  Customers();
  frmZj& form = Arm(1);
  EXPECT_EQ(form.cmdKhSave.Tag(), "1");
  EXPECT_EQ(form.cmdKhSave.Caption(), "客户新增");
  EXPECT_TRUE(form.cmdKhSave.Visible());
  EXPECT_TRUE(form.cmdKhCancel.Visible());
  EXPECT_EQ(form.SSTab1.Tab(), 1);
  EXPECT_EQ(form.Focused(), &form.txtAcnt(0));
  for (int i = 0; i <= 10; ++i) {
    EXPECT_EQ(form.txtAcnt(i).Text(), "");
    EXPECT_FALSE(form.txtAcnt(i).Locked());
  }
}

TEST_F(RegisterEdit, StartsChangingFromTheCurrentRecord) {
  Customers();
  GoTo("大地五金");
  frmZj& form = Arm(2);
  EXPECT_EQ(form.txtAcnt(1).Text(), "大地五金");
  EXPECT_FALSE(form.txtAcnt(1).Locked());
}

TEST_F(RegisterEdit, ShowsTheRecordLockedBeforeADelete) {
  Customers();
  GoTo("大地五金");
  frmZj& form = Arm(3);
  EXPECT_EQ(form.txtAcnt(1).Text(), "大地五金");
  EXPECT_TRUE(form.txtAcnt(1).Locked());
}

TEST_F(RegisterEdit, PutsTheRecordBackOnCancel) {
  Customers();
  GoTo("大地五金");
  frmZj& form = Arm(1);
  world.Type(form.txtAcnt(1), "新客户");
  ASSERT_TRUE(form.UserClick(form.cmdKhCancel));
  EXPECT_EQ(form.txtAcnt(1).Text(), "大地五金");
  EXPECT_TRUE(form.txtAcnt(1).Locked());
  EXPECT_FALSE(form.cmdKhSave.Visible());
  EXPECT_FALSE(form.cmdKhCancel.Visible());
  EXPECT_EQ(form.SSTab1.Tab(), 0);
  EXPECT_EQ(form.Focused(), &form.Grid1);
}

TEST_F(RegisterEdit, CancelsInAnEmptyRegister) {
  world.Sql("Delete From cards;");
  Customers();
  frmZj& form = Arm(1);
  world.Type(form.txtAcnt(1), "新客户");
  ASSERT_TRUE(form.UserClick(form.cmdKhCancel));
  EXPECT_EQ(form.txtAcnt(1).Text(), "");
  EXPECT_EQ(form.lblKhName.Tag(), "0");
}

TEST_F(RegisterEdit, AsksForTheCodeFirst) {
  Customers();
  frmZj& form = Arm(1);
  world.Type(form.txtAcnt(1), "新客户");
  Save();
  EXPECT_EQ(world.Messages(), (Texts{"请输入[编号] !"}));
  EXPECT_EQ(Count("cards"), "3");
}

TEST_F(RegisterEdit, AsksForTheNameUnderItsLabel) {
  Accounts();
  frmZj& form = Arm(1);
  world.Type(form.txtAcnt(0), "A3");
  Save();
  EXPECT_EQ(world.Messages(), (Texts{"请输入[帐户] !"}));
}

TEST_F(RegisterEdit, AddsACustomerWithItsType) {
  Customers();
  frmZj& form = Arm(1);
  world.Type(form.txtAcnt(0), "0009");
  world.Type(form.txtAcnt(1), "新客户");
  world.Type(form.txtAcnt(9), "0755");
  ASSERT_TRUE(form.UserClick(form.optKhType(3)));
  world.Answer("ok");
  world.Statements();
  Save();
  const Texts ran = world.Statements();
  EXPECT_EQ(ran[0], "select max(fID) from cards");
  EXPECT_EQ(ran[1],
            "Insert Into cards (CompCode,compname,name,fBank,fAcntID,others,province,cityname,"
            "postcode,telphone,fax,fID,fType0) Values "
            "('0009','新客户','','','','','','','','0755','',4,3)");
  EXPECT_EQ(world.Messages(), (Texts{"确认：新增 新客户 ?", "新客户:客户新增执行完毕！"}));
  EXPECT_EQ(form.Grid1.RowCount(), 4);
}

TEST_F(RegisterEdit, AddsAMoneyAccountWithoutAType) {
  Accounts();
  frmZj& form = Arm(1);
  world.Type(form.txtAcnt(0), "A3");
  world.Type(form.txtAcnt(1), "工商银行");
  world.Answer("ok");
  world.Statements();
  Save();
  EXPECT_EQ(world.Statements()[1],
            "Insert Into tAccounts (CompCode,compname,name,fBank,fAcntID,others,province,cityname,"
            "postcode,telphone,fax,fID) Values ('A3','工商银行','','','','','','','','','',3)");
}

TEST_F(RegisterEdit, GivesTheFirstRecordOfAnEmptyTableTheIdOne) {
  world.Sql("Delete From cards;");
  Customers();
  frmZj& form = Arm(1);
  world.Type(form.txtAcnt(0), "1");
  world.Type(form.txtAcnt(1), "首家");
  world.Answer("ok");
  Save();
  EXPECT_EQ(world.One("Select fID From cards"), "1");
  EXPECT_EQ(form.lblKhName.Caption(), "首家");
}

TEST_F(RegisterEdit, ChangesTheCurrentRecordAndNamesItAsItWas) {
  Customers();
  GoTo("华东电子");
  frmZj& form = Arm(2);
  world.Type(form.txtAcnt(1), "华东集团");
  world.Answer("ok");
  world.Statements();
  Save();
  EXPECT_EQ(world.Statements()[1],
            "Update cards Set CompCode='0001',compname='华东集团',name='李四',fBank='',fAcntID='',"
            "others='',province='上海',cityname='',postcode='',telphone='021-2',fax='',fType0=1 "
            "Where fID=2");
  EXPECT_EQ(world.Messages(), (Texts{"确认：修改 华东电子 ?", "华东电子:客户修改执行完毕！"}));
  EXPECT_EQ(form.lblKhName.Caption(), "华东集团");
  EXPECT_EQ(form.lblKhName.Tag(), "2");
}

TEST_F(RegisterEdit, LeavesEverythingAsItWasOnCancelledConfirmations) {
  Customers();
  for (const int action : {1, 2, 3}) {
    GoTo("华东电子");
    if (action == 2) world.Answer("ok");  // what was typed into the new record is given up
    frmZj& form = Arm(action);
    if (action == 1) {
      world.Type(form.txtAcnt(0), "0009");
      world.Type(form.txtAcnt(1), "新客户");
    }
    world.Answer("cancel");
    Save();
    EXPECT_EQ(Count("cards"), "3");
    EXPECT_EQ(form.Grid1.RowCount(), 3);
    EXPECT_TRUE(form.cmdKhSave.Visible());
  }
}

TEST_F(RegisterEdit, DeletesARecordThatNothingRefersTo) {
  Customers();
  GoTo("华东电子");
  frmZj& form = Arm(3);
  world.Answer("ok");
  world.Statements();
  Save();
  const Texts ran = world.Statements();
  EXPECT_EQ(ran[1], "select count(*) from tAccountDetail Where fCompID=2 And fType1=0");
  EXPECT_EQ(ran[2], "select count(*) from tTaskList Where taskID=2 And fType=1");
  EXPECT_EQ(ran[3], "select count(*) from tJXC_CkDj01 Where fKhID=2");
  EXPECT_EQ(ran[4], "select count(*) from tJXC_CkHt01 Where fKhID=2");
  EXPECT_EQ(ran[5], "Delete from cards Where fID=2");
  EXPECT_EQ(world.Messages(), (Texts{"确认：删除 华东电子 ?", "华东电子:客户删除执行完毕！"}));
  EXPECT_EQ(form.lblKhName.Caption(), "大地五金");
}

TEST_F(RegisterEdit, RefusesToDeleteInTheOrderOfItsChecks) {
  AddEntries(kCustomers, 2, 1);
  world.Sql(
      "Insert Into tTaskList (taskID,fType) Values (2,1);"
      "Insert Into tJXC_CkDj01 (fKhID,fInvNo) Values (2,'D1');"
      "Insert Into tJXC_CkHt01 (fKhID) Values (2);");
  Customers();
  GoTo("华东电子");
  Arm(3);
  const Texts clears = {"Delete From tAccountDetail;", "Delete From tTaskList;",
                        "Delete From tJXC_CkDj01;"};
  const Texts refusals = {"华东电子：已有帐目存在，必须先删除所有相关帐目，才能够客户删除！",
                          "华东电子：已有[拜访记录]存在，必须先删除所有相关记录！",
                          "华东电子：已有[仓库出入记录]存在，必须先删除所有相关记录！",
                          "华东电子：已有[合同订单记录]存在，必须先删除所有相关记录！"};
  for (size_t i = 0; i < refusals.size(); ++i) {
    Save();
    EXPECT_EQ(world.Messages(), (Texts{refusals[i]}));
    if (i < clears.size()) world.Sql(clears[i]);
  }
  EXPECT_EQ(Count("cards"), "3");
}

TEST_F(RegisterEdit, KeepsARecordWithMoreWarehouseRowsThanACountCanSay) {
  world.Sql(
      "With Recursive n(i) As (Select 1 Union All Select i+1 From n Where i<32768)"
      " Insert Into tJXC_CkDj01 (fKhID,fInvNo) Select 2,'D' || i From n;");
  Customers();
  GoTo("华东电子");
  Arm(3);
  Save();
  EXPECT_EQ(world.Messages(),
            (Texts{"华东电子：已有[仓库出入记录]存在，必须先删除所有相关记录！"}));
  EXPECT_EQ(Count("cards"), "3");
}

TEST_F(RegisterEdit, DeletesARecordWhereTheSuiteHasNoWarehouse) {
  world.Sql("Drop Table tJXC_CkDj01; Drop Table tJXC_CkHt01;");
  Customers();
  GoTo("华东电子");
  Arm(3);
  world.Answer("ok");
  Save();
  EXPECT_EQ(Count("cards"), "2");
}

TEST_F(RegisterEdit, CountsOnlyEntriesOfItsOwnKindBeforeADelete) {
  AddEntries(kCustomers, 1, 1);
  Accounts();
  GoTo("现金");
  Arm(3);
  world.Answer("ok");
  Save();
  EXPECT_EQ(Count("tAccounts"), "1");
}

TEST_F(RegisterEdit, ReportsABrokenStatementAndKeepsTheRegister) {
  Customers();
  GoTo("华东电子");
  frmZj& form = Arm(2);
  RefuseUpdates();
  world.Type(form.txtAcnt(1), "新名");
  world.Answer("ok");
  EXPECT_FALSE(form.UserClick(form.cmdKhSave));
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
  EXPECT_EQ(world.One("Select compname From cards Where fID=2"), "华东电子");
  EXPECT_EQ(form.SSTab1.Tab(), 1);
}

TEST_F(RegisterEdit, GoesBackToRestAfterASavedAction) {
  Customers();
  for (const int action : {1, 2, 3}) {
    frmZj& form = Arm(action);
    if (action == 1) {
      world.Type(form.txtAcnt(0), "0009");
      world.Type(form.txtAcnt(1), "新客户");
    }
    world.Answer("ok");
    Save();
    EXPECT_FALSE(form.cmdKhSave.Visible()) << action;
    EXPECT_FALSE(form.cmdKhCancel.Visible()) << action;
    EXPECT_TRUE(form.txtAcnt(0).Locked()) << action;
    EXPECT_EQ(form.txtAcnt(1).Text(), form.lblKhName.Caption()) << action;
    EXPECT_EQ(form.Focused(), &form.Grid1) << action;
  }
  EXPECT_EQ(Count("cards"), "3");
}

TEST_F(RegisterEdit, StaysArmedWhenTheStatementFails) {
  Customers();
  frmZj& form = Arm(2);
  RefuseUpdates();
  world.Type(form.txtAcnt(1), "新名");
  world.Answer("ok");
  EXPECT_FALSE(form.UserClick(form.cmdKhSave));
  world.headless.boxes.TakeErrors();
  EXPECT_TRUE(form.cmdKhSave.Visible());
  EXPECT_FALSE(form.txtAcnt(1).Locked());
}

TEST_F(RegisterEdit, HasNoCurrentRecordAfterTheLastOneWasDeleted) {
  world.Sql("Delete From cards Where fID<>2;");
  Customers();
  frmZj& form = Arm(3);
  world.Answer("ok");
  Save();
  EXPECT_EQ(form.Grid1.RowCount(), 0);
  EXPECT_EQ(form.lblKhName.Caption(), "客户名称");
  EXPECT_EQ(form.lblKhName.Tag(), "0");
  EXPECT_EQ(form.txtAcnt(1).Text(), "");
}

TEST_F(RegisterEdit, TakesADeletedRecordOutOfTheEntryThatIsKeyed) {
  Customers();
  GoTo("华东电子");
  frmZj& form = world.Form();
  ASSERT_TRUE(form.UserClick(form.cmdAction(1)));
  world.Type(form.txtAcnt2(1), "N1");
  world.Type(form.txtAcnt2(4), "10");
  Arm(3);
  world.Answer("ok");
  Save();
  world.Messages();
  ASSERT_TRUE(form.UserClick(form.cmdAcntSave));
  EXPECT_EQ(world.Messages(), (Texts{"请选择 [客户单位] !"}));
  EXPECT_EQ(Count("tAccountDetail"), "0");
}

TEST_F(RegisterEdit, ShowsTheCurrentRecordAgainWhenAnotherActionIsArmedAfterAnAdd) {
  Customers();
  GoTo("大地五金");
  for (const int action : {2, 3}) {
    Arm(1);
    frmZj& form = Arm(action);
    EXPECT_EQ(form.txtAcnt(0).Text(), "0002");
    EXPECT_EQ(form.txtAcnt(1).Text(), "大地五金");
    EXPECT_EQ(form.lblKhName.Tag(), "3");
  }
}

TEST_F(RegisterEdit, AsksForARecordWhereNoneIsCurrent) {
  world.Sql("Delete From cards;");
  Customers();
  for (const int action : {2, 3}) {
    if (action == 3) world.Answer("ok");  // what was typed is given up
    frmZj& form = Arm(action);
    world.Messages();
    if (action == 2) {
      world.Type(form.txtAcnt(0), "0009");
      world.Type(form.txtAcnt(1), "新客户");
    }
    Save();
    EXPECT_EQ(world.Messages(), (Texts{"请选择[客户单位] !"}));
    EXPECT_FALSE(Ran(action == 2 ? "Update" : "Delete"));
  }
}

TEST_F(RegisterEdit, KeepsARecordWithMoreEntriesThanACountCanSay) {
  world.Sql(
      "With Recursive n(i) As (Select 1 Union All Select i+1 From n Where i<32768)"
      " Insert Into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB)"
      " Select '2024-03-01',2,0,1,i,0,1,0 From n;");
  Customers();
  GoTo("华东电子");
  Arm(3);
  Save();
  EXPECT_EQ(world.Messages(),
            (Texts{"华东电子：已有帐目存在，必须先删除所有相关帐目，才能够客户删除！"}));
  EXPECT_EQ(Count("cards"), "3");
}

TEST_F(RegisterEdit, ReportsAnUnknownActionAsAnError) {
  Customers();
  frmZj& form = Arm(2);
  form.cmdKhSave.SetTag("7");
  world.Messages();
  EXPECT_FALSE(form.UserClick(form.cmdKhSave));
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(RegisterEdit, KeepsABoxWithinItsBytesHoweverItIsFilled) {
  Customers();
  frmZj& form = Arm(1);
  form.UserFocus(form.txtAcnt(8));  // postal code, 10 bytes
  world.Type(form.txtAcnt(8), "12345678901");
  EXPECT_EQ(form.txtAcnt(8).Text(), "1234567890");
  form.UserSelect(form.txtAcnt(8), 0, 10);
  form.UserInsert(form.txtAcnt(8), "一二三四五六");
  EXPECT_EQ(form.txtAcnt(8).Text(), "一二三四五");
}

TEST_F(RegisterEdit, WalksThroughTheBoxesWithEnter) {
  Customers();
  frmZj& form = Arm(1);
  form.UserKey(ui::Key::Named(ui::Key::Name::Enter));
  EXPECT_EQ(form.Focused(), &form.txtAcnt(1));
}

}  // namespace
}  // namespace qvzj::test
