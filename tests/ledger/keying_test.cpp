#include "screen/current.h"
#include "screen/indexes.h"
#include "tests/ledger/ledger_world.h"

// An entry as it is keyed: what stays in the editor, what the ledger shows meanwhile, and how the
// editor is left.
namespace qvzj::test {
namespace {

/// Two entries of the first customer, the second one checked, and the keys of a clerk.
class Keying : public LedgerTest {
 protected:
  Keying() {
    Add({.number = "N1", .a = "100"});
    Add({.number = "N2", .a = "200", .checker = "'李四'"});
    Add({.date = "2024-03-09", .number = "N3", .a = "300"});
  }
  void Arm(int action) { ASSERT_TRUE(world.Form().UserClick(world.Form().cmdAction(action))); }
  void Key(const std::string& key) { world.Form().UserKey(ui::ParseKey(key).value()); }
  void Digits(const std::string& digits) {
    for (const char digit : digits) Key(std::string(1, digit));
  }
  std::string Brief() { return world.Form().txtAcnt2(EntryBox::Brief).Text(); }
  std::string Number() { return world.Form().txtAcnt2(EntryBox::Number).Text(); }
  /// Voucher number in the highlighted row of the ledger.
  std::string Highlighted() {
    return world.Form().Grid2.CellText(col::kNumber, world.Form().Grid2.ActiveRow());
  }
};

TEST_F(Keying, KeepsANewEntryWhileTheLedgerIsWalkedThrough) {
  frmZj& form = Open();
  Arm(kActionNew);
  world.Type(form.txtAcnt2(EntryBox::Brief), "半途");
  ASSERT_TRUE(form.UserCell(form.Grid2, 1, 2));
  Key("Down");
  EXPECT_EQ(Brief(), "半途");
  EXPECT_EQ(Highlighted(), "N3");
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(Keying, BooksNoOldEntryTwiceAfterALookAtTheLedger) {
  frmZj& form = Open();
  Arm(kActionNew);
  world.Type(form.txtAcnt2(EntryBox::MoneyB), "5");
  ASSERT_TRUE(form.UserCell(form.Grid2, 1, 3));
  form.UserFocus(form.dtpAcntDate);
  Key("Alt+S");
  EXPECT_EQ(world.One("select count(*) from tAccountDetail where fAcntNo like 'N%'"), "3");
  EXPECT_EQ(world.One("select fMoneyB from tAccountDetail where fID=4"), "5");
}

TEST_F(Keying, OffersTheActionsOfTheMarkedRowAndStillSavesTheNewEntry) {
  frmZj& form = Open();
  Arm(kActionNew);
  ASSERT_TRUE(form.UserCell(form.Grid2, 1, 2));  // checked
  EXPECT_FALSE(form.cmdAction(kActionChange).Enabled());
  EXPECT_TRUE(form.cmdAcntSave.Enabled());
  EXPECT_FALSE(form.txtAcnt2(EntryBox::Brief).Locked());
}

TEST_F(Keying, MovesAHalfKeyedEntryToTheCustomerThatIsChosen) {
  frmZj& form = Open();
  Arm(kActionNew);
  world.Type(form.txtAcnt2(EntryBox::Brief), "半途");
  ASSERT_TRUE(form.UserCell(form.Grid1, 2, 2));
  EXPECT_EQ(form.txtAcnt2(EntryBox::Record).Text(), "乙公司");
  EXPECT_EQ(Brief(), "半途");
}

TEST_F(Keying, KeepsAChangeThroughAReloadOfTheLedger) {
  frmZj& form = Open();
  Arm(kActionChange);
  world.Type(form.txtAcnt2(EntryBox::Brief), "改动");
  ASSERT_TRUE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_EQ(Brief(), "改动");
  EXPECT_EQ(Number(), "N1");
  EXPECT_EQ(Highlighted(), "N1");
  ASSERT_TRUE(form.UserClick(form.cmdAcntSave));
  EXPECT_EQ(world.One("select fBrief from tAccountDetail where fID=1"), "改动");
}

TEST_F(Keying, ShowsTheEntryAnewAfterItsChangeWasSaved) {
  frmZj& form = Open();
  Arm(kActionChange);
  world.Type(form.txtAcnt2(EntryBox::MoneyA), "12");
  ASSERT_TRUE(form.UserClick(form.cmdAcntSave));
  world.Messages();
  EXPECT_EQ(form.txtAcnt2(EntryBox::MoneyA).Text(), "12.00");
  ASSERT_TRUE(form.UserCell(form.Grid2, 1, 3));  // nothing is unsaved any more
  EXPECT_TRUE(world.Messages().empty());
  EXPECT_EQ(Number(), "N3");
}

TEST_F(Keying, TakesADateAtOnceAfterASave) {
  frmZj& form = Open();
  Arm(kActionNew);
  world.Type(form.txtAcnt2(EntryBox::MoneyB), "5");
  Key("Alt+S");
  ASSERT_EQ(form.Focused(), &form.dtpAcntDate);
  Digits("20261118");
  EXPECT_EQ(Number(), "202611PZ00001");
  world.Type(form.txtAcnt2(EntryBox::MoneyB), "7");
  Key("Alt+S");
  EXPECT_EQ(world.One("select fDate from tAccountDetail where fMoneyB=7"), "2026-11-18");
}

TEST_F(Keying, TakesAHalfTypedDateWithTheSave) {
  frmZj& form = Open();
  Arm(kActionNew);
  world.Type(form.txtAcnt2(EntryBox::MoneyB), "5");
  form.UserFocus(form.dtpAcntDate);
  Digits("2025");
  Key("Alt+S");
  EXPECT_EQ(world.One("select fDate from tAccountDetail where fMoneyB=5"), "2025-03-15");
}

TEST_F(Keying, MarksTheEntryThatWasSavedInTheLedger) {
  frmZj& form = Open();
  Arm(kActionNew);
  world.Type(form.txtAcnt2(EntryBox::Number), "N2");  // a number that another entry bears
  world.Type(form.txtAcnt2(EntryBox::MoneyB), "5");
  ASSERT_TRUE(form.UserClick(form.cmdAcntSave));
  EXPECT_EQ(Highlighted(), "N2");
  const int32_t row = form.Grid2.ActiveRow();
  EXPECT_EQ(form.Grid2.CellText(col::kID, row), "4");
  EXPECT_EQ(form.Grid2.MarkedRow(), row);
  ASSERT_TRUE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_EQ(form.Grid2.CellText(col::kID, form.Grid2.ActiveRow()), "4");
}

TEST_F(Keying, MarksNothingWhereTheFilterHidesTheSavedEntry) {
  frmZj& form = Open();
  form.chkID(0).SetValue(1);
  form.txtID(0).SetText("N");
  ASSERT_TRUE(form.UserClick(form.cmdAcntRefresh));
  Arm(kActionNew);
  world.Type(form.txtAcnt2(EntryBox::MoneyB), "5");
  ASSERT_TRUE(form.UserClick(form.cmdAcntSave));
  EXPECT_EQ(form.Grid2.MarkedRow(), 0);
}

TEST_F(Keying, LeavesTheEditorByEscWhenNothingIsUnsaved) {
  frmZj& form = Open();
  for (const int action : {kActionView, kActionNew, kActionChange, kActionDelete, kActionCheck}) {
    Arm(action);
    Key("Esc");
    EXPECT_FALSE(form.picAcnt.Visible()) << action;
    EXPECT_EQ(form.Focused(), &form.Grid2) << action;
    EXPECT_EQ(ArmedAction(form), kActionView) << action;
  }
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(Keying, RestoresTheFieldByTheFirstEscAndLeavesByTheSecond) {
  frmZj& form = Open();
  Arm(kActionChange);
  world.Type(form.txtAcnt2(EntryBox::Brief), "改动");
  Key("Esc");
  EXPECT_EQ(Brief(), "摘要");
  EXPECT_TRUE(form.picAcnt.Visible());
  Key("Esc");
  EXPECT_FALSE(form.picAcnt.Visible());
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(Keying, NamesTheArmedActionInTheTitleWhateverIsShown) {
  frmZj& form = Open();
  for (const int action : {kActionView, kActionNew, kActionChange, kActionDelete, kActionCheck}) {
    Arm(action);
    const auto title = [&] { return form.lblAcntTitle.Caption(); };
    const auto armed = [&] { return basic::Left(form.cmdAction(action).Caption(), 4); };
    EXPECT_EQ(title(), armed());
    ASSERT_TRUE(form.UserCell(form.Grid2, 1, 3));
    EXPECT_EQ(title(), armed());
    ASSERT_TRUE(form.UserClick(form.cmdAcntRefresh));
    EXPECT_EQ(title(), armed());
    ASSERT_TRUE(form.UserCell(form.Grid2, 1, 1));
    EXPECT_EQ(title(), armed());
  }
}

TEST_F(Keying, AsksNothingForANumberThatTheProgramProposed) {
  Open();
  Arm(kActionNew);
  Key("Tab");
  EXPECT_EQ(Number(), "202403PZ00001");
  Arm(kActionView);
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(Keying, AsksForADateThatIsStillBeingTyped) {
  frmZj& form = Open();
  Arm(kActionNew);
  Digits("2025");
  world.Answer("cancel");
  form.UserClose();
  EXPECT_EQ(world.Messages(), Texts{"[帐目新增]尚未存盘，放弃所键入的内容 ?"});
  EXPECT_TRUE(form.Loaded());
}

TEST_F(Keying, AsksNothingWhereATypedTextIsTakenBack) {
  frmZj& form = Open();
  Arm(kActionChange);
  world.Type(form.txtAcnt2(EntryBox::Brief), "改动");
  world.Type(form.txtAcnt2(EntryBox::Brief), "摘要");
  Arm(kActionView);
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(Keying, BringsTheHighlightedRowIntoSightWhenTheEditorOpensOrCloses) {
  struct Watch : ui::FormObserver {
    void ControlChanged(ui::Control& control, ui::Aspect aspect) override {
      if (control.Name() != "Grid2") return;
      if (aspect == ui::Aspect::Bounds) shown_since = false;
      if (aspect == ui::Aspect::GridCurrent) shown_since = true;
    }
    void FormChanged(ui::Form&, ui::Aspect) override {}
    void PopUpMenu(ui::Form&, ui::MenuItem&, int32_t, int32_t) override {}
    bool shown_since = true;
  } watch;
  frmZj& form = Open();
  form.UserResize(15000, 10000, ui::WindowState::Normal);
  form.AddObserver(&watch);
  Arm(kActionView);
  EXPECT_TRUE(watch.shown_since);
  ASSERT_TRUE(form.UserClick(form.cmdAcntCancel));
  EXPECT_TRUE(watch.shown_since);
  form.RemoveObserver(&watch);
}

TEST_F(Keying, SaysWhyAButtonIsDisabled) {
  frmZj& form = Open();
  EXPECT_EQ(form.cmdSave.DisabledReason(), "详情没有改动，无须存盘");
  Arm(kActionView);
  EXPECT_EQ(form.cmdAcntSave.DisabledReason(), "正在查看帐目，没有可存盘的内容");
  ASSERT_TRUE(form.UserClick(form.cmdAcntCancel));
  Arm(kActionChange);
  ASSERT_TRUE(form.UserCell(form.Grid2, 1, 2));
  for (const int action : {kActionChange, kActionDelete}) {
    EXPECT_EQ(form.cmdAction(action).DisabledReason(), "帐目已审核，须先反审核");
  }
  EXPECT_EQ(form.cmdAcntSave.DisabledReason(), "帐目已审核，须先反审核");
  ASSERT_TRUE(form.UserCell(form.Grid2, 1, 1));
  EXPECT_EQ(form.cmdAcntSave.DisabledReason(), "");
}

TEST_F(Keying, PrintsTheListThatHadTheFocusLast) {
  frmZj& form = Open();
  form.UserFocus(form.Grid2);
  form.UserFocus(form.cboKhOrder);  // nearer to the register's button
  Key("Alt+P");
  ASSERT_EQ(world.headless.print.jobs.size(), 1u);
  EXPECT_EQ(world.headless.print.jobs.back().grid, &form.Grid2);
  form.UserFocus(form.Grid1);
  Key("Alt+P");
  EXPECT_EQ(world.headless.print.jobs.back().grid, &form.Grid1);
}

}  // namespace
}  // namespace qvzj::test
