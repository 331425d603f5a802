#include "ledger/save.h"

#include "services/connect.h"
#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

using basic::Date;
using ui::Key;

class EntrySave : public LedgerTest {
 protected:
  /// Opens a new entry with a number and an amount, ready to be saved.
  frmZj& KeyNew(int16_t mode = kCustomers) {
    frmZj& form = Open(mode);
    form.UserClick(form.cmdAction(1));
    form.UserKey(Key::Named(Key::Name::Enter));
    world.Type(form.txtAcnt2(4), "30");
    return form;
  }

  bool Save(frmZj& form) { return form.UserClick(form.cmdAcntSave); }

  std::string LastStatement(const std::string& first_word) {
    std::string last;
    for (const std::string& statement : world.Statements()) {
      if (statement.starts_with(first_word)) last = statement;
    }
    return last;
  }

  std::string Count() { return world.One("select count(*) from tAccountDetail"); }
};

TEST_F(EntrySave, DoesNothingWhileOnlyLooking) {
  Add({});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(0));
  world.Statements();
  SaveEntry(form);
  EXPECT_TRUE(world.Statements().empty());
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(EntrySave, StoresANewEntryWithTheDesignedStatement) {
  frmZj& form = KeyNew();
  world.Type(form.txtAcnt2(3), "100");
  world.Type(form.txtAcnt2(6), "货款");
  world.Type(form.txtAcnt2(7), "CK1");
  world.Type(form.txtAcnt2(8), "HT1");
  world.Type(form.cboDoneMan, "张三");
  form.UserClick(form.optType2(2));
  form.UserChoose(form.cboHb, 1);
  form.UserChoose(form.cboAcntName, 1);
  ASSERT_TRUE(Save(form));
  EXPECT_EQ(LastStatement("Insert"),
            "Insert Into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
            "fBrief,fInvID,fOrderID,fUser,fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate) Values "
            "('03/15/2024',1,0,2,'202403PZ00001',0,100,30,'货款','CK1','HT1','admin','张三','',2,"
            "'USD',7.1234)");
  EXPECT_EQ(world.One("select fDate from tAccountDetail"), "2024-03-15");
}

TEST_F(EntrySave, StoresANewEntryOfAMoneyAccountWithoutALink) {
  frmZj& form = KeyNew(kAccounts);
  form.cboAcntName.SetTag("2");
  ASSERT_TRUE(Save(form));
  EXPECT_EQ(LastStatement("Insert"),
            "Insert Into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
            "fBrief,fInvID,fOrderID,fUser,fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate) Values "
            "('03/15/2024',1,1,1,'202403PZ00001',0,0,30,'','','','admin','','',0,'RMB',1.0000)");
}

TEST_F(EntrySave, ReportsANewEntryAndGoesOnToTheNext) {
  frmZj& form = KeyNew();
  Save(form);
  const auto boxes = world.headless.boxes.TakeShown();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].title, "帐目新增 执行完毕！");
  EXPECT_EQ(boxes[0].text, "[票号:202403PZ00001]");
  EXPECT_EQ(boxes[0].style, box::kInformation);
  EXPECT_EQ(form.Grid2.RowCount(), 1);
  EXPECT_EQ(form.cmdAcntSave.Tag(), "1");
  EXPECT_EQ(form.txtAcnt2(1).Text(), "");
  EXPECT_EQ(form.txtAcnt2(4).Text(), "0.00");
  EXPECT_EQ(form.Focused(), &form.dtpAcntDate);
  EXPECT_FALSE(form.txtAcnt2(6).Locked());
}

TEST_F(EntrySave, KeysEntriesOneAfterAnother) {
  frmZj& form = KeyNew();
  Save(form);
  form.UserKey(Key::Named(Key::Name::Enter));
  world.Type(form.txtAcnt2(3), "5");
  Save(form);
  EXPECT_EQ(Column(form, col::kNumber), (Texts{"202403PZ00001", "202403PZ00002"}));
  EXPECT_EQ(Column(form, col::kBalance), (Texts{"-30.00", "-25.00"}));
}

