#include <gtest/gtest.h>

#include <fstream>

#include "services/connect.h"
#include "services/context.h"
#include "tests/support/world.h"

namespace qvzj {
namespace {

using test::World;

std::string TooOld(const std::string& path, const std::string& title) {
  return "系统数据库 " + path + " 属早期版本，无 [" + title + "] 功能。请升级系统！";
}

TEST(Refresh, DoesNothingUntilTheHostNamesTheData) {
  World world;
  world.control.setUserPath("");
  world.control.setMyModel("");
  world.control.refresh(0, 0);
  EXPECT_EQ(world.control.Form(), nullptr);
  EXPECT_TRUE(world.Messages().empty());
}

TEST(Refresh, RunsWithoutAPathInServerMode) {
  World world;
  world.control.setUserPath("");
  world.control.setSQLData(1);
  world.control.refresh(0, 0);
  EXPECT_EQ(world.Messages(), std::vector<std::string>{TooOld("", "客户往来帐管理系统")});
}

TEST(Refresh, RefusesWithoutTheModulesRight) {
  for (const char* model : {"", "1111111111", "11111111110", "1111111111A1"}) {
    World world;
    world.control.setMyModel(model);
    world.control.setCompName("总公司");
    world.control.refresh(0, 0);
    EXPECT_EQ(world.control.Form(), nullptr) << model;
    const auto shown = world.headless.boxes.TakeShown();
    ASSERT_EQ(shown.size(), 1u) << model;
    EXPECT_EQ(shown[0].text, "总公司: 您无权进行管理 !");
    EXPECT_EQ(shown[0].style, box::kCritical);
    EXPECT_EQ(shown[0].title, "qvZj_ocx");
    EXPECT_TRUE(world.Statements().empty());
  }
}

TEST(Refresh, OpensWithAnyOtherDigitThanZero) {
  World world;
  world.control.setMyModel("00000000005");
  world.Open(0);
  EXPECT_NE(world.control.Form(), nullptr);
}

TEST(Refresh, ShowsTheFormAsTheHostAsks) {
  World world;
  world.Open(0);
  EXPECT_EQ(world.headless.presenter.Find("frmZj"), world.control.Form());
  EXPECT_FALSE(world.headless.presenter.LastModal());
  world.control.refresh(0, 1);
  EXPECT_TRUE(world.headless.presenter.LastModal());
  EXPECT_EQ(Shared().showmode, 1);
}

TEST(Refresh, ShowsModallyOnlyForShowModeOne) {
  World world;
  world.control.refresh(0, 2);
  EXPECT_EQ(Shared().showmode, 2);
  EXPECT_FALSE(world.headless.presenter.LastModal());
}

TEST(Refresh, TitlesByRunModeZeroOnly) {
  const std::pair<int16_t, const char*> titles[] = {
      {0, "客户往来帐管理系统"}, {1, "资金帐户管理系统"},  {9, "资金帐户管理系统"},
      {10, "资金帐户管理系统"},  {11, "资金帐户管理系统"}, {5, "资金帐户管理系统"}};
  for (const auto& [run_mode, title] : titles) {
    World world;
    world.Open(run_mode);
    EXPECT_EQ(Shared().Title, title) << run_mode;
  }
}

TEST(Refresh, TitlesInTheUsersLanguage) {
  World world;
  world.control.setLanguage(1);
  world.Open(0);
  EXPECT_EQ(Shared().Title, "客戶往来帳管理系統");
}

TEST(Refresh, OpensTheRegisterOfTheRunMode) {
  const std::pair<int16_t, int16_t> modes[] = {{0, kCustomers}, {9, kCustomers}, {10, kCustomers},
                                               {1, kAccounts},  {11, kAccounts}, {5, kAccounts}};
  for (const auto& [run_mode, mode] : modes) {
    World world;
    EXPECT_EQ(world.Open(run_mode).mode, mode) << run_mode;
  }
}

TEST(Refresh, KeepsAnUnlistedRunModeAsTheStateItself) {
  World world;
  EXPECT_EQ(world.Open(5).State(), 5);
  world.control.refresh(10, 0);
  EXPECT_EQ(world.Form().State(), 0);
  world.control.refresh(11, 0);
  EXPECT_EQ(world.Form().State(), 1);
}

TEST(Refresh, ProvesThatTheLedgerIsThereBeforeAnythingElse) {
  World world;
  world.Open(0);
  EXPECT_EQ(world.Statements().at(0), "select count(*) from tAccountDetail Where 1=2");
}

TEST(Refresh, ReportsADatabaseWithoutALedger) {
  World world;
  world.Sql("drop table tAccountDetail;");
  world.control.refresh(1, 0);
  const auto shown = world.headless.boxes.TakeShown();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].text, TooOld(world.folder.Path().string(), "资金帐户管理系统"));
  EXPECT_EQ(shown[0].style, box::kCritical);
  EXPECT_EQ(shown[0].title, "资金帐户管理系统");
  EXPECT_EQ(world.control.Form(), nullptr);
  EXPECT_EQ(Data().State(), 0);
}

