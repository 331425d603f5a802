#include "frontends/script/script.h"

#include <gtest/gtest.h>

#include <sstream>

#include "frontends/script/script_error.h"
#include "tests/support/world.h"

namespace qvzj::script {
namespace {

using Lines = std::vector<std::string>;

class ScriptTest : public ::testing::Test {
 protected:
  /// Plays lines and answers everything they printed.
  Lines Play(const std::string& lines) {
    std::istringstream in(lines);
    printed_.clear();
    script.Run(in);
    return printed_;
  }

  void AddCustomer(const std::string& id, const std::string& name) {
    world.Sql("insert into cards (fID, CompCode, compname, fType0) values (" + id + ", 'C" + id +
              "', '" + name + "', 0);");
  }

  test::World world;
  Script script{world.control, world.headless,
                [](std::string_view) -> data::Recordset { throw ScriptError("no engine"); },
                [this](std::string_view line) { printed_.emplace_back(line); }};

 private:
  Lines printed_;
};

TEST_F(ScriptTest, SkipsBlankLinesAndRemarks) {
  EXPECT_EQ(Play("\n   \n# remark\n  # another\n"), Lines{});
  EXPECT_FALSE(script.Failed());
}

TEST_F(ScriptTest, TakesAByteOrderMarkAndLinesFromOtherSystems) {
  EXPECT_EQ(Play("\xEF\xBB\xBFproperty AlertType\r\nproperty AlertType\r\n"),
            (Lines{"AlertType=\"0\"", "AlertType=\"0\""}));
}

TEST_F(ScriptTest, ReportsAnUnknownCommandAndFails) {
  EXPECT_EQ(Play("jump"), Lines{"error: unknown command jump"});
  EXPECT_TRUE(script.Failed());
}

TEST_F(ScriptTest, TellsTheUsageOfACommandWithTooFewWords) {
  EXPECT_EQ(Play("cell Grid1"), Lines{"error: usage: cell GRID COL ROW"});
}

TEST_F(ScriptTest, GoesOnAfterAnError) {
  EXPECT_EQ(Play("jump\nproperty AlertType"),
            (Lines{"error: unknown command jump", "AlertType=\"0\""}));
}

TEST_F(ScriptTest, AnAnnouncedErrorDoesNotFailTheScript) {
  EXPECT_EQ(Play("expect-error no form\n\n# the next command is meant\nshow Grid1"),
            Lines{"error: no form is open"});
  EXPECT_FALSE(script.Failed());
}

TEST_F(ScriptTest, AnAnnouncedErrorThatDoesNotComeFailsTheScript) {
  EXPECT_EQ(Play("expect-error no form\nproperty AlertType"),
            (Lines{"AlertType=\"0\"", "expected an error with \"no form\""}));
  EXPECT_TRUE(script.Failed());
}

TEST_F(ScriptTest, AnAnnouncedErrorAtTheVeryEndFailsTheScript) {
  Play("expect-error anything");
  EXPECT_TRUE(script.Failed());
}

TEST_F(ScriptTest, AnotherErrorThanTheAnnouncedOneFailsTheScript) {
  Play("expect-error anything\nshow Grid1");
  EXPECT_TRUE(script.Failed());
}

TEST_F(ScriptTest, AMetExpectationPrintsNothing) {
  EXPECT_EQ(Play("expect property AlertType => AlertType=\"0\""), Lines{});
  EXPECT_FALSE(script.Failed());
}

TEST_F(ScriptTest, AnExpectationThatIsNotMetPrintsBoth) {
  EXPECT_EQ(Play("expect property AlertType => AlertType=\"1\""),
            (Lines{"not met: line 1: property AlertType", "expected: AlertType=\"1\"",
                   "printed: AlertType=\"0\""}));
  EXPECT_TRUE(script.Failed());
}

TEST_F(ScriptTest, SeveralLinesAreExpectedAsOneJsonText) {
  AddCustomer("1", "甲");
  EXPECT_EQ(
      Play("refresh 0 0\nexpect show Grid1.rows Grid2.rows => \"Grid1.rows=1\\nGrid2.rows=0\""),
      Lines{});
  EXPECT_FALSE(script.Failed());
}

TEST_F(ScriptTest, NothingPrintedIsExpectedAsAnEmptyText) {
  EXPECT_EQ(Play("expect messages =>"), Lines{});
  EXPECT_FALSE(script.Failed());
}

TEST_F(ScriptTest, ListsABoxWithItsStyleTitleTextAndAnswer) {
  EXPECT_EQ(
      Play("property myModel 0\nproperty CompName \"总公司\"\nrefresh 0 0\nmessages\nmessages"),
      Lines{R"(message 16 "qvZj_ocx" "总公司: 您无权进行管理 !" -> ok)"});
}

TEST_F(ScriptTest, AnswersAQuestionWithoutAnAnswerByCancelAndSaysSo) {
  AddCustomer("1", "甲");
  const Lines printed = Play("refresh 0 0\nclick mnuKhManage(3)\nclick cmdKhSave\nmessages");
  ASSERT_EQ(printed.size(), 2u);
  EXPECT_EQ(printed[0], "error: no answer is queued for the question: 确认：删除 甲 ?");
  EXPECT_TRUE(printed[1].ends_with("-> cancel")) << printed[1];
  EXPECT_EQ(world.One("select count(*) from cards"), "1");
}

TEST_F(ScriptTest, PrintsAnErrorOfTheFormOnceAndNotAmongTheMessages) {
  AddCustomer("1", "甲");
  Play("refresh 0 0");
  world.Sql("drop table cards;");
  EXPECT_EQ(Play("click cmdAcntRefresh\nmessages"), Lines{"error: no such table: cards"});
}

TEST_F(ScriptTest, ListsTheDetailsOfBoxesAndErrorsWhereTheyAreAskedFor) {
  AddCustomer("1", "甲");
  Play("refresh 0 0");
  world.Sql("drop table cards;");
  const Lines printed =
      Play("click cmdAcntRefresh\nproperty myModel 0\nrefresh 0 0\nmessages details\nmessages");
  ASSERT_EQ(printed.size(), 3u);
  EXPECT_EQ(printed[1],
            R"(error "客户往来帐管理系统" "no such table: cards" detail "原因：数据库缺少所需的)"
            R"(数据表或字段，可能由早期版本建立。\n处理：请检查是否选对了数据库；若确为早期版本，)"
            R"(请由管理员升级（qvdb init）。\n系统报告：no such table: cards")");
  EXPECT_EQ(printed[2], R"(message 16 "客户往来帐管理系统" ": 您无权进行管理 !" -> ok)");
}

TEST_F(ScriptTest, ListsPrintJobsAfterTheirFormWasClosed) {
  AddCustomer("1", "甲");
  const Lines printed = Play("refresh 0 0\nclick cmdKhPrint\nclose\nrefresh 1 0\nprints");
  ASSERT_FALSE(printed.empty());
  EXPECT_NE(printed.back().find(" 4=Grid1 "), std::string::npos) << printed.back();
}

TEST_F(ScriptTest, KnowsNoOtherKindOfMessages) {
  EXPECT_EQ(Play("messages all"), Lines{"error: usage: messages [details]"});
}

TEST_F(ScriptTest, ADisabledOrHiddenControlCannotBePressed) {
  AddCustomer("1", "甲");
  world.control.setUserName("nobody");
  Play("refresh 0 0");
  EXPECT_EQ(Play("click cmdKhPrint\nclick cmdAcntSave\nclick lblKhName"),
            (Lines{"error: cmdKhPrint is disabled", "error: cmdAcntSave is hidden",
                   "error: lblKhName cannot be pressed"}));
}

TEST_F(ScriptTest, TypingReplacesTheWholeTextKeyByKey) {
  AddCustomer("1", "甲");
  Play("refresh 0 0\nclick chkBrief\ntype txtBrief \"旧 的\"");
  EXPECT_EQ(Play("type txtBrief \"a b\"\nshow txtBrief\ntype txtBrief \"\"\nshow txtBrief"),
            (Lines{"txtBrief.text=\"a b\"", "txtBrief.text=\"\""}));
}

TEST_F(ScriptTest, TypingReplacesATextThatLeavingAnotherFieldPutThere) {
  AddCustomer("1", "甲");
  Play("refresh 0 0\nclick cmdAction(1)");
  EXPECT_EQ(Play("focus\ntype txtAcnt2(1) \"X1\"\nshow txtAcnt2(1)"),
            (Lines{"focus=dtpAcntDate", "txtAcnt2(1).text=\"X1\""}));
}

TEST_F(ScriptTest, KeepsAFieldWithLineFeedsOnItsLine) {
  AddCustomer("1", "甲\n乙");
  const Lines rows = Play("refresh 0 0\ngrid Grid1 1");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_TRUE(rows[0].starts_with("Grid1 1:\tC1\t甲\\n乙\t")) << rows[0];
}

TEST_F(ScriptTest, AFieldThatFailsItsCheckKeepsTheFocusWithoutAnError) {
  AddCustomer("1", "甲");
  EXPECT_EQ(Play("refresh 0 0\nclick chkBrief\ntype txtBrief \"'\"\nclick cmdAcntRefresh\nfocus"),
            Lines{"focus=txtBrief"});
  EXPECT_EQ(world.Messages().size(), 1u);
}

TEST_F(ScriptTest, ChoosesByIndexOrByTheTextThatIsShown) {
  AddCustomer("1", "甲");
  world.Sql("insert into tAccounts (fID, CompCode, compname) values (7, '0007', '现金');");
  Play("refresh 0 0\nclick cmdAction(1)");
  EXPECT_EQ(Play("choose cboAcntName \"现金\"\nshow cboAcntName.index cboAcntName.tag\n"
                 "choose cboAcntName -1\nshow cboAcntName.index\nchoose cboAcntName 3"),
            (Lines{"cboAcntName.index=0", "cboAcntName.tag=\"7\"", "cboAcntName.index=-1",
                   "error: there is no item 3"}));
}

TEST_F(ScriptTest, ShowsEachMemberOnALineAndTheMainOneByDefault) {
  AddCustomer("1", "甲");
  EXPECT_EQ(
      Play("refresh 0 0\nshow chkDate(0) dtpDate(0) SSTab1 Grid1 cmdExit.visible "
           "cboKhOrder.items frmZj.caption"),
      (Lines{"chkDate(0).value=0", "dtpDate(0).date=\"2024-03-15\"", "SSTab1.tab=0", "Grid1.rows=1",
             "cmdExit.visible=1", "cboKhOrder.items=[\"按[编号]排序\",\"按[客户]排序\"]",
             "frmZj.caption=\"客户往来帐管理系统\""}));
}

TEST_F(ScriptTest, AMemberThatAControlLacksIsAnError) {
  AddCustomer("1", "甲");
  EXPECT_EQ(Play("refresh 0 0\nshow cmdExit.date"), Lines{"error: cmdExit has no date"});
}

TEST_F(ScriptTest, PrintsTheRowsOfAGridWithTheHeaderFirst) {
  AddCustomer("1", "甲");
  AddCustomer("2", "乙");
  const Lines rows = Play("refresh 0 0\ngrid Grid1");
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[1], "Grid1 1:\tC1\t甲" + std::string(10, '\t') + "0\t1");
  EXPECT_EQ(Play("grid Grid1 2"), Lines{"Grid1 2:\tC2\t乙" + std::string(10, '\t') + "0\t2"});
  EXPECT_EQ(Play("grid Grid1 9"), Lines{});
}

TEST_F(ScriptTest, WorksOnThePickListUntilItCloses) {
  world.Sql("insert into Employees (employCode, employee) values ('0001', '张三');");
  EXPECT_EQ(
      Play("list 1\nchoose frmList.List1 0\nfocus\nclick frmList.cmdLogOK\nshow frmList.List1"),
      (Lines{"focus=frmList.List1", "myName=\"张三\"", "error: no form is open"}));
}

TEST_F(ScriptTest, ListsStatementsAsBuiltAndOnlyOnce) {
  AddCustomer("1", "甲");
  Play("refresh 0 0\nstatements");
  EXPECT_EQ(Play("click cmdKhMemo\nstatements\nstatements"),
            Lines{"open \"select a.detail from cards a Where a.fID=1\""});
}

}  // namespace
}  // namespace qvzj::script