TEST_F(EntrySave, WantsANumber) {
  frmZj& form = KeyNew();
  world.Type(form.txtAcnt2(1), "");
  Save(form);
  const auto boxes = world.headless.boxes.TakeShown();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, "请输入 [票号] !");
  EXPECT_EQ(boxes[0].style, box::kExclamation);
  EXPECT_EQ(boxes[0].title, "客户往来帐管理系统");
  EXPECT_EQ(form.Focused(), &form.txtAcnt2(1));
  EXPECT_EQ(Count(), "0");
  EXPECT_EQ(form.txtAcnt2(4).Text(), "30.00");
}

TEST_F(EntrySave, WantsARegisterRecord) {
  frmZj& form = KeyNew();
  form.txtAcnt2(2).SetTag("0");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{"请选择 [客户单位] !"});
  EXPECT_EQ(Count(), "0");
}

TEST_F(EntrySave, WantsOneOfTheAmounts) {
  frmZj& form = KeyNew();
  world.Type(form.txtAcnt2(4), "0");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{"请输入 [进帐金额/进帐金额] !"});
  EXPECT_EQ(form.Focused(), &form.txtAcnt2(4));
  EXPECT_EQ(Count(), "0");
  world.Type(form.txtAcnt2(3), "1");
  Save(form);
  EXPECT_EQ(Count(), "1");
}

TEST_F(EntrySave, NamesOneAmountWhileTheOpeningAmountIsHidden) {
  frmZj& form = KeyNew(kAccounts);
  world.Type(form.txtAcnt2(4), "0");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{"请输入 [进帐金额] !"});
}

TEST_F(EntrySave, SaysThatAVanishedEntryIsGone) {
  const std::string id = Add({.number = "N1", .a = "1"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  world.Sql("delete from tAccountDetail;");
  world.Statements();
  Save(form);
  const auto boxes = world.headless.boxes.TakeShown();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, "N1：帐目已不存在！");
  EXPECT_EQ(boxes[0].style, box::kCritical);
  EXPECT_EQ(world.Statements(),
            Texts{"select count(*) from tAccountDetail Where fID=" + id + " And fType1=0"});
}

TEST_F(EntrySave, WantsAnEntryToChange) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{"请选择[帐目] !"});
}

TEST_F(EntrySave, ChangesAnEntryWithTheDesignedStatement) {
  const std::string id = Add({.number = "N1",
                              .a = "1",
                              .inv = "'CK1'",
                              .order = "'HT1'",
                              .doneman = "'李四'",
                              .id2 = "2"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  form.UserDate(form.dtpAcntDate, Date::FromYmd(2024, 12, 9));
  form.UserClick(form.optType2(2));
  world.Type(form.txtAcnt2(4), "2.5");
  world.Type(form.txtAcnt2(6), "新");
  form.UserClick(form.chkAcntInit);
  Save(form);
  EXPECT_EQ(LastStatement("Update"),
            "Update tAccountDetail Set fDate='12/09/2024',fCompID=1,fType1=0,fType2=2,fAcntNo='N1',"
            "fInit=1,fMoneyA=1,fMoneyB=2.5,fBrief='新',fInvID='CK1',fOrderID='HT1',fUser='admin',"
            "fDoneman='李四',fChecker='',fID2=2,fMoneyCode='RMB',fMoneyRate=1.0000 Where fID=" +
                id);
  const auto boxes = world.headless.boxes.TakeShown();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].title, "帐目修改 执行完毕！");
  EXPECT_EQ(boxes[0].text, "[票号:N1]");
}

TEST_F(EntrySave, SelectsTheChangedEntryAgain) {
  Add({.number = "N1", .a = "1"});
  const std::string id = Add({.number = "N2", .a = "1"});
  Add({.number = "N3", .a = "1"});
  frmZj& form = Open();
  form.UserCell(form.Grid2, 1, 2);
  form.UserClick(form.cmdAction(2));
  form.UserDate(form.dtpAcntDate, Date::FromYmd(2025, 1, 1));
  Save(form);
  EXPECT_EQ(form.Grid2.ActiveRow(), 3);
  EXPECT_EQ(form.chkAcntInit.Tag(), id);
  EXPECT_EQ(form.cmdAcntSave.Tag(), "2");
}