TEST(Refresh, ReportsMissingDataByTheSameText) {
  World world;
  world.control.setUserPath("/nowhere");
  world.control.refresh(0, 0);
  EXPECT_EQ(world.Messages(), std::vector<std::string>{TooOld("/nowhere", "客户往来帐管理系统")});
}

/// The detail of the only box that a refresh shows, whose text is that of a database too old.
std::string DetailOfRefusal(World& world) {
  world.control.refresh(0, 0);
  const auto shown = world.headless.boxes.TakeShown();
  if (shown.size() != 1) return "boxes: " + std::to_string(shown.size());
  EXPECT_EQ(shown[0].text, TooOld(Shared().UserPath, "客户往来帐管理系统"));
  return shown[0].detail;
}

TEST(RefusedData, IsToldApartInTheDetailWhenTheFileIsMissing) {
  World world;
  world.control.setUserPath("/nowhere");
  EXPECT_EQ(DetailOfRefusal(world),
            "原因：数据文件不存在，或数据路径有误。\n"
            "处理：请检查数据路径及移动盘、网络盘是否已连接；新帐套须先由管理员建立。\n"
            "系统报告：/nowhere/qvjxc.db: unable to open database file");
}

TEST(RefusedData, IsToldApartInTheDetailWhenTheFileIsNoDatabase) {
  World world;
  test::TemporaryFolder other;
  std::ofstream(other.Path() / "qvjxc.db") << std::string(2000, 'x');
  world.control.setUserPath(other.Path().string());
  EXPECT_NE(DetailOfRefusal(world).find("该文件不是数据库文件"), std::string::npos);
}

TEST(RefusedData, IsToldApartInTheDetailWhenTheFileIsDamaged) {
  World world;
  test::TemporaryFolder other;
  std::filesystem::copy(world.DataFile(), other.Path() / "qvjxc.db");
  std::fstream file(other.Path() / "qvjxc.db");
  file.seekp(100);
  file << std::string(4000, 'x');
  file.close();
  world.control.setUserPath(other.Path().string());
  EXPECT_NE(DetailOfRefusal(world).find("数据文件已损坏"), std::string::npos);
}

TEST(RefusedData, IsToldApartInTheDetailWhenTheLedgerIsMissing) {
  World world;
  world.Sql("drop table tAccountDetail;");
  EXPECT_EQ(DetailOfRefusal(world),
            "原因：数据库缺少所需的数据表或字段，可能由早期版本建立。\n"
            "处理：请检查是否选对了数据库；若确为早期版本，请由管理员升级（qvdb init）。\n"
            "系统报告：no such table: tAccountDetail");
}

TEST(RefusedData, IsToldApartInTheDetailWhenAnotherProgramHoldsTheFile) {
  World world;
  world.connections.options.busy_timeout = std::chrono::milliseconds(20);
  world.Sql("pragma journal_mode=delete; pragma locking_mode=exclusive; begin exclusive;");
  EXPECT_NE(DetailOfRefusal(world).find("数据正被其它程序或用户占用"), std::string::npos);
}

TEST(RefusedData, IsToldApartInTheDetailInTraditionalChineseToo) {
  World world;
  world.control.setLanguage(1);
  world.control.setUserPath("/nowhere");
  world.control.refresh(0, 0);
  const std::string detail = world.headless.boxes.TakeShown().at(0).detail;
  EXPECT_EQ(detail.find("原因：資料檔案不存在"), 0u);
  EXPECT_NE(detail.find("系統報告："), std::string::npos);
}

TEST(RefusedData, IsToldWithoutAReasonWhereTheConnectionComponentKnowsNone) {
  struct Silent : data::ConnectionComponent {
    bool OpenConnection(uint8_t, data::Connection&, const std::string&, const std::string&,
                        const std::string&, const std::string&) override {
      return false;
    }
  };
  World world;
  Silent silent;
  Around().connections = &silent;
  EXPECT_NE(DetailOfRefusal(world).find("未分类的错误"), std::string::npos);
}

