#include <chrono>
#include <thread>

#include "tests/adapters/odbc/server.h"
#include "tests/support/world.h"

// The module on a server that fails under it.
namespace qvzj::test {
namespace {

class ModuleOnAServer : public testing::Test {
 protected:
  void SetUp() override {
    QV_NEEDS_SERVER();
    database_ = Server().MakeDatabase();
    Server().RunAll(database_,
                    {"insert into cards (fID,CompCode,compname,fType0) values (1,'K1','甲公司',0)",
                     "insert into Moneys (MoneyCode,MoneyRate,MoneyType) values ('RMB',1,1)",
                     "insert into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fMoneyA,"
                     "fMoneyB,fChecker) values ('2024-03-01',1,0,1,'A1',10,0,'')"});
    world_.control.setSQLData(1);
    world_.control.setUserPath(Server().Address());
    world_.control.setUserID(PrivatePostgres::kUser);
    world_.control.setPassword(PrivatePostgres::kPassword);
    world_.control.setDefault(database_);
    world_.Open(0);
  }

  /// Keys a new entry up to its save button.
  void KeyEntry() {
    frmZj& form = world_.Form();
    form.UserClick(form.cmdAction(1));
    world_.Type(form.txtAcnt2(1), "A2");
    world_.Type(form.txtAcnt2(3), "5");
  }
  std::string Entries() {
    const store::ServerLogin login = LoginTo(database_);
    return store::OpenServer(login, {})->Native("select count(*) from tAccountDetail").Text(0);
  }
  /// All that was reported as an error since the last call.
  std::string Errors() {
    std::string all;
    for (const std::string& error : world_.headless.boxes.TakeErrors()) all += error + "\n";
    return all;
  }

