#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTimer>

#include "forms/frmList.h"
#include "frontends/qt/presenter.h"
#include "frontends/qt/theme.h"
#include "tests/frontends/qt/window_world.h"

namespace qvzj::test {
namespace {

TEST(FormWindow, PlacesControlsFifteenTwipsToThePixel) {
  ui::Form form("frm");
  form.SetSize(6000, 3000);
  ui::Label label(form, "lbl");
  label.SetBounds({150, 300, 1500, 330});
  qt::FormWindow window(form, {});
  EXPECT_EQ(window.size(), QSize(400, 200));
  EXPECT_EQ(window.ViewOf(label)->Widget()->geometry(), QRect(10, 20, 100, 22));
}

TEST(FormWindow, UsesASmallScreenWhole) {
  ui::Form form("frm");
  form.SetSize(90000, 90000);
  form.SetLoaded(true);
  ui::WindowState reported = ui::WindowState::Normal;
  form.onResize = [&] { reported = form.GetWindowState(); };
  qt::FormWindow window(form, {});
  window.show();
  QApplication::processEvents();
  EXPECT_TRUE(window.isMaximized());
  EXPECT_EQ(reported, ui::WindowState::Maximised);
}

TEST(FormWindow, FollowsWhatTheProgramChanges) {
  ui::Form form("frm");
  ui::Label label(form, "lbl");
  ui::CheckBox check(form, "chk");
  qt::FormWindow window(form, {});
  label.SetCaption("甲乙");
  check.SetValue(1);
  check.SetEnabled(false);
  EXPECT_EQ(static_cast<QLabel*>(window.ViewOf(label)->Widget())->text(), "甲乙");
  EXPECT_TRUE(static_cast<QCheckBox*>(window.ViewOf(check)->Widget())->isChecked());
  EXPECT_FALSE(window.ViewOf(check)->Widget()->isEnabled());
}

TEST(FormWindow, ClicksThroughTheForm) {
  ui::Form form("frm");
  form.SetLoaded(true);
  ui::Button button(form, "cmd");
  button.SetBounds({0, 0, 1500, 390});
  int clicks = 0;
  button.onClick = [&] { ++clicks; };
  qt::FormWindow window(form, {});
  window.show();
  QTest::mouseClick(window.ViewOf(button)->Widget(), Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(form.Focused(), &button);
}

TEST(FormWindow, TellsWhereAButtonWasPressedInTwips) {
  ui::Form form("frm");
  form.SetLoaded(true);
  ui::Button button(form, "cmd");
  button.SetBounds({0, 0, 1500, 390});
  int32_t pressed_x = -1;
  button.onMouseDown = [&](int32_t x, int32_t) { pressed_x = x; };
  qt::FormWindow window(form, {});
  window.show();
  QTest::mouseClick(window.ViewOf(button)->Widget(), Qt::LeftButton, Qt::NoModifier, {20, 5});
  EXPECT_EQ(pressed_x, 300);
}

TEST(FormWindow, LetsTheFormUndoAnOptionItRefuses) {
  ui::Form form("frm");
  form.SetLoaded(true);
  ui::OptionButton first(form, "opt", 0);
  ui::OptionButton second(form, "opt", 1);
  first.Select();
  second.onClick = [&] { first.Select(); };
  qt::FormWindow window(form, {});
  window.show();
  window.ViewOf(second)->Widget()->resize(100, 20);
  QTest::mouseClick(window.ViewOf(second)->Widget(), Qt::LeftButton, Qt::NoModifier, {8, 10});
  EXPECT_TRUE(static_cast<QRadioButton*>(window.ViewOf(first)->Widget())->isChecked());
  EXPECT_FALSE(static_cast<QRadioButton*>(window.ViewOf(second)->Widget())->isChecked());
}

TEST(FormWindow, ShowsNoTwoOptionsChosenWhileTheActWaits) {
  WindowWorld world;
  frmZj& form = world.Show();
  auto& chosen = world.Native<QRadioButton>(form.OptSelect(2));
  auto& pressed = world.Native<QRadioButton>(form.OptSelect(1));
  int ticked = 0;
  form.OptSelect(1).onGotFocus = [&] { ticked = chosen.isChecked() + pressed.isChecked(); };
  pressed.click();
  EXPECT_EQ(ticked, 1);
  EXPECT_TRUE(pressed.isChecked());
  EXPECT_FALSE(chosen.isChecked());
}

TEST(FormWindow, TurnsTabsAndTheirPages) {
  WindowWorld world;
  frmZj& form = world.Show();
  auto* bar = static_cast<QTabBar*>(world.Window().ViewOf(form.SSTab1)->FocusWidget());
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
  EXPECT_EQ(form.SSTab1.Tab(), 1);
  EXPECT_EQ(bar->currentIndex(), 1);
  EXPECT_TRUE(world.Line(form.txtAcnt(0)).isVisible());
  EXPECT_FALSE(world.GridOf(form.Grid1).Table()->isVisible());
}

TEST(FormWindow, MakesWhatIsHiddenWhenItIsFirstSeen) {
  ui::Form form("frm");
  ui::Tabs tabs(form, "tabs", 2);
  tabs.SetBounds({0, 0, 3000, 1500});
  ui::Label first(form, "first", -1, &tabs, 0);
  ui::Label second(form, "second", -1, &tabs, 1);
  qt::FormWindow window(form, {});
  window.show();
  EXPECT_NE(window.findChild<QWidget*>("first"), nullptr);
  EXPECT_EQ(window.findChild<QWidget*>("second"), nullptr);
  tabs.SetTab(1);
  EXPECT_TRUE(window.findChild<QWidget*>("second")->isVisible());
  EXPECT_FALSE(window.findChild<QWidget*>("first")->isVisible());
}

TEST(FormWindow, KeepsTheFormsOrderWhateverIsSeenFirst) {
  ui::Form form("frm");
  ui::Frame below(form, "below");
  ui::Frame above(form, "above");
  below.SetVisible(false);
  qt::FormWindow window(form, {});
  window.show();
  below.SetVisible(true);
  const QObjectList children = window.children();
  EXPECT_LT(children.indexOf(window.ViewOf(below)->Widget()),
            children.indexOf(window.ViewOf(above)->Widget()));
}

TEST(FormWindow, GivesATabPageItsRoomBeforeAnyResize) {
  ui::Form form("frm");
  ui::Tabs tabs(form, "tabs", 1);
  tabs.SetBounds({0, 0, 3000, 1500});
  ui::Label label(form, "label", -1, &tabs, 0);
  qt::FormWindow window(form, {});
  EXPECT_EQ(window.ViewOf(label)->Widget()->parentWidget()->size(), QSize(200, 100));
}

TEST(FormWindow, GoesToAnAccessKeyFromAnyField) {
  WindowWorld world;
  frmZj& form = world.Show();
  form.UserFocus(form.Grid1);
  world.Settle();
  QTest::keyClick(world.GridOf(form.Grid1).Table(), Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(form.picAcnt.Visible());
  EXPECT_TRUE(world.Window().ViewOf(form.picAcnt)->Widget()->isVisible());
}

TEST(FormWindow, PopsTheRegisterMenuUp) {
  WindowWorld world;
  frmZj& form = world.Show();
  QTest::mousePress(world.Window().ViewOf(form.cmdManage)->Widget(), Qt::LeftButton);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  ASSERT_GE(menu->actions().size(), 4);
  menu->actions().at(1)->trigger();
  menu->close();
  world.Settle();
  EXPECT_EQ(form.cmdKhSave.Tag(), "2");
}

TEST(FormWindow, TellsTheFormItsSizeInTwips) {
  WindowWorld world;
  frmZj& form = world.Show(kCustomers, 19500, 12000);
  EXPECT_EQ(form.Width(), 19500);
  EXPECT_EQ(form.Height(), 12000);
}

TEST(FormWindow, ClosesTheFormAndLetsGoOfIt) {
  WindowWorld world;
  world.Show();
  world.Window().close();
  EXPECT_EQ(world.control.Form(), nullptr);
  EXPECT_FALSE(world.Window().Live());
}

TEST(FormWindow, NamesEveryFieldForAssistiveTechnology) {
  WindowWorld world;
  world.Show();
  for (qt::ControlView* view : world.Window().Views()) {
    // A strip is known by its tabs.
    if (!view->GetControl().CanFocus() || view->GetControl().GetKind() == ui::Kind::Tabs) continue;
    EXPECT_FALSE(view->FocusWidget()->accessibleName().isEmpty()) << view->GetControl().FullName();
  }
}

TEST(FormWindow, MovesTheNativeFocusWithTheForms) {
  WindowWorld world;
  frmZj& form = world.Show();
  form.UserFocus(form.cmdPrint);
  form.UserFocus(form.cboKhOrder);
  world.Settle();
  EXPECT_TRUE(world.Native<QComboBox>(form.cboKhOrder).hasFocus());
}

TEST(FormWindow, WalksTheFormsTabOrder) {
  WindowWorld world;
  frmZj& form = world.Show();
  form.UserFocus(form.cmdPrint);
  world.Settle();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  world.Settle();
  EXPECT_EQ(form.Focused(), &form.cmdExit);
  EXPECT_TRUE(world.Window().ViewOf(form.cmdExit)->Widget()->hasFocus());
}

TEST(FormWindow, ShowsTheHourglassWhileTheFormDoes) {
  ui::Form form("frm");
  qt::FormWindow window(form, {});
  form.SetMousePointer(ui::MousePointer::Hourglass);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  form.SetMousePointer(ui::MousePointer::Default);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(FormWindow, TakesTheHourglassAlongWhenItLetsGoOfTheForm) {
  ui::Form form("frm");
  qt::FormWindow window(form, {});
  form.SetMousePointer(ui::MousePointer::Hourglass);
  window.Detach();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(FormWindow, FollowsADarkPalette) {
  WindowWorld world;
  world.Show();
  const QPalette before = QApplication::palette();
  // The application tells its windows only while its event loop runs.
  const auto change_to = [&](const QPalette& palette) {
    QTimer::singleShot(0, [&] {
      QApplication::setPalette(palette);
      QTimer::singleShot(0, [] { QApplication::exit(0); });
    });
    QApplication::exec();
  };
  change_to(qt::ThemePalette(qt::Appearance::Dark));
  EXPECT_TRUE(qt::IsDark(world.Window().palette()));
  EXPECT_TRUE(qt::IsDark(world.GridOf(world.Form().Grid2).Table()->palette()));
  change_to(before);
  EXPECT_FALSE(qt::IsDark(world.Window().palette()));
}

TEST(Presenter, BringsAnOpenFormToTheFrontInsteadOfShowingItTwice) {
  ui::Form form("frmDialog");
  form.SetLoaded(true);
  qt::QtPresenter presenter({});
  form.onUnload = [&] { presenter.Closed(form); };
  presenter.Show(form, false);
  const qt::FormWindow* window = presenter.WindowOf(form);
  presenter.Show(form, false);
  EXPECT_EQ(presenter.WindowOf(form), window);
  form.UserClose();
  EXPECT_EQ(presenter.WindowOf(form), nullptr);
}

TEST(Presenter, ReturnsFromAModalFormWhenItIsClosed) {
  ui::Form form("frmDialog");
  form.SetSize(3000, 1500);
  form.SetLoaded(true);
  qt::QtPresenter presenter({});
  form.onUnload = [&] { presenter.Closed(form); };
  QTimer::singleShot(0, [&] { presenter.WindowOf(form)->close(); });
  presenter.Show(form, true);
  EXPECT_EQ(presenter.WindowOf(form), nullptr);
  EXPECT_FALSE(form.Loaded());
}

TEST(PickList, StandsInTheMiddleOfTheScreenAndAnswersTheChosenName) {
  WindowWorld world;
  world.Show();
  world.Window().move(300, 200);
  frmList list;
  list.Load();
  qt::QtPresenter presenter({});
  Presenter* before = std::exchange(Around().presenter, &presenter);
  QPoint middle;
  QTimer::singleShot(0, [&] {
    qt::FormWindow* window = presenter.WindowOf(list);
    middle = window->frameGeometry().center() - window->screen()->availableGeometry().center();
    list.UserChoose(list.List1, 0);
    list.UserClick(list.cmdLogOK);
  });
  presenter.Show(list, true);
  Around().presenter = before;
  EXPECT_LE(middle.manhattanLength(), 20);  // the window system's frame shifts it a little
  EXPECT_EQ(Shared().myName, "张三");
}

TEST(Theme, LinesAmountsUp) {
  const QFontMetrics metrics(qt::ThemeFont(false));
  EXPECT_EQ(metrics.horizontalAdvance("1111.11"), metrics.horizontalAdvance("8888.88"));
}

}  // namespace
}  // namespace qvzj::test