TEST_F(EntrySave, MovesAnEntryToTheRecordThatTheRegisterWentTo) {
  const std::string id = Add({.a = "1"});
  frmZj& form = Open();
  form.UserClick(form.OptSelect(0));
  form.UserClick(form.cmdAction(2));
  form.UserCell(form.Grid1, 1, 2);
  Save(form);
  EXPECT_EQ(world.One("select fCompID from tAccountDetail where fID=" + id), "2");
}

TEST_F(EntrySave, StoresAnUncheckedEntryWhateverRowIsMarkedMeanwhile) {
  Add({.a = "1"});
  Add({.number = "N2", .a = "1", .checker = "'王'"});
  frmZj& form = KeyNew();
  form.UserCell(form.Grid2, 2, 2);
  EXPECT_EQ(form.lblSHR.Caption(), "");
  Save(form);
  EXPECT_EQ(Count(), "3");
  EXPECT_EQ(world.One("select count(*) from tAccountDetail where fChecker<>''"), "1");
}

TEST_F(EntrySave, RefusesATextWithAQuoteFromOutside) {
  const std::string id = Add({.a = "1", .brief = "'O''Neil'"});
  const Texts before = EntryRow(id);
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{"文本错误: 文本中不可含有<引号>或<单引号> !"});
  EXPECT_EQ(EntryRow(id), before);
}

