#include "ledger/editor.h"

#include "services/connect.h"
#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

using basic::Date;
using ui::Key;

class EntryEditor : public LedgerTest {
 protected:
  void Press(frmZj& form, Key::Name name) { form.UserKey(Key::Named(name)); }
};

TEST_F(EntryEditor, IsHiddenUntilAnActionIsPressed) {
  frmZj& form = Open();
  EXPECT_FALSE(form.picAcnt.Visible());
  form.UserClick(form.cmdAction(1));
  EXPECT_TRUE(form.picAcnt.Visible());
}

TEST_F(EntryEditor, TakesItsTitleFromThePressedButton) {
  Add({});
  frmZj& form = Open();
  const Texts titles = {"帐目查看", "帐目新增", "帐目修改", "帐目删除", "帐目审核"};
  for (int i = 0; i <= 4; ++i) {
    ASSERT_TRUE(form.UserClick(form.cmdAction(i)));
    EXPECT_EQ(form.lblAcntTitle.Caption(), titles[static_cast<size_t>(i)]);
    EXPECT_EQ(form.cmdAcntSave.Tag(), std::to_string(i));
  }
}

TEST_F(EntryEditor, LeadsTheFocusToWhatTheActionNeeds) {
  Add({});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(0));
  EXPECT_EQ(form.Focused(), &form.cmdAcntCancel);
  form.UserClick(form.cmdAction(1));
  EXPECT_EQ(form.Focused(), &form.dtpAcntDate);
  form.UserClick(form.cmdAction(2));
  EXPECT_EQ(form.Focused(), &form.dtpAcntDate);
  form.UserClick(form.cmdAction(3));
  EXPECT_EQ(form.Focused(), &form.cmdAcntSave);
  form.UserClick(form.cmdAction(4));
  EXPECT_EQ(form.Focused(), &form.cmdAcntSave);
}

TEST_F(EntryEditor, CannotSaveWhileOnlyLooking) {
  Add({});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(0));
  EXPECT_FALSE(form.cmdAcntSave.Enabled());
  form.UserClick(form.cmdAction(2));
  EXPECT_TRUE(form.cmdAcntSave.Enabled());
}

TEST_F(EntryEditor, ShowsEveryColumnOfTheEntry) {
  const std::string id = Add({.date = "2024-02-29",
                              .type2 = "2",
                              .number = "202402PZ00001",
                              .init = "1",
                              .a = "12.5",
                              .b = "7",
                              .brief = "'货款'",
                              .inv = "'CK1'",
                              .order = "'HT1'",
                              .user = "'李'",
                              .doneman = "'张三'",
                              .id2 = "2",
                              .code = "'USD'",
                              .rate = "6.5"});
  frmZj& form = Open();
  EXPECT_EQ(form.dtpAcntDate.Value(), Date::FromYmd(2024, 2, 29));
  EXPECT_TRUE(form.optType2(2).Selected());
  EXPECT_EQ(form.txtAcnt2(1).Text(), "202402PZ00001");
  EXPECT_EQ(form.txtAcnt2(2).Text(), "甲公司");
  EXPECT_EQ(form.txtAcnt2(2).Tag(), "1");
  EXPECT_EQ(form.txtAcnt2(3).Text(), "12.50");
  EXPECT_EQ(form.txtAcnt2(4).Text(), "7.00");
  EXPECT_EQ(form.txtAcnt2(5).Text(), "-5.50");
  EXPECT_EQ(form.txtAcnt2(6).Text(), "货款");
  EXPECT_EQ(form.txtAcnt2(7).Text(), "CK1");
  EXPECT_EQ(form.txtAcnt2(8).Text(), "HT1");
  EXPECT_EQ(form.txtAcnt2(9).Text(), "李");
  EXPECT_EQ(form.cboDoneMan.Text(), "张三");
  EXPECT_EQ(form.chkAcntInit.Value(), 1);
  EXPECT_EQ(form.chkAcntInit.Tag(), id);
  EXPECT_EQ(form.cboHb.Text(), "USD");
  EXPECT_EQ(form.txtHbRate.Text(), "6.5000");
  EXPECT_EQ(form.chkAcntName.Value(), 1);
  EXPECT_EQ(form.cboAcntName.ListIndex(), 1);
  EXPECT_EQ(form.cboAcntName.Tag(), "2");
  EXPECT_EQ(form.cmdAcntCancel.Tag(), "202402PZ00001");
}

