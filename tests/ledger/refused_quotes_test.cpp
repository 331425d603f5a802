#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

class RefusedQuotes : public LedgerTest {
 protected:
  /// Types a text with a quote; the focus must stay, and a box must say why.
  void ExpectRefused(frmZj& form, ui::Control& field) {
    ASSERT_TRUE(world.Type(field, "a'b")) << field.FullName();
    EXPECT_FALSE(form.UserFocus(form.cmdPrint)) << field.FullName();
    EXPECT_EQ(form.Focused(), &field) << field.FullName();
    EXPECT_EQ(world.Messages(), Texts{"文本错误: 文本中不可含有<引号>或<单引号> !"})
        << field.FullName();
    form.UserKey(ui::Key::Named(ui::Key::Name::Escape));
  }
};

TEST_F(RefusedQuotes, InEveryPatternOfTheLedgerFilter) {
  frmZj& form = Open();
  for (int i = 0; i <= 2; ++i) {
    ExpectRefused(form, form.txtID(i));
    ExpectRefused(form, form.txtUser(i));
  }
  ExpectRefused(form, form.txtBrief);
}

TEST_F(RefusedQuotes, InEveryTextOfTheRegisterSearch) {
  frmZj& form = Open();
  ASSERT_TRUE(form.UserTab(form.SSTab1, 2));
  for (int i = 0; i < form.txtSeek.Count(); ++i) ExpectRefused(form, form.txtSeek(i));
}

TEST_F(RefusedQuotes, InEveryTextOfAnEntry) {
  frmZj& form = Open();
  form.UserClick(form.cmdAction(1));
  for (int i : {1, 6, 7, 8, 9}) ExpectRefused(form, form.txtAcnt2(i));
  ExpectRefused(form, form.cboDoneMan);
}

}  // namespace
}  // namespace qvzj::test
