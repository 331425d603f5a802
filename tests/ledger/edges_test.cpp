#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

class LedgerEdges : public LedgerTest {};

TEST_F(LedgerEdges, CutNoNameThatJustFitsTheCounterEntrysSummary) {
  std::string name;
  for (int i = 0; i < 22; ++i) name += "长";
  name += "a";  // 45 bytes of the code page, and 5 of "挂入-"
  world.Sql("update cards set compname='" + name + "' where fID=1;");
  Add({.b = "1", .id2 = "2"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(4));
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(world.One("select fBrief from tAccountDetail where fType1=1"), "挂入-" + name);
}

TEST_F(LedgerEdges, ShowTheOpeningAmountsCaptionWithItsField) {
  Add({.type1 = 1, .number = "N1", .init = "1", .a = "5"});
  Add({.type1 = 1, .number = "N2", .b = "5"});
  frmZj& form = Open(kAccounts);
  EXPECT_TRUE(form.lblAcnt2(3).Visible());
  EXPECT_TRUE(form.txtAcnt2(3).Visible());
  form.UserCell(form.Grid2, 1, 2);
  EXPECT_FALSE(form.lblAcnt2(3).Visible());
  EXPECT_FALSE(form.txtAcnt2(3).Visible());
}

}  // namespace
}  // namespace qvzj::test
