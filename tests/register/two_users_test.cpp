#include "register/detail.h"
#include "screen/current.h"
#include "screen/indexes.h"
#include "tests/register/register_fixture.h"

// Two people at one register record, and statements that fail on the way from one to the next.
namespace qvzj::test {
namespace {

constexpr const char* kChangedMeanwhile =
    "该帐目已被他人修改或审核，现已重新显示，请核对后再操作！";

class TwoAtARecord : public RegisterTest {
 protected:
  /// Arms a register action on a record.
  frmZj& Arm(const std::string& name, int action) {
    frmZj& form = world.Open(0);
    GoTo(name);
    EXPECT_TRUE(form.UserClick(form.mnuKhManage(action)));
    return form;
  }
  void Save(frmZj& form) {
    world.Messages();
    world.Statements();
    form.UserClick(form.cmdKhSave);
  }
};

TEST_F(TwoAtARecord, WriteNothingWhenTheSecondChangesWhatTheFirstHasChanged) {
  frmZj& form = Arm("华东电子", RecordAction::Change);
  world.Type(form.txtAcnt(6), "江苏");
  world.Sql("Update cards Set telphone='999' Where fID=2;");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{kChangedMeanwhile});
  EXPECT_EQ(world.One("Select province||telphone From cards Where fID=2"), "上海999");
  EXPECT_EQ(form.lblKhName.Caption(), "华东电子");
  EXPECT_EQ(form.txtAcnt(6).Text(), "上海");
  EXPECT_EQ(form.txtAcnt(9).Text(), "999");
  EXPECT_FALSE(form.cmdKhSave.Visible());
}

TEST_F(TwoAtARecord, WriteNothingWhenTheSecondDeletesWhatTheFirstHasChanged) {
  frmZj& form = Arm("华东电子", RecordAction::Delete);
  world.Sql("Update cards Set fType0=2 Where fID=2;");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{kChangedMeanwhile});
  EXPECT_EQ(world.One("Select count(*) From cards"), "3");
}

TEST_F(TwoAtARecord, ActOnNoOtherRecordWhenTheirsIsGone) {
  for (const int action : {RecordAction::Change, RecordAction::Delete}) {
    world.Sql(
        "Delete From cards Where fID=2; Insert Into cards (fID,CompCode,compname,fType0) "
        "Values (2,'0001','华东电子',1);");
    frmZj& form = Arm("华东电子", action);
    world.Sql("Delete From cards Where fID=2;");
    Save(form);
    EXPECT_EQ(world.Messages(), Texts{kChangedMeanwhile});
    EXPECT_FALSE(form.cmdKhSave.Visible());
    EXPECT_EQ(form.lblKhName.Caption(), "大地五金");
    EXPECT_EQ(world.One("Select count(*) From cards"), "2");
    form.UserClose();
  }
}

TEST_F(TwoAtARecord, PayOneStatement) {
  frmZj& form = Arm("大地五金", RecordAction::Change);
  world.Answer("ok");
  Save(form);
  const Texts ran = world.Statements();
  EXPECT_EQ(ran[0],
            "select a.CompCode,a.compname,a.name,a.fBank,a.fAcntID,a.others,a.province,a.cityname,"
            "a.postcode,a.telphone,a.fax,a.fType0 from cards a Where a.fID=3");
  EXPECT_TRUE(ran[1].starts_with("Update cards Set ")) << ran[1];
}

TEST_F(TwoAtARecord, ShowTheFirstOnesDetailInsteadOfWritingTheSecondOnesOverIt) {
  frmZj& form = world.Open(0);
  GoTo("北方贸易");
  form.UserClick(form.cmdKhMemo);
  world.Type(form.txtKhMemo, "月结");
  world.Sql("Update cards Set detail='现款' Where fID=1;");
  world.Messages();
  form.UserClick(form.cmdSave);
  EXPECT_EQ(world.Messages(), Texts{kChangedMeanwhile});
  EXPECT_EQ(world.One("Select detail From cards Where fID=1"), "现款");
  EXPECT_EQ(form.txtKhMemo.Text(), "现款");
  EXPECT_FALSE(form.cmdSave.Enabled());
}

TEST_F(TwoAtARecord, TakeNoValueForAnotherThingThanAnEmptyDetail) {
  frmZj& form = world.Open(0);
  GoTo("华东电子");
  form.UserClick(form.cmdKhMemo);
  world.Type(form.txtKhMemo, "月结");
  world.Sql("Update cards Set detail='' Where fID=2;");
  world.Messages();
  form.UserClick(form.cmdSave);
  EXPECT_EQ(world.Messages(), Texts{kChangedMeanwhile});
}

TEST_F(TwoAtARecord, MaySaveADetailTwice) {
  frmZj& form = world.Open(0);
  GoTo("北方贸易");
  form.UserClick(form.cmdKhMemo);
  for (const char* text : {"月结", "季结"}) {
    world.Type(form.txtKhMemo, text);
    form.UserClick(form.cmdSave);
    EXPECT_EQ(world.One("Select detail From cards Where fID=1"), text);
  }
}