TEST_F(EntryEditor, UndoesTheGridsSignsOnEveryTab) {
  Add({.number = "N1", .a = "100", .b = "30"});
  Add({.type2 = "2", .number = "N2", .a = "50", .b = "20"});
  frmZj& form = Open();
  for (int tab : {1, 2, 0, 2}) {
    form.UserTab(form.SSTab2, tab);
    for (bool reload : {false, true}) {
      if (reload) Load(form);
      form.UserCell(form.Grid2, 2, 1);
      EXPECT_EQ(form.txtAcnt2(3).Text(), "100.00");
      EXPECT_EQ(form.txtAcnt2(4).Text(), "30.00");
      form.UserCell(form.Grid2, 2, 2);
      EXPECT_EQ(form.txtAcnt2(3).Text(), "50.00");
      EXPECT_EQ(form.txtAcnt2(4).Text(), "20.00");
    }
  }
}

TEST_F(EntryEditor, UndoesTheSignsOfMoneyAccountsOnEveryTab) {
  Add({.type1 = 1, .number = "N1", .init = "1", .a = "100", .b = "30"});
  Add({.type1 = 1, .type2 = "2", .number = "N2", .b = "20"});
  frmZj& form = Open(kAccounts);
  for (int tab : {2, 1, 2, 0}) {
    form.UserTab(form.SSTab2, tab);
    for (bool reload : {false, true}) {
      if (reload) Load(form);
      form.UserCell(form.Grid2, 2, 1);
      EXPECT_EQ(form.txtAcnt2(3).Text(), "100.00") << tab << reload;
      EXPECT_EQ(form.txtAcnt2(4).Text(), "30.00") << tab << reload;
      form.UserCell(form.Grid2, 2, 2);
      EXPECT_EQ(form.txtAcnt2(4).Text(), "20.00") << tab << reload;
    }
  }
}