TEST(ReportedErrors, BearWhatToDoAsTheirDetail) {
  World world;
  world.Sql("drop table Moneys;");
  world.control.refresh(0, 0);
  const auto boxes = world.headless.boxes.TakeShownAndErrors();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_TRUE(boxes[0].error);
  EXPECT_EQ(boxes[0].text, "no such table: Moneys");
  EXPECT_NE(boxes[0].detail.find("处理：请检查是否选对了数据库"), std::string::npos);
}

TEST(ReportedErrors, OfTheFormBearADetailToo) {
  World world;
  frmZj& form = world.Open(0);
  world.Sql("drop table cards;");
  form.UserClick(form.cmdAcntRefresh);
  const auto boxes = world.headless.boxes.TakeShownAndErrors();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, "no such table: cards");
  EXPECT_NE(boxes[0].detail.find("系统报告：no such table: cards"), std::string::npos);
}

TEST(Refresh, ShowsNoPasswordOfAServersDetails) {
  World world;
  world.control.setSQLData(1);
  world.control.setUserPath("Driver=x;PWD=top;Server=y");
  world.control.refresh(0, 0);
  world.control.setUserPath("Server=y;Password={a;b}");
  world.control.refresh(0, 0);
  world.control.setUserPath("PWD = {a}}b;c};Server=y;pwd =d");
  world.control.refresh(0, 0);
  world.control.setUserPath("me:secret@host");
  world.control.refresh(0, 0);
  EXPECT_EQ(world.Messages(),
            (std::vector<std::string>{TooOld("Driver=x;PWD=***;Server=y", "客户往来帐管理系统"),
                                      TooOld("Server=y;Password=***", "客户往来帐管理系统"),
                                      TooOld("PWD = ***;Server=y;pwd =***", "客户往来帐管理系统"),
                                      TooOld("me:***@host", "客户往来帐管理系统")}));
}

TEST(Refresh, ReportsADatabaseKindBeyondAByteAndThrowsNothing) {
  World world;
  world.control.setSQLData(300);
  EXPECT_NO_THROW(world.control.refresh(0, 0));
  EXPECT_EQ(world.control.Form(), nullptr);
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
}

TEST(Refresh, ReportsALanguageWithoutTextsAndThrowsNothing) {
  World world;
  world.control.setLanguage(2);
  EXPECT_NO_THROW(world.control.refresh(0, 0));
  EXPECT_EQ(world.control.Form(), nullptr);
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
}

TEST(Refresh, QuotesDatesByTheDatabaseKind) {
  World world;
  world.Open(0);
  EXPECT_EQ(Shared().DateQuote, "#");
  world.control.setSQLData(1);
  world.control.refresh(0, 0);
  EXPECT_EQ(Shared().DateQuote, "'");
}

TEST(Refresh, TakesTheUsersOwnDataPathWhereSomethingIsThere) {
  World world;
  const std::string own = world.folder.Path().string() + "/";
  world.control.setUserPath("/elsewhere");
  world.headless.settings.Set("tessary", "qvTask", "DataPath", own);
  world.Open(0);
  EXPECT_EQ(Shared().UserPath, own);
}

TEST(Refresh, IgnoresAnOwnDataPathThatNamesNothing) {
  World world;
  world.headless.settings.Set("tessary", "qvTask", "DataPath", "/nowhere/*.db");
  world.Open(0);
  EXPECT_EQ(Shared().UserPath, world.folder.Path().string());
}

TEST(Refresh, KeepsOneFormWhileItIsOpen) {
  World world;
  const frmZj* first = &world.Open(0);
  EXPECT_EQ(&world.Open(0), first);
  EXPECT_EQ(world.headless.presenter.Open().size(), 1u);
}

TEST(Refresh, StartsAFreshFormAfterTheLastWasClosed) {
  World world;
  world.Open(0).txtSeek(1).SetText("left over");
  world.Form().UserClose();
  EXPECT_EQ(world.control.Form(), nullptr);
  EXPECT_EQ(Shared().cnData, nullptr);
  EXPECT_EQ(world.Open(0).txtSeek(1).Text(), "");
}

TEST(Refresh, TakesANewPathAfterTheFormWasClosed) {
  World world;
  world.Open(0).UserClose();
  world.control.setUserPath("/nowhere");
  world.control.refresh(0, 0);
  EXPECT_EQ(world.control.Form(), nullptr);
  EXPECT_EQ(world.Messages().size(), 1u);
}

