#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/basic/errors.h"
#include "services/connect.h"
#include "services/context.h"
#include "tests/support/world.h"

// The opening of the form while one of its statements fails, each in turn.
namespace qvzj::test {
namespace {

/// Counts the statements of all sessions and fails one of them, as a disk or a network does.
struct Fault {
  int ran = 0;
  int fails = 0;  ///< number of the statement that fails, from 1; 0 for none

  void BeforeStatement() {
    if (++ran == fails) throw DataError("disk I/O error", DataCause::DiskFailed);
  }
};

class FaultySession : public data::Session {
 public:
  FaultySession(std::unique_ptr<data::Connection> inner, Fault& fault)
      : inner_(std::move(inner)), fault_(fault) {}
  void Execute(std::string_view statement) override {
    fault_.BeforeStatement();
    inner_->Execute(statement);
  }
  data::Recordset Query(std::string_view statement) override {
    fault_.BeforeStatement();
    return inner_->Open(statement);
  }

 private:
  std::unique_ptr<data::Connection> inner_;
  Fault& fault_;
};

class FaultyConnections : public data::ConnectionComponent {
 public:
  explicit FaultyConnections(data::ConnectionComponent& real) : real_(real) {}
  bool OpenConnection(uint8_t kind, data::Connection& connection, const std::string& path,
                      const std::string& password, const std::string& user_id,
                      const std::string& database) override {
    auto inner = std::make_unique<data::Connection>();
    if (!real_.OpenConnection(kind, *inner, path, password, user_id, database)) return false;
    connection.Attach(std::make_unique<FaultySession>(std::move(inner), fault));
    return true;
  }
  Fault fault;

 private:
  data::ConnectionComponent& real_;
};

/// A world with records and an entry in both registers, whose user is asked by the gates.
struct FaultyWorld : World {
  FaultyWorld() {
    Sql("insert into cards (fID,CompCode,compname,fType0) values (1,'0001','北方贸易',0);"
        "insert into tAccounts (fID,CompCode,compname) values (1,'A1','现金');"
        "insert into Moneys (MoneyCode,MoneyRate,MoneyType) values ('RMB',1,9);"
        "insert into Employees (employCode,employee) values ('1','Ann');"
        "insert into tJXC_InvSet (fSetNo,fSetNoUse_,fRowID,fSetAutoNo)"
        " values (51,0,1,'yyyymmKHXXXX'),(52,0,2,'yyyymmZHXXXX');"
        "insert into tSysFunc (SerialNo,model_Name,Model_Name_0,Model_Name_1,SecondPass,password,"
        "NoUse_) values (1,'mnuZjComp','a','b',0,'',0);"
        "insert into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
        "fMoneyCode,fMoneyRate) values ('2024-03-01',1,0,1,'N1',0,100,0,'RMB',1),"
        "('2024-03-01',1,1,1,'N2',0,0,100,'RMB',1);");
    control.setUserName("ann");
    Around().connections = &faulty;
  }
  FaultyConnections faulty{connections};
};

/// The opened form shows the register, the ledger and everything that the user chooses from.
void ExpectWhole(frmZj& form) {
  EXPECT_TRUE(form.Grid1.Visible());
  EXPECT_TRUE(form.Grid2.Visible());
  EXPECT_EQ(form.Grid1.RowCount(), 1);
  EXPECT_EQ(form.Grid2.RowCount(), 1);
  EXPECT_EQ(form.cboHb.Items().size(), 1u);
  EXPECT_EQ(form.cboDoneMan.Items().size(), 1u);
  EXPECT_EQ(form.GetMousePointer(), ui::MousePointer::Default);
  EXPECT_FALSE(form.numberTemplate.empty());
  EXPECT_NE(form.lblKhName.Caption(), "");
}

/// The user was told once, with a reason in Chinese, and nothing of a form is left.
void ExpectTold(FaultyWorld& world) {
  const auto boxes = world.headless.boxes.TakeShownAndErrors();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_NE(boxes[0].detail.find("原因：读写磁盘时出错"), std::string::npos) << boxes[0].detail;
  EXPECT_NE(boxes[0].detail.find("处理："), std::string::npos);
  EXPECT_TRUE(world.headless.presenter.Open().empty());
  EXPECT_EQ(Shared().cnData, nullptr);
}

/// The same control opens once the disk is well again.
void ExpectUsable(FaultyWorld& world, int16_t run_mode) {
  world.faulty.fault.fails = 0;
  world.control.refresh(run_mode, 0);
  ASSERT_NE(world.control.Form(), nullptr);
  ExpectWhole(world.Form());
  EXPECT_TRUE(world.headless.boxes.TakeShownAndErrors().empty());
  EXPECT_EQ(world.Form().numberTemplate, run_mode == 0 ? "yyyymmKHXXXX" : "yyyymmZHXXXX");
}

class FaultyStart : public testing::TestWithParam<int16_t> {};

TEST_P(FaultyStart, LeavesAWholeFormOrNoneWhicheverStatementFails) {
  int statements = 0;
  {
    FaultyWorld world;
    world.control.refresh(GetParam(), 0);
    ASSERT_NE(world.control.Form(), nullptr);
    statements = world.faulty.fault.ran;
  }
  ASSERT_GT(statements, 6);
  for (int fails = 1; fails <= statements; ++fails) {
    SCOPED_TRACE("statement " + std::to_string(fails));
    FaultyWorld world;
    world.faulty.fault.fails = fails;
    world.control.refresh(GetParam(), 0);
    if (frmZj* form = world.control.Form()) {
      ExpectWhole(*form);
      EXPECT_TRUE(world.headless.boxes.TakeShownAndErrors().empty());
      form->UserClose();
    } else {
      ExpectTold(world);
    }
    ExpectUsable(world, GetParam());
  }
}

TEST_P(FaultyStart, LeavesAWholeFormOrNoneWhenTheHostTurnsItToTheOtherRegister) {
  const int16_t other = GetParam() == 0 ? 1 : 0;
  int statements = 0;
  {
    FaultyWorld world;
    world.control.refresh(other, 0);
    world.faulty.fault.ran = 0;
    world.control.refresh(GetParam(), 0);
    statements = world.faulty.fault.ran;
  }
  for (int fails = 1; fails <= statements; ++fails) {
    SCOPED_TRACE("statement " + std::to_string(fails));
    FaultyWorld world;
    world.control.refresh(other, 0);
    world.faulty.fault = {0, fails};
    world.control.refresh(GetParam(), 0);
    frmZj* form = world.control.Form();
    if (!form) {
      ExpectTold(world);
    } else {
      // The proof that the ledger is there comes first; when that fails nothing is turned.
      ExpectWhole(*form);
      world.headless.boxes.TakeShownAndErrors();
      form->UserClose();
    }
    ExpectUsable(world, GetParam());
  }
}

INSTANTIATE_TEST_SUITE_P(Registers, FaultyStart, testing::Values(int16_t{0}, int16_t{1}),
                         [](const auto& test) {
                           return std::string(test.param == 0 ? "Customers" : "Accounts");
                         });

}  // namespace
}  // namespace qvzj::test