TEST_F(EntryEditor, ShowsTheBalanceWithTheTabsSign) {
  Add({.a = "100"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(0));
  EXPECT_EQ(form.txtAcnt2(5).Text(), "100.00");
  form.UserTab(form.SSTab2, 2);
  EXPECT_EQ(form.txtAcnt2(5).Text(), "-100.00");
}

TEST_F(EntryEditor, StartsANewEntryFromTheDefaults) {
  Add({.type2 = "2",
       .init = "1",
       .a = "1",
       .b = "2",
       .inv = "'x'",
       .doneman = "'李四'",
       .checker = "'王'",
       .id2 = "2",
       .code = "'USD'",
       .rate = "6.5"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  EXPECT_EQ(form.dtpAcntDate.Value(), Date::FromYmd(2024, 3, 15));
  EXPECT_EQ(form.txtAcnt2(1).Text(), "");
  EXPECT_EQ(form.txtAcnt2(2).Text(), "甲公司");
  EXPECT_EQ(form.txtAcnt2(2).Tag(), "1");
  EXPECT_EQ(form.txtAcnt2(3).Text(), "0.00");
  EXPECT_EQ(form.txtAcnt2(4).Text(), "0.00");
  for (int i = 5; i <= 8; ++i) EXPECT_EQ(form.txtAcnt2(i).Text(), "") << i;
  EXPECT_EQ(form.txtAcnt2(9).Text(), "admin");
  EXPECT_EQ(form.cboDoneMan.Text(), "");
  EXPECT_EQ(form.chkAcntInit.Value(), 0);
  EXPECT_EQ(form.lblSHR.Caption(), "");
  EXPECT_FALSE(form.lblSHR.Visible());
  EXPECT_EQ(form.cboHb.Text(), "RMB");
}

TEST_F(EntryEditor, GivesANewEntryTheRateOfItsCurrencyAndNoLinkOfTheOneBefore) {
  Add({.id2 = "2", .code = "'USD'", .rate = "6.5"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  EXPECT_EQ(form.txtHbRate.Text(), "1.0000");
  EXPECT_EQ(form.chkAcntName.Value(), 0);
  EXPECT_EQ(form.cboAcntName.ListIndex(), -1);
  EXPECT_EQ(form.cboAcntName.Tag(), "0");
}

TEST_F(EntryEditor, LocksTheFieldsUnlessTheEntryIsKeyed) {
  Add({});
  frmZj& form = Open();
  for (int action : {0, 1, 2, 3, 4, 0, 2}) {
    form.UserClick(form.cmdAction(action));
    const bool locked = action != 1 && action != 2;
    for (int i : {1, 3, 4, 6, 7, 8}) EXPECT_EQ(form.txtAcnt2(i).Locked(), locked) << action << i;
    EXPECT_EQ(form.cboDoneMan.Locked(), locked);
    EXPECT_EQ(form.txtHbRate.Locked(), locked);
    EXPECT_EQ(form.optType2(1).Enabled(), !locked);
    EXPECT_EQ(form.optType2(2).Enabled(), !locked);
    EXPECT_EQ(form.dtpAcntDate.Enabled(), !locked);
    const bool linkable = !locked || action == 4;
    EXPECT_EQ(form.chkAcntName.Enabled(), linkable) << action;
    EXPECT_EQ(form.cboAcntName.Locked(), !linkable) << action;
  }
}

TEST_F(EntryEditor, NeverLetsTheNameOrTheBalanceBeTyped) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  EXPECT_TRUE(form.txtAcnt2(2).Locked());
  EXPECT_TRUE(form.txtAcnt2(5).Locked());
}

TEST_F(EntryEditor, OffersACheckedEntryNeitherChangeNorDelete) {
  Add({.number = "N1", .checker = "'王'"});
  Add({.number = "N2"});
  frmZj& form = Open();
  EXPECT_FALSE(form.cmdAction(2).Enabled());
  EXPECT_FALSE(form.cmdAction(3).Enabled());
  EXPECT_EQ(form.cmdAction(4).Caption(), "帐目反审(&K)");
  EXPECT_EQ(form.lblSHR.Caption(), "王");
  EXPECT_TRUE(form.lblSHR.Visible());
  EXPECT_TRUE(form.fraSHR.Visible());
  EXPECT_EQ(form.fraSHR.GetBounds().left, form.lblSHR.GetBounds().left - 50);
  EXPECT_EQ(form.fraSHR.GetBounds().width, form.lblSHR.GetBounds().width + 100);
  form.UserCell(form.Grid2, 1, 2);
  EXPECT_TRUE(form.cmdAction(2).Enabled());
  EXPECT_TRUE(form.cmdAction(3).Enabled());
  EXPECT_EQ(form.cmdAction(4).Caption(), "帐目审核(&K)");
  EXPECT_FALSE(form.fraSHR.Visible());
}

TEST_F(EntryEditor, CannotLinkACheckedEntry) {
  Add({.checker = "'王'"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(4));
  EXPECT_EQ(form.lblAcntTitle.Caption(), "帐目反审");
  EXPECT_FALSE(form.chkAcntName.Enabled());
  EXPECT_TRUE(form.cboAcntName.Locked());
}

TEST_F(EntryEditor, FormatsAmountsWhenTheyAreLeft) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  for (const char* no_number : {"1e400", "-1e999"}) {
    world.Type(form.txtAcnt2(4), no_number);
    form.UserKey(Key::Named(Key::Name::Enter));
    EXPECT_EQ(form.txtAcnt2(4).Text(), "0.00") << no_number;
  }
  world.Type(form.txtAcnt2(3), "abc");
  form.SendTab();
  EXPECT_EQ(form.txtAcnt2(3).Text(), "0.00");
  world.Type(form.txtAcnt2(4), "12.5");
  form.SendTab();
  EXPECT_EQ(form.txtAcnt2(4).Text(), "12.50");
  world.Type(form.txtAcnt2(4), "");
  form.SendTab();
  EXPECT_EQ(form.txtAcnt2(4).Text(), "0.00");
}

TEST_F(EntryEditor, ReadsAmountsAsPeopleWriteThem) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  const std::vector<std::pair<std::string, std::string>> amounts = {
      {"1,234.5", "1234.50"}, {"-12,345,678.9", "-12345678.90"},
      {"１２．５", "12.50"},  {"１，２３４", "1234.00"},
      {"－３", "-3.00"},      {"12,5x", "0.00"},
      {",", "0.00"},          {" 7 ", "7.00"},
  };
  for (const auto& [typed, shown] : amounts) {
    world.Type(form.txtAcnt2(4), typed);
    form.SendTab();
    EXPECT_EQ(form.txtAcnt2(4).Text(), shown) << typed;
  }
}

TEST_F(EntryEditor, RefusesASingleQuoteInEveryTextUntilEscTakesItBack) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  for (int i : {1, 3, 4, 6, 7, 8, 9}) {
    ui::TextBox& box = form.txtAcnt2(i);
    form.UserFocus(box);
    const std::string before = box.Text();
    world.Type(box, "a'b");
    EXPECT_FALSE(form.SendTab());
    EXPECT_EQ(form.Focused(), &box) << i;
    EXPECT_EQ(world.Messages(), Texts{"文本错误: 文本中不可含有<引号>或<单引号> !"});
    Press(form, Key::Name::Escape);
    EXPECT_EQ(box.Text(), before);
    EXPECT_TRUE(form.SendTab());
  }
  world.Type(form.cboDoneMan, "O'Neil");
  EXPECT_FALSE(form.SendTab());
  EXPECT_EQ(world.Messages().size(), 1u);
  Press(form, Key::Name::Escape);
}

TEST_F(EntryEditor, LetsAFieldBeLeftWhoseTextCameWithAQuote) {
  Add({.brief = "'O''Neil'"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  form.UserFocus(form.txtAcnt2(6));
  EXPECT_TRUE(form.UserClick(form.cmdAcntCancel));
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(EntryEditor, SelectsTheWholeTextOfAFieldThatGetsTheFocus) {
  Add({.brief = "'货款'"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  form.UserFocus(form.txtAcnt2(6));
  EXPECT_EQ(form.txtAcnt2(6).SelStart(), 0);
  EXPECT_EQ(form.txtAcnt2(6).SelLength(), 2);
}

TEST_F(EntryEditor, WalksThroughTheFieldsWithEnter) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  Texts walked;
  while (form.Focused() != &form.cmdAcntSave && walked.size() < 30) {
    walked.push_back(form.Focused()->FullName());
    Press(form, Key::Name::Enter);
  }
  EXPECT_EQ(walked,
            (Texts{"dtpAcntDate", "txtAcnt2(1)", "optType2(1)", "chkAcntInit", "txtAcnt2(3)",
                   "txtAcnt2(4)", "cboHb", "txtHbRate", "chkAcntName", "cboAcntName", "txtAcnt2(6)",
                   "txtAcnt2(7)", "txtAcnt2(8)", "txtAcnt2(9)", "cboDoneMan"}));
}

TEST_F(EntryEditor, ProposesANumberForEveryChangedDateOfANewEntry) {
  Add({.number = "202404PZ00007"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  form.UserDate(form.dtpAcntDate, Date::FromYmd(2024, 4, 2));
  EXPECT_EQ(form.txtAcnt2(1).Text(), "202404PZ00008");
  form.UserDate(form.dtpAcntDate, Date::FromYmd(2024, 5, 2));
  EXPECT_EQ(form.txtAcnt2(1).Text(), "202405PZ00001");
}

TEST_F(EntryEditor, KeepsTheNumberWhenTheDateOfAnOldEntryChanges) {
  Add({.number = "N1"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  form.UserDate(form.dtpAcntDate, Date::FromYmd(2024, 5, 2));
  Press(form, Key::Name::Enter);
  EXPECT_EQ(form.txtAcnt2(1).Text(), "N1");
}

TEST_F(EntryEditor, ProposesANumberWhenTheDateIsLeftWithoutOne) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  Press(form, Key::Name::Enter);
  EXPECT_EQ(form.txtAcnt2(1).Text(), "202403PZ00001");
  world.Type(form.txtAcnt2(1), "MINE");
  form.UserFocus(form.dtpAcntDate);
  Press(form, Key::Name::Enter);
  EXPECT_EQ(form.txtAcnt2(1).Text(), "MINE");
}

TEST_F(EntryEditor, LetsTheDateBeLeftWhenNoNumberCanBeRead) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  Data().Close();
  form.UserClick(form.cmdAcntCancel);
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
  EXPECT_TRUE(form.UserClick(form.cmdAcntCancel));
  EXPECT_FALSE(form.picAcnt.Visible());
}

TEST_F(EntryEditor, ReadsTheRateOfTheChosenCurrency) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  form.UserFocus(form.cboHb);
  world.Statements();
  form.UserChoose(form.cboHb, 1);
  EXPECT_EQ(form.txtHbRate.Text(), "7.1234");
  EXPECT_EQ(world.Statements(), Texts{"Select MoneyRate from Moneys where MoneyCode='USD'"});
}

TEST_F(EntryEditor, TakesAFullWidthRateFromAnInputMethod) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  form.UserFocus(form.txtHbRate);
  form.UserSelect(form.txtHbRate, 0, 20);
  form.UserInsert(form.txtHbRate, "７．１２");
  EXPECT_EQ(form.txtHbRate.Text(), "7.12");
}

TEST_F(EntryEditor, TakesOnlyNumberKeysIntoTheRate) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  world.Type(form.txtHbRate, "6x.8a3.1");
  EXPECT_EQ(form.txtHbRate.Text(), "6.831");
  form.UserInsert(form.txtHbRate, "二5");
  EXPECT_EQ(form.txtHbRate.Text(), "6.8315");
  form.SendTab();
  EXPECT_EQ(form.txtHbRate.Text(), "6.8315");
}

TEST_F(EntryEditor, GivesAnEmptiedRateTheCurrencysRateBack) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  form.UserChoose(form.cboHb, 1);
  world.Type(form.txtHbRate, "");
  form.SendTab();
  EXPECT_EQ(form.txtHbRate.Text(), "7.1234");
}

TEST_F(EntryEditor, ShowsTheOpeningAmountOfAnAccountOnlyWithAnOpeningBalance) {
  frmZj& form = Open(kAccounts);
  form.UserClick(form.cmdAction(1));
  EXPECT_FALSE(form.txtAcnt2(3).Visible());
  EXPECT_FALSE(form.lblAcnt2(3).Visible());
  form.UserClick(form.optType2(2));
  form.UserClick(form.chkAcntInit);
  EXPECT_TRUE(form.txtAcnt2(3).Visible());
  EXPECT_TRUE(form.lblAcnt2(3).Visible());
  EXPECT_TRUE(form.optType2(1).Selected());
  EXPECT_EQ(form.Focused(), &form.txtAcnt2(3));
  world.Type(form.txtAcnt2(3), "5");
  form.UserClick(form.chkAcntInit);
  EXPECT_EQ(form.txtAcnt2(3).Text(), "0.00");
  EXPECT_FALSE(form.txtAcnt2(3).Visible());
  EXPECT_FALSE(form.lblAcnt2(3).Visible());
}

TEST_F(EntryEditor, ShowsTheOpeningAmountOfARowWithAnOpeningBalance) {
  Add({.type1 = 1, .number = "N1", .init = "1", .a = "5"});
  Add({.type1 = 1, .number = "N2", .b = "5"});
  frmZj& form = Open(kAccounts);
  EXPECT_TRUE(form.txtAcnt2(3).Visible());
  form.UserCell(form.Grid2, 1, 2);
  EXPECT_FALSE(form.txtAcnt2(3).Visible());
}

TEST_F(EntryEditor, KeepsBothAmountsOfCustomersInSightWithAnOpeningBalance) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  form.UserClick(form.optType2(2));
  form.UserClick(form.chkAcntInit);
  EXPECT_TRUE(form.optType2(2).Selected());
  form.UserClick(form.chkAcntInit);
  EXPECT_TRUE(form.txtAcnt2(3).Visible());
}

TEST_F(EntryEditor, LinksTheAccountThatTheUserChooses) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  form.UserChoose(form.cboAcntName, 1);
  EXPECT_EQ(form.cboAcntName.Tag(), "2");
  EXPECT_EQ(form.chkAcntName.Value(), 1);
  form.UserClick(form.chkAcntName);
  EXPECT_EQ(form.cboAcntName.Tag(), "0");
  EXPECT_EQ(form.cboAcntName.ListIndex(), -1);
  form.UserClick(form.chkAcntName);
  EXPECT_EQ(form.Focused(), &form.cboAcntName);
}

TEST_F(EntryEditor, LinksNothingWhileNoAccountIsChosen) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  form.UserClick(form.chkAcntName);
  EXPECT_EQ(form.Focused(), &form.cboAcntName);
  EXPECT_EQ(form.chkAcntName.Value(), 0);
  EXPECT_EQ(form.cboAcntName.Tag(), "0");
  form.UserChoose(form.cboAcntName, 0);
  EXPECT_EQ(form.chkAcntName.Value(), 1);
}

TEST_F(EntryEditor, UnlinksAnAccountThatIsGoneWhenItsMarkIsTakenOffAndPutBack) {
  Add({.a = "1", .id2 = "9"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  EXPECT_EQ(form.chkAcntName.Value(), 1);
  form.UserClick(form.chkAcntName);
  form.UserClick(form.chkAcntName);
  EXPECT_EQ(form.chkAcntName.Value(), 0);
  EXPECT_EQ(form.cboAcntName.Tag(), "0");
}

TEST_F(EntryEditor, ChoosesAnAccountByItsIdOnly) {
  frmZj& form = Open();
  SelectAccountById(form, 2);
  EXPECT_EQ(form.cboAcntName.ListIndex(), 1);
  for (int32_t id : {0, -1, 99}) {
    SelectAccountById(form, id);
    EXPECT_EQ(form.cboAcntName.ListIndex(), -1);
  }
}

TEST_F(EntryEditor, ShowsNoLinkInMoneyAccountsMode) {
  frmZj& form = Open(kAccounts);
  EXPECT_FALSE(form.chkAcntName.Visible());
  EXPECT_FALSE(form.cboAcntName.Visible());
}

TEST_F(EntryEditor, RunsNoUserEventWhenARowIsShown) {
  Add({.type1 = 1, .type2 = "2", .init = "1", .a = "5", .code = "'USD'", .rate = "6.5"});
  frmZj& form = Open(kAccounts);
  EXPECT_TRUE(form.optType2(2).Selected());
  EXPECT_EQ(form.txtHbRate.Text(), "6.5000");
  EXPECT_NE(form.Focused(), &form.txtAcnt2(3));
}

TEST_F(EntryEditor, KeepsTheByteLimitsOnTypingPastingAndInputMethods) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  const std::vector<std::pair<ui::EditBox*, int>> fields = {
      {&form.txtAcnt2(1), 20}, {&form.txtAcnt2(6), 50}, {&form.txtAcnt2(7), 20},
      {&form.txtAcnt2(8), 20}, {&form.txtAcnt2(9), 20}, {&form.cboDoneMan, 20}};
  for (const auto& [box, bytes] : fields) {
    std::string full;
    for (int i = 0; i < bytes / 2; ++i) full += "字";
    world.Type(*box, full + "多");
    EXPECT_EQ(box->Text(), full) << box->FullName();
    EXPECT_EQ(world.Messages(), Texts{"数值超出最大范围!"});
    form.UserInsert(*box, "x");
    EXPECT_EQ(box->Text(), full);
    world.Type(*box, "");
    world.headless.clipboard.SetText(full + "!");
    form.UserKey({Key::Name::Character, U'v', true});
    EXPECT_LE(basic::Len(box->Text()), bytes / 2);
    world.Messages();
    world.Type(*box, "");
  }
}

TEST_F(EntryEditor, ClosesWithoutSavingAndGoesBackToTheLedger) {
  const std::string id = Add({.brief = "'a'"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  world.Type(form.txtAcnt2(6), "changed");
  form.UserClick(form.cmdAcntCancel);
  EXPECT_FALSE(form.picAcnt.Visible());
  EXPECT_EQ(form.Focused(), &form.Grid2);
  EXPECT_EQ(form.cmdAcntSave.Tag(), "0");
  EXPECT_EQ(form.txtAcnt2(6).Text(), "a");
  EXPECT_EQ(world.One("select fBrief from tAccountDetail"), "a");
}

TEST_F(EntryEditor, HasNothingToShowInAnEmptyLedger) {
  const std::string id = Add({});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  world.Sql("insert into cards (fID,CompCode,compname) values (3,'C003','丙公司');");
  form.UserClick(form.cmdAcntRefresh);
  form.UserCell(form.Grid1, 1, 3);
  ASSERT_EQ(form.Grid2.RowCount(), 0);
  form.UserClick(form.cmdAction(3));
  EXPECT_EQ(form.chkAcntInit.Tag(), "0");
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(world.Messages(), Texts{"请选择[帐目] !"});
  EXPECT_FALSE(EntryRow(id).empty());
}

TEST_F(EntryEditor, KeepsAHalfKeyedNewEntryWhenTheLedgerIsReloaded) {
  Add({.comp = 2, .number = "OLD", .a = "1", .checker = "'王'"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  world.Type(form.txtAcnt2(6), "半截");
  form.UserCell(form.Grid1, 1, 2);
  EXPECT_EQ(form.Grid2.RowCount(), 1);
  EXPECT_EQ(form.txtAcnt2(6).Text(), "半截");
  EXPECT_EQ(form.txtAcnt2(1).Text(), "202403PZ00001");
  EXPECT_EQ(form.txtAcnt2(2).Text(), "乙公司");
  EXPECT_EQ(form.txtAcnt2(2).Tag(), "2");
  EXPECT_FALSE(form.cmdAction(2).Enabled());
}

}  // namespace
}  // namespace qvzj::test