TEST_F(EntrySave, ReportsABrokenConnectionAndStaysUsable) {
  const std::string id = Add({.a = "1"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  world.Type(form.txtAcnt2(6), "新");
  Data().Close();
  EXPECT_FALSE(Save(form));
  EXPECT_EQ(world.headless.boxes.TakeErrors(),
            Texts{"Operation is not allowed when the connection is closed"});
  EXPECT_TRUE(world.Messages().empty());
  EXPECT_EQ(form.txtAcnt2(6).Text(), "新");
  EXPECT_TRUE(form.Grid2.Visible());
  ASSERT_TRUE(OpenData());
  EXPECT_TRUE(Save(form));
  EXPECT_EQ(world.One("select fBrief from tAccountDetail where fID=" + id), "新");
}

TEST_F(EntrySave, GivesACopyOfACounterEntryNoLink) {
  Add({.type1 = 1, .number = "N1", .b = "10", .id2 = "57"});
  frmZj& form = KeyNew(kAccounts);
  form.UserCell(form.Grid2, 2, 1);
  Save(form);
  EXPECT_EQ(world.One("select fID2 from tAccountDetail order by fID desc"), "0");
}

// Loading an entry and saving it untouched must leave its row as it was, whatever it holds.

struct RoundTripCase {
  std::string name;
  Entry entry;
};

class EntryRoundTrip : public LedgerTest, public ::testing::WithParamInterface<RoundTripCase> {
 protected:
  void ChangeUntouched(frmZj& form, const std::string& id) {
    const Texts before = EntryRow(id);
    form.UserClick(form.cmdAction(2));
    ASSERT_TRUE(form.cmdAcntSave.Enabled());
    // Enter walks through every field and presses the save button at the end.
    for (int i = 0; i < 20 && form.Focused() != &form.cmdAcntSave; ++i) {
      form.UserKey(Key::Named(Key::Name::Enter));
    }
    ASSERT_EQ(form.Focused(), &form.cmdAcntSave);
    form.UserKey(Key::Named(Key::Name::Enter));
    ASSERT_EQ(world.Messages().size(), 1u);
    EXPECT_EQ(EntryRow(id), before);
  }
};

TEST_P(EntryRoundTrip, LeavesCustomersEntriesAsTheyWereOnEveryTab) {
  Entry entry = GetParam().entry;
  for (const char* type2 : {"1", "2"}) {
    entry.type2 = type2;
    const std::string id = Add(entry);
    frmZj& form = Open();
    for (int tab : {0, 2, 1}) {
      form.UserTab(form.SSTab2, tab);
      ChangeUntouched(form, id);
    }
    world.Sql("delete from tAccountDetail;");
    form.UserClick(form.cmdAcntRefresh);
  }
}

TEST_P(EntryRoundTrip, LeavesMoneyAccountsEntriesAsTheyWereOnEveryTab) {
  Entry entry = GetParam().entry;
  entry.type1 = 1;
  for (const char* type2 : {"1", "2"}) {
    entry.type2 = type2;
    const std::string id = Add(entry);
    frmZj& form = Open(kAccounts);
    for (int tab : {0, 2, 1}) {
      form.UserTab(form.SSTab2, tab);
      ChangeUntouched(form, id);
    }
    world.Sql("delete from tAccountDetail;");
    form.UserClick(form.cmdAcntRefresh);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Entries, EntryRoundTrip,
    ::testing::Values(
        RoundTripCase{"Plain", {.a = "100", .b = "30"}},
        RoundTripCase{"Opening", {.init = "1", .a = "100"}},
        RoundTripCase{"OpeningFlagOf2", {.init = "2", .a = "100"}},
        RoundTripCase{"ForeignCurrency", {.b = "10", .code = "'USD'", .rate = "6.5"}},
        RoundTripCase{"UnknownCurrency", {.b = "10", .code = "'XYZ'", .rate = "3"}},
        RoundTripCase{"Linked", {.b = "10", .id2 = "2"}},
        RoundTripCase{"LinkedToAnUnknownAccount", {.b = "10", .id2 = "4711"}},
        RoundTripCase{"ManyDecimals", {.a = "0.1+0.2", .b = "12.345", .rate = "7.123456789"}},
        RoundTripCase{"BigAmounts", {.a = "123456789012.34", .b = "1e15"}},
        RoundTripCase{"TinyAmounts", {.a = "0.00001", .b = "1", .rate = "0.0000123"}},
        RoundTripCase{"NegativeAmounts", {.a = "-5", .b = "-0.01"}},
        RoundTripCase{"TrailingBlanks",
                      {.b = "1", .brief = "' x  '", .inv = "'a '", .doneman = "'b '"}},
        RoundTripCase{"NamesNoLongerListed", {.b = "1", .user = "'gone'", .doneman = "'left'"}},
        RoundTripCase{"NumbersAsTexts",
                      {.number = "0012", .b = "1", .inv = "'007'", .order = "'1e3'"}},
        RoundTripCase{"TextsBeyondTheLimits",
                      {.number = "123456789012345678901234567890", .b = "1"}},
        RoundTripCase{"Nulls",
                      {.init = "null",
                       .b = "1",
                       .brief = "null",
                       .inv = "null",
                       .order = "null",
                       .user = "null",
                       .doneman = "null",
                       .checker = "null",
                       .id2 = "null",
                       .code = "null",
                       .rate = "null"}}),
    [](const auto& info) { return info.param.name; });

TEST_F(EntrySave, KeepsADirectionThatIsNeither1Nor2) {
  const std::string id = Add({.type2 = "0", .a = "1"});
  const Texts before = EntryRow(id);
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  Save(form);
  EXPECT_EQ(EntryRow(id), before);
}

TEST_F(EntrySave, WritesWhatTheUserChangedAndNothingElse) {
  const std::string id =
      Add({.a = "12.345", .b = "1", .brief = "null", .inv = "null", .rate = "7.123456789"});
  frmZj& form = Open();
  Texts wanted = EntryRow(id);
  form.UserClick(form.cmdAction(2));
  world.Type(form.txtAcnt2(6), "新");
  world.Type(form.txtAcnt2(4), "2");
  Save(form);
  wanted[7] = "2.0";
  wanted[8] = "'新'";
  EXPECT_EQ(EntryRow(id), wanted);
}

TEST_F(EntrySave, KeepsTheLinkOfACounterEntryThatIsChanged) {
  const std::string id = Add({.type1 = 1, .b = "10", .id2 = "57"});
  frmZj& form = Open(kAccounts);
  form.UserClick(form.cmdAction(2));
  world.Type(form.txtAcnt2(6), "新");
  Save(form);
  EXPECT_EQ(world.One("select fID2 from tAccountDetail where fID=" + id), "57");
}

}  // namespace
}  // namespace qvzj::test
