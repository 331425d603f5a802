#include <gtest/gtest.h>

#include "services/context.h"
#include "tests/support/world.h"

namespace qvzj {
namespace {

using test::World;

TEST(Reopened, OffersEverythingAgainToAUserWhoIsExempt) {
  World world;
  world.control.setZgName("boss");
  frmZj& form = world.Open(0);
  for (const ui::Control* gated :
       std::vector<const ui::Control*>{&form.cmdManage, &form.mnuKh, &form.mnuKhManage(1),
                                       &form.mnuKhContact, &form.cmdKhPrint}) {
    EXPECT_FALSE(gated->Enabled()) << gated->FullName();
  }
  world.control.setZgName("admin");
  world.Open(1);
  for (const ui::Control* gated :
       std::vector<const ui::Control*>{&form.cmdManage, &form.mnuKh, &form.mnuKhManage(1),
                                       &form.mnuKhContact, &form.cmdKhPrint}) {
    EXPECT_TRUE(gated->Enabled()) << gated->FullName();
  }
}

TEST(Reopened, LeavesTheFocusOfAFieldThatHoldsNoTextWhereItIs) {
  World world;
  frmZj& form = world.Open(0);
  ASSERT_TRUE(form.UserFocus(form.cboKhOrder));
  world.control.setMyName("nobody");
  world.control.refresh(9, 0);
  EXPECT_EQ(form.Focused(), &form.cboKhOrder);
}

}  // namespace
}  // namespace qvzj
