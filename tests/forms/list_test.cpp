#include <gtest/gtest.h>

#include "forms/frmList.h"
#include "services/context.h"
#include "tests/support/world.h"

namespace qvzj::test {
namespace {

using Texts = std::vector<std::string>;

class PickList : public ::testing::Test {
 protected:
  PickList() {
    world.Sql(
        "Insert Into Employees (employCode,employee) Values ('0002','李四'),('0001','张三');");
  }
  World world;
};

TEST_F(PickList, ListsTheStaffByCode) {
  frmList list;
  list.Load();
  EXPECT_EQ(list.List1.Items(), (Texts{"0001\t张三", "0002\t李四"}));
}

TEST_F(PickList, ReadsTheStaffByOneStatement) {
  frmList list;
  list.Load();
  EXPECT_EQ(world.Statements(), Texts{"select * from employees order by employcode"});
}

TEST_F(PickList, SpeaksTheCurrentLanguage) {
  world.control.setLanguage(1);
  frmList list;
  list.Load();
  EXPECT_EQ(list.Caption(), "經辦人列表");
  EXPECT_EQ(list.lblList.Caption(), "經辦人列表:");
  EXPECT_EQ(list.cmdLogOK.Caption(), "确定(&S)");
  EXPECT_EQ(list.cmdCancel.Caption(), "退出>>");
}

TEST_F(PickList, AnswersTheNameOfTheSelectedItem) {
  frmList list;
  list.Load();
  ASSERT_TRUE(list.UserChoose(list.List1, 0));
  ASSERT_TRUE(list.UserClick(list.cmdLogOK));
  EXPECT_EQ(Shared().myName, "张三");
  EXPECT_FALSE(list.Loaded());
}

TEST_F(PickList, AnswersTheItemThatIsDoubleClicked) {
  frmList list;
  list.Load();
  list.UserChoose(list.List1, 1);
  ASSERT_TRUE(list.UserDoubleClick(list.List1));
  EXPECT_EQ(Shared().myName, "李四");
}

TEST_F(PickList, IsWorkedByTheKeyboardAlone) {
  frmList list;
  list.Load();
  EXPECT_EQ(list.Focused(), &list.List1);
  list.UserKey(ui::Key::Named(ui::Key::Name::Down));
  list.UserKey(ui::Key::Named(ui::Key::Name::Down));
  list.UserKey(ui::Key::Named(ui::Key::Name::Enter));
  EXPECT_EQ(Shared().myName, "李四");
  EXPECT_FALSE(list.Loaded());
}

TEST_F(PickList, IsLeftWithEscapeAsWithCancel) {
  Shared().myName = "earlier";
  frmList list;
  list.Kind(4);
  list.Load();
  list.UserKey(ui::Key::Named(ui::Key::Name::Escape));
  EXPECT_EQ(Shared().myName, "");
  EXPECT_FALSE(list.Loaded());
}

TEST_F(PickList, AnswersNothingWhenNothingIsSelected) {
  Shared().myName = "earlier";
  frmList list;
  list.Load();
  list.UserClick(list.cmdLogOK);
  EXPECT_EQ(Shared().myName, "");
}

TEST_F(PickList, KeepsTheEarlierChoiceOnCancelUpToKindThree) {
  for (const int16_t kind : {int16_t{0}, int16_t{1}, int16_t{3}}) {
    Shared().myName = "earlier";
    frmList list;
    list.Kind(kind);
    list.Load();
    list.UserClick(list.cmdCancel);
    EXPECT_EQ(Shared().myName, "earlier");
    EXPECT_FALSE(list.Loaded());
  }
}

TEST_F(PickList, ClearsTheEarlierChoiceOnCancelAboveKindThree) {
  Shared().myName = "earlier";
  frmList list;
  list.Kind(4);
  list.Load();
  list.UserClick(list.cmdCancel);
  EXPECT_EQ(Shared().myName, "");
}

TEST_F(PickList, IsEmptyForAnEmptyStaffTable) {
  world.Sql("Delete From Employees;");
  frmList list;
  list.Load();
  EXPECT_TRUE(list.List1.Items().empty());
  list.UserClick(list.cmdLogOK);
  EXPECT_EQ(Shared().myName, "");
}

TEST_F(PickList, RaisesTheErrorOfItsStatement) {
  world.Sql("Drop Table Employees;");
  frmList list;
  EXPECT_ANY_THROW(list.Load());
}

}  // namespace
}  // namespace qvzj::test
