#include <gtest/gtest.h>

#include <map>
#include <set>

#include "forms/frmList.h"
#include "suite/users/login.h"
#include "suite/visits/task_form.h"
#include "tests/frontends/qt/window_world.h"

// What somebody needs who works without a mouse, or without seeing the screen.
namespace qvzj::test {
namespace {

struct Case {
  int16_t language;
  int16_t mode;
};

class Reach : public ::testing::TestWithParam<Case> {
 protected:
  Reach() {
    world_.control.setLanguage(GetParam().language);
    world_.AddEntry("2024-01-02", "P1", 100, 30);
    form_ = &world_.Show(GetParam().mode);
  }

  /// Runs `look` on every sight of the form: each tab page, with and without the entry editor and
  /// the detail panel.
  void OnEverySight(const std::function<void(const std::string& sight)>& look) {
    for (int tab = 0; tab < form_->SSTab1.Count(); ++tab) {
      form_->UserTab(form_->SSTab1, tab);
      world_.Settle();
      look("tab " + std::to_string(tab));
    }
    form_->UserClick(form_->mnuKhManage(2));
    world_.Settle();
    look("the register's editor");
    form_->UserClick(form_->cmdKhCancel);
    form_->UserClick(form_->cmdAction(1));
    world_.Settle();
    look("the editor");
    form_->UserClick(form_->cmdKhMemo);
    world_.Settle();
    look("the detail");
  }

  WindowWorld world_;
  frmZj* form_ = nullptr;
};

TEST_P(Reach, EveryFieldAndButtonIsToldByAName) {
  OnEverySight([this](const std::string& sight) {
    for (qt::ControlView* view : world_.Window().Views()) {
      const ui::Control& control = view->GetControl();
      const QWidget* widget = view->FocusWidget();
      // A strip is known by its tabs.
      if (!control.OnScreen() || control.GetKind() == ui::Kind::Tabs) continue;
      if (widget->focusPolicy() == Qt::NoFocus) continue;
      EXPECT_FALSE(widget->accessibleName().trimmed().isEmpty())
          << sight << ": " << control.FullName();
    }
  });
}

// Of two alike in different parts of the screen the one nearer to the focus is meant.
TEST_P(Reach, NoTwoAccessKeysOfOnePartAreAlike) {
  OnEverySight([this](const std::string& sight) {
    std::map<std::pair<const ui::Control*, char32_t>, std::string> owners;
    for (const ui::Control* control : form_->Controls()) {
      const char32_t key = ui::AccessKey(control->Caption());
      if (key == 0 || !control->OnScreen() || control->GetKind() == ui::Kind::Menu) continue;
      const auto [other, first] =
          owners.emplace(std::pair{control->Container(), key}, control->FullName());
      EXPECT_TRUE(first) << sight << ": " << other->second << " and " << control->FullName();
    }
  });
}

TEST_P(Reach, TabWalksToEverythingThatCanBeChanged) {
  OnEverySight([this](const std::string& sight) {
    std::set<const ui::Control*> walked;
    while (walked.insert(form_->Focused()).second) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      world_.Settle();
    }
    for (ui::Control* control : form_->Controls()) {
      // Of a group of options one is walked to, the arrows go on from there.
      if (!control->CanFocus() || control->GetKind() == ui::Kind::OptionButton) continue;
      const auto* box = dynamic_cast<ui::TextBox*>(control);
      if (box != nullptr && box->Locked()) continue;
      // The second close button is for the mouse.
      if (control == &form_->cmdTitleClose) continue;
      EXPECT_TRUE(walked.contains(control)) << sight << ": " << control->FullName();
    }
  });
}

void ExpectNamesAndFocus(ui::Form& form) {
  qt::FormWindow window(form, {});
  window.show();
  window.activateWindow();
  WindowWorld::Settle();
  for (qt::ControlView* view : window.Views()) {
    if (view->FocusWidget()->focusPolicy() == Qt::NoFocus) continue;
    EXPECT_FALSE(view->FocusWidget()->accessibleName().isEmpty())
        << form.Name() << ": " << view->GetControl().FullName();
  }
  ASSERT_NE(form.Focused(), nullptr) << form.Name();
  EXPECT_TRUE(window.ViewOf(*form.Focused())->FocusWidget()->hasFocus()) << form.Name();
}

TEST(ReachDialogs, NameTheirFieldsAndStartInOne) {
  WindowWorld world;
  world.Open(kCustomers);
  users::frmLogin login(0, {});
  ExpectNamesAndFocus(login);
  frmList list;
  list.Load();
  ExpectNamesAndFocus(list);
  TaskCall call;
  call.access.user_path = Shared().UserPath;
  visits::frmTask visits(call);
  ExpectNamesAndFocus(visits);
}

INSTANTIATE_TEST_SUITE_P(LanguagesAndModes, Reach,
                         ::testing::Values(Case{0, 0}, Case{0, 1}, Case{1, 0}, Case{1, 1}),
                         [](const auto& info) {
                           return std::string(info.param.language == 0 ? "Simplified"
                                                                       : "Traditional") +
                                  (info.param.mode == 0 ? "Customers" : "Accounts");
                         });

}  // namespace
}  // namespace qvzj::test