TEST(Refresh, MayBeCalledFromTheEventThatClosedTheForm) {
  World world;
  frmZj& form = world.Open(0);
  const auto unload = form.onUnload;
  form.onUnload = [&world, unload] {
    unload();
    world.control.refresh(1, 0);
  };
  EXPECT_TRUE(form.UserClick(form.cmdExit));
  ASSERT_NE(world.control.Form(), nullptr);
  EXPECT_EQ(world.Form().mode, kAccounts);
  EXPECT_EQ(Data().State(), 1);
}

TEST(Refresh, DropsAModalFormThatTheUserClosed) {
  World world;
  world.headless.presenter.run_modal = [](ui::Form& form) { form.UserClose(); };
  world.control.refresh(0, 1);
  EXPECT_EQ(world.control.Form(), nullptr);
  EXPECT_TRUE(world.headless.presenter.Open().empty());
  EXPECT_EQ(Shared().cnData, nullptr);
}

TEST(Refresh, ReportsAFailedStartAndShowsNoForm) {
  World world;
  world.Sql("drop table Moneys;");
  EXPECT_NO_THROW(world.control.refresh(0, 0));
  EXPECT_EQ(world.control.Form(), nullptr);
  EXPECT_TRUE(world.headless.presenter.Open().empty());
  const auto errors = world.headless.boxes.TakeErrors();
  ASSERT_EQ(errors.size(), 1u);
  EXPECT_NE(errors[0].find("Moneys"), std::string::npos);
  EXPECT_EQ(Shared().cnData, nullptr);
}

TEST(Refresh, OpensOnceTheCauseOfAFailedStartIsGone) {
  World world;
  world.Sql("alter table Moneys rename to Moneys2;");
  world.control.refresh(0, 0);
  EXPECT_EQ(world.control.Form(), nullptr);
  world.Sql("alter table Moneys2 rename to Moneys;");
  EXPECT_NO_THROW(world.Open(0));
}

TEST(Refresh, DiscardsAnOpenFormThatCannotTurnToTheOtherRegister) {
  World world;
  world.Open(0);
  world.Sql("drop table tAccounts;");
  EXPECT_NO_THROW(world.control.refresh(1, 0));
  EXPECT_EQ(world.control.Form(), nullptr);
  EXPECT_TRUE(world.headless.presenter.Open().empty());
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
}

struct Customers : World {
  Customers() {
    Sql("insert into cards(fID,CompCode,compname,fType0) values"
        "(1,'K1','东方公司',0),(2,'K2','华星公司',0),(3,'K3','华星二店',0);");
  }
};

TEST(RunModeNine, OpensOnTheNamedCustomer) {
  Customers world;
  world.control.setMyTaskID(3);
  world.control.setMyName("华星");
  frmZj& form = world.Open(9);
  EXPECT_EQ(form.State(), 0);
  EXPECT_EQ(form.txtSeek(1).Text(), "华星");
  EXPECT_EQ(form.chkSeek2.Value(), 0);
  EXPECT_EQ(form.lblKhName.Tag(), "3");
  EXPECT_EQ(form.lblKhName.Caption(), "华星二店");
}

TEST(RunModeNine, SearchesAgainOnAFormThatIsOpen) {
  Customers world;
  frmZj& form = world.Open(0);
  form.chkSeek2.SetValue(1);
  world.control.setMyTaskID(2);
  world.control.setMyName("华星");
  world.control.refresh(9, 0);
  EXPECT_EQ(form.chkSeek2.Value(), 0);
  EXPECT_EQ(form.lblKhName.Tag(), "2");
}

TEST(RunModeNine, TakesBackATextThatMayNotBeSearchedFor) {
  World world;
  frmZj& form = world.Open(0);
  form.UserTab(form.SSTab1, 2);
  form.UserClick(form.chkSeek(6));
  world.Type(form.txtSeek(6), "O'Neil");
  world.control.refresh(9, 0);
  EXPECT_EQ(world.Messages(),
            (std::vector<std::string>{"文本错误: 文本中不可含有<引号>或<单引号> !"}));
  EXPECT_EQ(form.txtSeek(6).Text(), "");
  EXPECT_EQ(form.registerCondition, "1=1 And a.telphone like '%'");
}

TEST(Control, ClosesItsFormWhenTheHostDestroysIt) {
  World world;
  {
    qvJxc_Zj control;
    control.refresh(0, 0);
    ASSERT_NE(control.Form(), nullptr);
    EXPECT_EQ(world.headless.presenter.Open().size(), 1u);
  }
  EXPECT_TRUE(world.headless.presenter.Open().empty());
  EXPECT_EQ(Shared().cnData, nullptr);
}

}  // namespace
}  // namespace qvzj
