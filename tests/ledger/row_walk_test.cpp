#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

class RowWalk : public LedgerTest {};

TEST_F(RowWalk, OffersTheSaveButtonAsTheArmedActionIsOffered) {
  Add({.number = "N1"});
  Add({.number = "N2"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(4));
  form.cmdAction(4).SetEnabled(false);
  form.UserCell(form.Grid2, 1, 2);
  EXPECT_FALSE(form.cmdAcntSave.Enabled());
  form.cmdAction(4).SetEnabled(true);
  form.UserCell(form.Grid2, 1, 1);
  EXPECT_TRUE(form.cmdAcntSave.Enabled());
}

}  // namespace
}  // namespace qvzj::test
