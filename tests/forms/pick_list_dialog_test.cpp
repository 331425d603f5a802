#include <gtest/gtest.h>

#include "forms/frmList.h"
#include "platform/basic/errors.h"
#include "services/context.h"
#include "tests/support/world.h"

namespace qvzj::test {
namespace {

TEST(PickListDialog, ReportsAnErrorUnderTheApplicationsTitle) {
  World world;
  Shared().Title = "客户往来帐管理系统";
  frmList list;
  list.Load();
  EXPECT_FALSE(list.Guard([] { throw Error("broken"); }));
  EXPECT_EQ(world.headless.boxes.TakeErrors(), std::vector<std::string>{"broken"});
}

TEST(PickListDialog, StandsInItsPlaces) {
  World world;
  frmList list;
  const auto at = [](const ui::Control& control) { return control.GetBounds(); };
  EXPECT_EQ(list.Width(), 3600);
  EXPECT_EQ(list.Height(), 4380);
  EXPECT_EQ(at(list.lblList), (ui::Bounds{120, 120, 3360, 300}));
  EXPECT_EQ(at(list.List1), (ui::Bounds{120, 450, 3360, 3300}));
  EXPECT_EQ(at(list.cmdLogOK), (ui::Bounds{600, 3870, 1380, 390}));
  EXPECT_EQ(at(list.cmdCancel), (ui::Bounds{2100, 3870, 1380, 390}));
}

TEST(PickListDialog, LeavesTheKeysThatItDoesNotKnowToTheList) {
  World world;
  world.Sql("Insert Into Employees (employCode,employee) Values ('1','张三');");
  frmList list;
  list.Load();
  list.UserKey(ui::Key::Character(U'x'));
  EXPECT_TRUE(list.Loaded());
}

}  // namespace
}  // namespace qvzj::test
