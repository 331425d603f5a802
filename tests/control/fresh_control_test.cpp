#include <gtest/gtest.h>

#include "services/context.h"
#include "tests/support/world.h"

namespace qvzj {
namespace {

using test::World;

/// Values that differ from a fresh control's in everything that a fresh control resets.
void FillShared() {
  Context& shared = Shared();
  shared.myTaskID = 7;
  shared.UserName = "somebody";
  shared.CompName = "总公司";
  shared.myName = "甲";
  shared.showmode = 1;
  shared.Language = 1;
  shared.UserPath = "/books";
  shared.Password = "secret";
  shared.SQLData = 1;
  shared.UserID = "sa";
  shared.Default = "books";
}

TEST(FreshControl, KeepsNothingOfTheControlBefore) {
  World world;
  FillShared();
  world.control.InitProperties();
  const Context& shared = Shared();
  EXPECT_EQ(shared.myTaskID, 0);
  EXPECT_EQ(shared.UserName, "");
  EXPECT_EQ(shared.CompName, "");
  EXPECT_EQ(shared.myName, "");
  EXPECT_EQ(shared.showmode, 0);
  EXPECT_EQ(shared.Language, 0);
  EXPECT_EQ(shared.UserPath, "");
  EXPECT_EQ(shared.Password, "0");
  EXPECT_EQ(shared.SQLData, 0);
  EXPECT_EQ(shared.UserID, "");
  EXPECT_EQ(shared.Default, "");
}

TEST(RefusedOpening, LeavesTheShowModeAloneWithoutTheModulesRight) {
  World world;
  world.control.setMyModel("");
  world.control.refresh(0, 1);
  EXPECT_EQ(Shared().showmode, 0);
}

TEST(RefusedOpening, LeavesTheShowModeAloneWithoutALedger) {
  World world;
  world.Sql("drop table tAccountDetail;");
  world.control.refresh(0, 1);
  EXPECT_EQ(Shared().showmode, 0);
}

TEST(UsersOwnDataPath, WinsOverAServersAddressToo) {
  World world;
  const std::string own = world.folder.Path().string() + "/";
  world.headless.settings.Set("tessary", "qvTask", "DataPath", own);
  world.control.setSQLData(1);
  world.control.setUserPath("Driver=x;Server=y");
  world.control.refresh(0, 0);
  EXPECT_EQ(Shared().UserPath, own);
}

}  // namespace
}  // namespace qvzj