/// A row change that fails: everything on the screen goes on naming the record before.
class FailedRowChange : public RegisterTest {
 protected:
  frmZj& OpenWithDetail() {
    AddEntries(kCustomers, 1, 2);
    frmZj& form = world.Open(0);
    GoTo("北方贸易");
    form.UserClick(form.cmdKhMemo);
    return form;
  }
  void ExpectNorth(frmZj& form) {
    EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
    EXPECT_EQ(form.lblKhName.Caption(), "北方贸易");
    EXPECT_EQ(CurrentRecordId(form), "1");
    EXPECT_EQ(form.Grid1.CellText(2, form.Grid1.ActiveRow()), "北方贸易");
    EXPECT_EQ(form.txtAcnt(1).Text(), "北方贸易");
    EXPECT_EQ(form.Grid2.RowCount(), 2);
    EXPECT_EQ(form.txtKhMemo.Text(), "老客户");
    EXPECT_EQ(form.GetMousePointer(), ui::MousePointer::Default);
  }
};

TEST_F(FailedRowChange, KeepsTheRecordWhoseDetailCanBeRead) {
  frmZj& form = OpenWithDetail();
  world.Sql("Alter Table cards Rename Column detail To gone;");
  form.UserCell(form.Grid1, 2, 1);
  ExpectNorth(form);
}

TEST_F(FailedRowChange, KeepsTheRecordWhoseLedgerCanBeRead) {
  frmZj& form = OpenWithDetail();
  world.Sql("Alter Table tAccountDetail Rename Column fBrief To gone;");
  form.UserCell(form.Grid1, 2, 1);
  ExpectNorth(form);
}

TEST_F(FailedRowChange, KeepsTheRecordWhoseFirstEntryCanBeRead) {
  frmZj& form = OpenWithDetail();
  AddEntries(kCustomers, 2, 1);
  world.Sql("Alter Table tAccountDetail Rename Column fMoneyCode To gone;");
  form.UserCell(form.Grid1, 2, 1);
  ExpectNorth(form);
}

TEST_F(FailedRowChange, KeepsTheRecordWhenTheNextOnesTypeIsNoByte) {
  world.Sql("Update cards Set fType0=300 Where fID=3;");
  frmZj& form = OpenWithDetail();
  form.UserCell(form.Grid1, 2, 2);
  ExpectNorth(form);
}

TEST_F(FailedRowChange, SavesTheDetailToTheRecordThatIsNamed) {
  frmZj& form = OpenWithDetail();
  world.Sql("Alter Table tAccountDetail Rename Column fBrief To gone;");
  form.UserCell(form.Grid1, 2, 1);
  world.Type(form.txtKhMemo, "月结");
  form.UserClick(form.cmdSave);
  EXPECT_EQ(world.One("Select detail From cards Where fID=1"), "月结");
  EXPECT_EQ(world.One("Select count(*) From cards Where detail='月结'"), "1");
}

TEST_F(FailedRowChange, GoesOnOnceTheCauseIsGone) {
  frmZj& form = OpenWithDetail();
  world.Sql("Alter Table cards Rename Column detail To gone;");
  form.UserCell(form.Grid1, 2, 1);
  world.Sql("Alter Table cards Rename Column gone To detail;");
  form.UserCell(form.Grid1, 2, 1);
  EXPECT_EQ(form.lblKhName.Caption(), "华东电子");
  EXPECT_EQ(form.Grid2.RowCount(), 0);
}

TEST_F(FailedRowChange, KeepsTheRecordWhenTheOneThatTheHostNamesCannotBeSearched) {
  frmZj& form = OpenWithDetail();
  world.Sql("Alter Table cards Rename Column fax To gone;");
  world.control.setMyTaskID(3);
  world.control.refresh(9, 0);
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
  EXPECT_EQ(form.lblKhName.Caption(), "北方贸易");
  EXPECT_EQ(CurrentRecordId(form), "1");
  EXPECT_EQ(form.txtKhMemo.Text(), "老客户");
}

TEST_F(FailedRowChange, LeavesAnEmptyListWhenAReloadFails) {
  frmZj& form = OpenWithDetail();
  world.Sql("Alter Table cards Rename Column detail To gone;");
  form.UserClick(form.cmdAcntRefresh);
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
  EXPECT_EQ(form.Grid1.RowCount(), 0);
  EXPECT_TRUE(form.Grid1.Visible());
  EXPECT_EQ(form.lblKhName.Caption(), "北方贸易");
  EXPECT_EQ(form.txtKhMemo.Text(), "老客户");
  EXPECT_EQ(form.Grid2.RowCount(), 2);
}

}  // namespace
}  // namespace qvzj::test