  std::string database_;
  World world_;
};

TEST_F(ModuleOnAServer, ShowsTheErrorWhileTheServerIsAwayAndTheDataOnceItIsBack) {
  frmZj& form = world_.Form();
  Server().Kill();
  form.UserClick(form.cmdAcntRefresh);
  EXPECT_NE(Errors(), "");
  EXPECT_TRUE(form.Grid1.Visible());
  EXPECT_TRUE(form.Grid2.Visible());
  Server().Start();
  form.UserClick(form.cmdAcntRefresh);
  EXPECT_EQ(Errors(), "");
  EXPECT_EQ(form.Grid2.RowCount(), 1);
}

TEST_F(ModuleOnAServer, SaysThatNobodyKnowsWhetherAnEntryWasStored) {
  frmZj& form = world_.Form();
  KeyEntry();
  Server().Kill();
  Server().Start();
  form.UserClick(form.cmdAcntSave);
  EXPECT_NE(Errors().find("无法确定这次修改是否已经保存"), std::string::npos);
  EXPECT_EQ(Entries(), "1");
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(Errors(), "");
  EXPECT_EQ(Entries(), "2");
  EXPECT_EQ(form.Grid2.RowCount(), 2);
}

TEST_F(ModuleOnAServer, KeepsWhatWasKeyedWhenTheServerHasNoRoomLeft) {
  frmZj& form = world_.Form();
  Server().RunAll(database_,
                  {"create function no_room() returns trigger language plpgsql as $$ begin raise "
                   "exception 'could not extend file: no space left on device' using errcode = "
                   "'disk_full'; end $$",
                   "create trigger full_disk before insert on tAccountDetail "
                   "execute function no_room()"});
  KeyEntry();
  form.UserClick(form.cmdAcntSave);
  EXPECT_NE(Errors().find("no space left"), std::string::npos);
  EXPECT_EQ(form.txtAcnt2(1).Text(), "A2");
  EXPECT_TRUE(form.Grid2.Visible());
  Server().Run(database_, "drop trigger full_disk on tAccountDetail");
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(Entries(), "2");
}

TEST_F(ModuleOnAServer, KeepsWhatWasKeyedWhenTheServersFilesCanGrowNoMore) {
  frmZj& form = world_.Form();
  // A table of one row a page, which has to grow for every new row.
  Server().RunAll(database_, {"alter table tAccountDetail set (fillfactor=10)",
                              "insert into tAccountDetail (fCompID,fType1,fBrief) select 77,0,"
                              "repeat('x',1900) from generate_series(1,2200)"});
  const std::string size = store::OpenServer(LoginTo(database_), {})
                               ->Native("select pg_relation_size('taccountdetail')")
                               .Text(0);
  KeyEntry();
  Server().LimitFiles(std::stoull(size));
  form.UserClick(form.cmdAcntSave);
  EXPECT_NE(Errors().find("could not extend file"), std::string::npos);
  EXPECT_EQ(form.txtAcnt2(1).Text(), "A2");
  EXPECT_TRUE(form.Grid2.Visible());
  EXPECT_EQ(form.Grid2.RowCount(), 1);
  Server().LimitFiles(0);
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(Errors(), "");
  EXPECT_EQ(Entries(), "2202");
  EXPECT_EQ(form.Grid2.RowCount(), 2);
}

TEST_F(ModuleOnAServer, ShowsNothingHalfWhenTheServerDiesUnderARefresh) {
  frmZj& form = world_.Form();
  auto holder = store::OpenServer(LoginTo(database_), {});
  holder->Native("begin");
  holder->Native("lock table tAccountDetail in access exclusive mode");
  std::thread killer([] {
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    Server().Kill();
  });
  form.UserClick(form.cmdAcntRefresh);
  killer.join();
  EXPECT_NE(Errors(), "");
  EXPECT_TRUE(form.Grid1.Visible());
  EXPECT_TRUE(form.Grid2.Visible());
  Server().Start();
  form.UserClick(form.cmdAcntRefresh);
  EXPECT_EQ(Errors(), "");
  EXPECT_EQ(form.Grid2.RowCount(), 1);
}

/// The same with little patience.
class ModuleOnASlowServer : public ModuleOnAServer {
 protected:
  ModuleOnASlowServer() { world_.connections.options.write_limit = std::chrono::seconds(2); }
};

TEST_F(ModuleOnASlowServer, SaysThatAnEntryWasNotStoredAndKeepsWhatWasKeyed) {
  frmZj& form = world_.Form();
  Server().RunAll(database_,
                  {"create function slow() returns trigger language plpgsql as $$ begin perform "
                   "pg_sleep(60); return new; end $$",
                   "create trigger slow before insert on tAccountDetail for each row execute "
                   "function slow()"});
  KeyEntry();
  form.UserClick(form.cmdAcntSave);
  EXPECT_NE(Errors().find("没有保存"), std::string::npos);
  EXPECT_EQ(form.txtAcnt2(1).Text(), "A2");
  EXPECT_EQ(Entries(), "1");
  Server().Run(database_, "drop trigger slow on tAccountDetail");
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(Errors(), "");
  EXPECT_EQ(Entries(), "2");
}

TEST_F(ModuleOnAServer, WritesNothingOverWhatSomebodyElseHasCheckedMeanwhile) {
  frmZj& form = world_.Form();
  form.UserClick(form.cmdAction(2));
  world_.Type(form.txtAcnt2(3), "7");
  Server().Run(database_, "update tAccountDetail set fChecker='乙'");
  world_.Messages();
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(Errors(), "");
  EXPECT_EQ(world_.Messages(),
            std::vector<std::string>{"该帐目已被他人修改或审核，现已重新显示，请核对后再操作！"});
  EXPECT_EQ(form.txtAcnt2(3).Text(), "10.00");
  EXPECT_EQ(form.lblSHR.Caption(), "乙");
}

TEST_F(ModuleOnAServer, SavesAnEntryThatNobodyElseHasTouchedWhateverItsRowHolds) {
  frmZj& form = world_.Form();
  for (const char* row :
       {"fMoneyA=0.1::float8+0.2::float8,fMoneyB=1e15::float8/3,fMoneyRate=1::float8/3",
        "fBrief=null,fInvID=null,fUser=null,fDoneman=null,fChecker=null,fMoneyCode=null,"
        "fMoneyRate=null,fID2=null,fInit=null",
        "fDate='2024-02-29',fBrief='两 行 ',fType2=2,fMoneyA=-5,fID2=3"}) {
    Server().Run(database_, std::string("update tAccountDetail set ") + row);
    form.UserClick(form.cmdAcntRefresh);
    form.UserClick(form.cmdAction(2));
    world_.Messages();
    form.UserClick(form.cmdAcntSave);
    EXPECT_EQ(Errors(), "") << row;
    EXPECT_EQ(world_.Messages(), std::vector<std::string>{"[票号:A1]"}) << row;
  }
}

TEST_F(ModuleOnAServer, WritesNoRecordAndNoDetailOverSomebodyElses) {
  frmZj& form = world_.Form();
  form.UserClick(form.mnuKhManage(2));
  world_.Type(form.txtAcnt(6), "江苏");
  Server().Run(database_, "update cards set telphone='999'");
  world_.Messages();
  form.UserClick(form.cmdKhSave);
  EXPECT_EQ(world_.Messages().size(), 1u);
  EXPECT_EQ(form.txtAcnt(9).Text(), "999");
  form.UserClick(form.cmdKhMemo);
  world_.Type(form.txtKhMemo, "月结");
  Server().Run(database_, "update cards set detail='现款'");
  form.UserClick(form.cmdSave);
  EXPECT_EQ(world_.Messages().size(), 1u);
  EXPECT_EQ(form.txtKhMemo.Text(), "现款");
  world_.Type(form.txtKhMemo, "月结");
  form.UserClick(form.cmdSave);
  EXPECT_EQ(Errors(), "");
  form.UserClick(form.mnuKhManage(2));
  world_.Answer("ok");
  form.UserClick(form.cmdKhSave);
  EXPECT_EQ(Errors(), "");
  EXPECT_EQ(world_.Messages().back(), "甲公司:客户修改执行完毕！");
}

TEST_F(ModuleOnAServer, TakesTheNextNumberWhenTheProposedOneIsTakenMeanwhile) {
  frmZj& form = world_.Form();
  form.UserClick(form.cmdAction(1));
  form.UserKey(ui::Key::Named(ui::Key::Name::Enter));
  ASSERT_EQ(form.txtAcnt2(1).Text(), "202403PZ00001");
  Server().Run(database_, "insert into tAccountDetail (fAcntNo,fType1) values ('202403pz00001',5)");
  world_.Type(form.txtAcnt2(3), "5");
  world_.Messages();
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(Errors(), "");
  EXPECT_EQ(world_.Messages(), std::vector<std::string>{"[票号:202403PZ00002]"});
}

}  // namespace
}  // namespace qvzj::test
