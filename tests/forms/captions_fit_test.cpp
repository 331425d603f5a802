#include <gtest/gtest.h>

#include "platform/basic/text.h"
#include "tests/support/world.h"

namespace qvzj::test {
namespace {

// About what a 9-point text takes: 180 twips a Chinese character, 105 any other one.
int32_t TextWidth(const std::string& caption) {
  int32_t width = 0;
  for (const char32_t code : basic::CodePoints(ui::ShownCaption(caption))) {
    width += code < 0x2000 ? 105 : 180;
  }
  return width;
}

// What a control shows besides its caption: a border, a box or a round mark.
int32_t Around(const ui::Control& control) {
  switch (control.GetKind()) {
    case ui::Kind::Button:
      return 150;
    case ui::Kind::CheckBox:
    case ui::Kind::OptionButton:
      return 270;
    default:
      return 0;
  }
}

bool ShowsItsCaption(const frmZj& form, const ui::Control& control) {
  if (&control == &form.lblKhName) return false;  // a record's name may be of any length
  switch (control.GetKind()) {
    case ui::Kind::Button:
    case ui::Kind::CheckBox:
    case ui::Kind::OptionButton:
    case ui::Kind::Label:
      return control.Visible();
    default:
      return false;
  }
}

TEST(Captions, FitTheirControlsInTheLeastWindowInBothLanguagesAndModes) {
  for (const int16_t language : {int16_t{0}, int16_t{1}}) {
    for (const int16_t mode : {kCustomers, kAccounts}) {
      World world;
      world.control.setLanguage(language);
      frmZj& form = world.Open(mode);
      form.UserResize(12000, 8565, ui::WindowState::Normal);
      for (int action = 1; action <= 3; ++action) form.UserClick(form.mnuKhManage(action));
      for (const ui::Control* control : form.Controls()) {
        if (!ShowsItsCaption(form, *control)) continue;
        EXPECT_LE(TextWidth(control->Caption()) + Around(*control), control->GetBounds().width)
            << control->FullName() << " " << control->Caption();
      }
    }
  }
}

TEST(Captions, NameEveryTabWithinItsStrip) {
  for (const int16_t mode : {kCustomers, kAccounts}) {
    World world;
    frmZj& form = world.Open(mode);
    form.UserResize(12000, 8565, ui::WindowState::Normal);
    for (const ui::Tabs* tabs : {&form.SSTab1, &form.SSTab2}) {
      int32_t width = 0;
      for (int tab = 0; tab < tabs->Count(); ++tab) width += TextWidth(tabs->TabCaption(tab)) + 360;
      EXPECT_LE(width, tabs->GetBounds().width) << tabs->Name();
    }
  }
}

}  // namespace
}  // namespace qvzj::test
