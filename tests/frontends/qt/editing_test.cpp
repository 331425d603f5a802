#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QTableView>
#include <QToolTip>

#include "frontends/qt/calm_style.h"
#include "tests/frontends/qt/window_world.h"

namespace qvzj::test {
namespace {

/// The editor open on a new entry.
class Editing : public ::testing::Test {
 protected:
  Editing() : form_(world_.Show()) {
    form_.UserClick(form_.cmdAction(1));
    world_.Settle();
  }

  QLineEdit& Enter(ui::TextBox& box) {
    form_.UserFocus(box);
    world_.Settle();
    return world_.Line(box);
  }
  /// What an input method shows in the field before a word is chosen.
  static void Compose(QWidget& field, const char* text) {
    QInputMethodEvent event(QString::fromUtf8(text), {});
    QApplication::sendEvent(&field, &event);
  }
  /// What an input method hands over when a word is chosen.
  static void Commit(QLineEdit& line, const char* text) {
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8(text));
    QApplication::sendEvent(&line, &event);
  }

  WindowWorld world_;
  frmZj& form_;
};

TEST_F(Editing, DropsACalendarThatIsMadeWhenItIsFirstAskedFor) {
  auto& edit = world_.Native<QDateEdit>(form_.dtpAcntDate);
  EXPECT_EQ(edit.findChild<QCalendarWidget*>(), nullptr);
  QTest::mouseClick(&edit, Qt::LeftButton, {}, QPoint(edit.width() - 6, edit.height() / 2));
  auto* calendar = edit.findChild<QCalendarWidget*>();
  ASSERT_NE(calendar, nullptr);
  EXPECT_TRUE(calendar->isVisible());
  EXPECT_EQ(calendar->verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
  calendar->parentWidget()->close();
}

TEST_F(Editing, DropsACalendarThatShowsTheWholeMonth) {
  auto& edit = world_.Native<QDateEdit>(form_.dtpAcntDate);
  QTest::keyClick(&edit, Qt::Key_F4);
  world_.Settle();
  auto* calendar = edit.findChild<QCalendarWidget*>();
  ASSERT_NE(calendar, nullptr);
  auto* days = calendar->findChild<QTableView*>();
  ASSERT_NE(days, nullptr);
  const int last = days->model()->rowCount() - 1;
  EXPECT_LE(days->rowViewportPosition(last) + days->rowHeight(last), days->viewport()->height());
  EXPECT_GE(calendar->width(), calendar->sizeHint().width());
  EXPECT_GE(calendar->height(), calendar->sizeHint().height());
  calendar->parentWidget()->close();
}

TEST_F(Editing, DropsTheCalendarByKey) {
  form_.UserFocus(form_.dtpAcntDate);
  world_.Settle();
  auto& edit = world_.Native<QDateEdit>(form_.dtpAcntDate);
  const basic::Date before = form_.dtpAcntDate.Value();
  const std::pair<Qt::Key, Qt::KeyboardModifier> keys[] = {{Qt::Key_F4, Qt::NoModifier},
                                                           {Qt::Key_Down, Qt::AltModifier}};
  for (const auto& [key, modifier] : keys) {
    QTest::keyClick(&edit, key, modifier);
    auto* calendar = edit.findChild<QCalendarWidget*>();
    ASSERT_NE(calendar, nullptr);
    EXPECT_TRUE(calendar->isVisible());
    calendar->parentWidget()->close();
  }
  EXPECT_EQ(form_.dtpAcntDate.Value(), before);
}

TEST_F(Editing, TakesTypedTextIntoTheForm) {
  QLineEdit& line = Enter(form_.txtAcnt2(6));
  QTest::keyClicks(&line, "abc");
  EXPECT_EQ(form_.txtAcnt2(6).Text(), "abc");
  EXPECT_EQ(world_.Text(line), "abc");
}

TEST_F(Editing, DropsKeysThatTheFormRefuses) {
  QLineEdit& line = Enter(form_.txtHbRate);
  form_.txtHbRate.SelectAll();
  QTest::keyClicks(&line, "1x.5y");
  EXPECT_EQ(form_.txtHbRate.Text(), "1.5");
  EXPECT_EQ(world_.Text(line), "1.5");
}

TEST_F(Editing, CutsWhatAnInputMethodBringsToTheFieldsBytes) {
  QLineEdit& line = Enter(form_.txtAcnt2(1));
  line.clear();
  form_.txtAcnt2(1).SetText("");
  Commit(line, "一二三四五六七八九十十一");
  EXPECT_EQ(form_.txtAcnt2(1).Text(), "一二三四五六七八九十");
  EXPECT_EQ(world_.Text(line), "一二三四五六七八九十");
}

TEST_F(Editing, SaysThatATextWasCut) {
  QLineEdit& line = Enter(form_.txtAcnt2(7));
  Commit(line, "一二三四五六七八九十十一");
  EXPECT_EQ(form_.txtAcnt2(7).Text(), "一二三四五六七八九十");
  EXPECT_FALSE(QToolTip::text().isEmpty());
  QToolTip::hideText();
}

TEST_F(Editing, ShowsACompositionWithoutTakingIt) {
  QLineEdit& line = Enter(form_.txtAcnt2(6));
  const int before = line.inputMethodQuery(Qt::ImCursorRectangle).toRect().x();
  Compose(line, "huokuan");
  EXPECT_GT(line.inputMethodQuery(Qt::ImCursorRectangle).toRect().x(), before);
  EXPECT_EQ(form_.txtAcnt2(6).Text(), "");
  EXPECT_EQ(line.text(), "");
  Commit(line, "货款");
  EXPECT_EQ(form_.txtAcnt2(6).Text(), "货款");
}

TEST_F(Editing, LeavesTheKeysOfACompositionToIt) {
  QLineEdit& line = Enter(form_.txtAcnt2(6));
  Commit(line, "付");
  Compose(line, "huokuan");
  for (Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backspace}) {
    QTest::keyClick(&line, key);
  }
  world_.Settle();
  EXPECT_EQ(form_.Focused(), &form_.txtAcnt2(6));
  EXPECT_EQ(form_.txtAcnt2(6).Text(), "付");
  Commit(line, "货款");
  EXPECT_EQ(form_.txtAcnt2(6).Text(), "付货款");
  QTest::keyClick(&line, Qt::Key_Return);
  EXPECT_NE(form_.Focused(), &form_.txtAcnt2(6));
}

TEST_F(Editing, TakesNumbersFromAnInputMethod) {
  QLineEdit& line = Enter(form_.txtAcnt2(4));
  Compose(line, "１２．５");
  QTest::keyClick(&line, Qt::Key_Return);
  EXPECT_EQ(form_.Focused(), &form_.txtAcnt2(4));
  Commit(line, "１２．５");
  QTest::keyClick(&line, Qt::Key_Return);
  EXPECT_EQ(form_.txtAcnt2(4).Text(), "12.50");
}

TEST_F(Editing, KeepsADateThatAnInputMethodComposesIn) {
  form_.UserFocus(form_.dtpAcntDate);
  world_.Settle();
  auto& edit = world_.Native<QDateEdit>(form_.dtpAcntDate);
  const basic::Date before = form_.dtpAcntDate.Value();
  auto* line = edit.findChild<QLineEdit*>();
  Compose(*line, "jintian");
  QTest::keyClick(line, Qt::Key_Return);
  world_.Settle();
  EXPECT_EQ(form_.Focused(), &form_.dtpAcntDate);
  Commit(*line, "今天");
  QTest::keyClick(line, Qt::Key_Return);
  world_.Settle();
  EXPECT_NE(form_.Focused(), &form_.dtpAcntDate);
  EXPECT_EQ(form_.dtpAcntDate.Value(), before);
}

TEST_F(Editing, ComposesInAnEditableList) {
  form_.UserFocus(form_.cboDoneMan);
  world_.Settle();
  QLineEdit* line = world_.Native<QComboBox>(form_.cboDoneMan).lineEdit();
  Compose(*line, "lisi");
  QTest::keyClick(line, Qt::Key_Return);
  world_.Settle();
  EXPECT_EQ(form_.Focused(), &form_.cboDoneMan);
  Commit(*line, "李四");
  EXPECT_EQ(form_.cboDoneMan.Text(), "李四");
}

TEST_F(Editing, CutsPastedTextToTheFieldsBytes) {
  QLineEdit& line = Enter(form_.txtAcnt2(7));
  QApplication::clipboard()->setText("123456789012345678901234567890");
  line.paste();
  EXPECT_EQ(form_.txtAcnt2(7).Text(), "12345678901234567890");
  EXPECT_EQ(world_.Text(line), "12345678901234567890");
}

TEST_F(Editing, UndoesToWhatStoodBeforeARefusedEdit) {
  QLineEdit& line = Enter(form_.txtAcnt2(7));
  QTest::keyClicks(&line, "AB");
  QApplication::clipboard()->setText("123456789012345678901234567890");
  line.paste();
  ASSERT_EQ(form_.txtAcnt2(7).Text().size(), 20U);
  for (int i = 0; i < 5 && !line.text().isEmpty(); ++i)
    QTest::keyClick(&line, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(world_.Text(line), form_.txtAcnt2(7).Text());
  EXPECT_EQ(world_.Text(line), "");
}

TEST_F(Editing, ReplacesTheSelectionWithATypedKey) {
  QLineEdit& line = Enter(form_.txtAcnt2(6));
  QTest::keyClicks(&line, "abcd");
  line.setSelection(1, 2);
  QTest::keyClick(&line, 'x');
  EXPECT_EQ(form_.txtAcnt2(6).Text(), "axd");
  EXPECT_EQ(world_.Text(line), "axd");
  EXPECT_EQ(line.cursorPosition(), 2);
}

TEST_F(Editing, CountsRareCharactersAsOne) {
  QLineEdit& line = Enter(form_.txtAcnt2(6));
  Commit(line, "𠮷野");
  EXPECT_EQ(form_.txtAcnt2(6).SelStart(), 2);
  QTest::keyClick(&line, Qt::Key_Backspace);
  EXPECT_EQ(form_.txtAcnt2(6).Text(), "𠮷");
}

TEST_F(Editing, RestoresTheLastValidTextWithEscape) {
  QLineEdit& line = Enter(form_.txtAcnt2(8));
  QTest::keyClicks(&line, "o'x");
  QTest::keyClick(&line, Qt::Key_Escape);
  EXPECT_EQ(world_.Text(line), "");
}

TEST_F(Editing, MovesOnWithEnterAndFormatsTheAmountLeft) {
  QLineEdit& line = Enter(form_.txtAcnt2(4));
  QTest::keyClicks(&line, "12.5");
  QTest::keyClick(&line, Qt::Key_Return);
  world_.Settle();
  EXPECT_EQ(world_.Text(line), "12.50");
  EXPECT_FALSE(line.hasFocus());
  EXPECT_NE(form_.Focused(), &form_.txtAcnt2(4));
}

TEST_F(Editing, SelectsTheWholeFieldThatIsEnteredByMouse) {
  QLineEdit& line = world_.Line(form_.txtAcnt2(9));
  ASSERT_FALSE(line.text().isEmpty());
  QTest::mouseClick(&line, Qt::LeftButton);
  EXPECT_EQ(form_.Focused(), &form_.txtAcnt2(9));
  EXPECT_EQ(line.selectedText(), line.text());
}

TEST_F(Editing, KeepsTheNativeFocusInAFieldThatFailsItsCheck) {
  QLineEdit& line = Enter(form_.txtAcnt2(6));
  QTest::keyClicks(&line, "it's");
  QTest::mouseClick(&world_.Line(form_.txtAcnt2(7)), Qt::LeftButton);
  world_.Settle();
  EXPECT_EQ(form_.Focused(), &form_.txtAcnt2(6));
  EXPECT_TRUE(line.hasFocus());
  EXPECT_FALSE(world_.Messages().empty());
}

TEST_F(Editing, TakesTypedDigitsOfADateHoweverTheFocusCame) {
  auto& date = world_.Native<QDateEdit>(form_.dtpAcntDate);
  form_.SetFocus(form_.dtpAcntDate);
  world_.Settle();
  ASSERT_TRUE(date.hasFocus());
  QTest::keyClicks(&date, "20261118");
  EXPECT_EQ(form_.dtpAcntDate.Value(), basic::Date::FromYmd(2026, 11, 18));
  QTest::keyClick(&date, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&date, "2025-1-");
  EXPECT_EQ(date.findChild<QLineEdit*>()->text(), "2025-01-18");
  EXPECT_EQ(date.findChild<QLineEdit*>()->selectedText(), "18");
  QTest::keyClicks(&date, "02");
  EXPECT_EQ(form_.dtpAcntDate.Value(), basic::Date::FromYmd(2025, 1, 2));
}

TEST_F(Editing, TypesIntoThePartOfADateThatTheUserPointsAt) {
  auto& date = world_.Native<QDateEdit>(form_.dtpAcntDate);
  form_.dtpAcntDate.SetValue(basic::Date::FromYmd(2024, 3, 15));
  auto* line = date.findChild<QLineEdit*>();
  const int middle = line->fontMetrics().horizontalAdvance("2024-0") + 3;
  QTest::mouseClick(line, Qt::LeftButton, {}, QPoint(middle, line->height() / 2));
  world_.Settle();
  EXPECT_EQ(line->selectedText(), "03");
  QTest::keyClicks(&date, "12");
  QTest::keyClick(&date, Qt::Key_Return);
  EXPECT_EQ(form_.dtpAcntDate.Value(), basic::Date::FromYmd(2024, 12, 15));
}

TEST_F(Editing, KeepsADateHalfTypedWhileAnotherWindowIsInFront) {
  auto& date = world_.Native<QDateEdit>(form_.dtpAcntDate);
  form_.SetFocus(form_.dtpAcntDate);
  world_.Settle();
  QTest::keyClicks(&date, "20261");
  QWidget other;
  other.show();
  other.activateWindow();
  world_.Settle();
  world_.Window().activateWindow();
  world_.Settle();
  EXPECT_EQ(date.findChild<QLineEdit*>()->text(), "2026-1-15");
  QTest::keyClicks(&date, "118");
  EXPECT_EQ(form_.dtpAcntDate.Value(), basic::Date::FromYmd(2026, 11, 18));
}

TEST_F(Editing, TakesTheDigitsThatAnInputMethodHandsToADate) {
  auto& date = world_.Native<QDateEdit>(form_.dtpAcntDate);
  form_.SetFocus(form_.dtpAcntDate);
  world_.Settle();
  Commit(*date.findChild<QLineEdit*>(), "２０２６１１１８");
  EXPECT_EQ(form_.dtpAcntDate.Value(), basic::Date::FromYmd(2026, 11, 18));
}

TEST_F(Editing, ShowsAFieldThatRefusesAKeyForAMoment) {
  auto& date = world_.Native<QDateEdit>(form_.dtpAcntDate);
  form_.SetFocus(form_.dtpAcntDate);
  world_.Settle();
  QTest::keyClicks(&date, "20261");
  EXPECT_FALSE(date.property(qt::kRefused).toBool());
  QTest::keyClicks(&date, "7");
  EXPECT_TRUE(date.property(qt::kRefused).toBool()) << "there is no month 17";
  EXPECT_TRUE(QTest::qWaitFor([&] { return !date.property(qt::kRefused).toBool(); }));
}

TEST(DisabledButton, SaysWhyItsKeyDoesNothing) {
  ui::Form form("frm");
  form.SetSize(9000, 6000);
  form.SetLoaded(true);
  ui::TextBox box(form, "txt");
  box.SetBounds({0, 0, 1500, 300});
  ui::Button button(form, "cmd");
  button.SetBounds({0, 600, 1500, 450});
  button.SetCaption("修改(&M)");
  button.SetEnabled(false, "已审核的帐目不能修改。");
  qt::FormWindow window(form, {});
  window.show();
  window.activateWindow();
  form.UserFocus(box);
  WindowWorld::Settle();
  QToolTip::hideText();
  QTest::keyClick(window.ViewOf(box)->FocusWidget(), Qt::Key_M, Qt::AltModifier);
  EXPECT_TRUE(QToolTip::isVisible());
  EXPECT_EQ(QToolTip::text().toStdString(), "已审核的帐目不能修改。");
}

TEST_F(Editing, HandsAHalfTypedDateOverBeforeTheFieldIsLeft) {
  form_.UserFocus(form_.dtpAcntDate);
  world_.Settle();
  auto& date = world_.Native<QDateEdit>(form_.dtpAcntDate);
  QTest::keyClick(&date, Qt::Key_End);
  QTest::keyClicks(&date, "07");
  QTest::keyClick(&date, Qt::Key_Return);
  world_.Settle();
  EXPECT_EQ(form_.dtpAcntDate.Value(), basic::Date::FromYmd(2024, 3, 7));
  EXPECT_EQ(form_.Focused(), &form_.txtAcnt2(1));
}

TEST_F(Editing, ChoosesFromAListAsTheUserDoes) {
  auto& combo = world_.Native<QComboBox>(form_.cboHb);
  form_.UserFocus(form_.cboHb);
  world_.Settle();
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(form_.cboHb.Text(), "USD");
  EXPECT_EQ(combo.currentText(), "USD");
  EXPECT_EQ(world_.Text(world_.Line(form_.txtHbRate)), "7.1000");
}

TEST_F(Editing, ShowsATextThatIsNotInTheList) {
  form_.cboHb.SetText("EUR");
  auto& combo = world_.Native<QComboBox>(form_.cboHb);
  EXPECT_EQ(combo.currentIndex(), -1);
  EXPECT_EQ(combo.placeholderText(), "EUR");
}

TEST_F(Editing, TypesANewNameIntoAnEditableList) {
  auto& combo = world_.Native<QComboBox>(form_.cboDoneMan);
  form_.UserFocus(form_.cboDoneMan);
  world_.Settle();
  QTest::keyClicks(&combo, "Wu");
  EXPECT_EQ(form_.cboDoneMan.Text(), "Wu");
  EXPECT_EQ(combo.currentText(), "Wu");
}

TEST_F(Editing, LeavesFieldsAloneThatTheWheelPassesOver) {
  form_.UserFocus(form_.txtAcnt2(6));
  world_.Settle();
  const basic::Date date = form_.dtpAcntDate.Value();
  const int32_t currency = form_.cboHb.ListIndex();
  for (QWidget* field : {static_cast<QWidget*>(&world_.Native<QDateEdit>(form_.dtpAcntDate)),
                         static_cast<QWidget*>(&world_.Native<QComboBox>(form_.cboHb))}) {
    QWheelEvent event(field->rect().center(), field->mapToGlobal(field->rect().center()), {},
                      {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(field, &event);
  }
  EXPECT_EQ(form_.dtpAcntDate.Value(), date);
  EXPECT_EQ(form_.cboHb.ListIndex(), currency);
}

TEST_F(Editing, ClearsACurrencyFilterWithDelete) {
  form_.UserChoose(form_.cboHb2, 0);
  form_.UserFocus(form_.cboHb2);
  world_.Settle();
  auto& combo = world_.Native<QComboBox>(form_.cboHb2);
  QTest::keyClick(&combo, Qt::Key_Delete);
  EXPECT_EQ(form_.cboHb2.ListIndex(), -1);
  EXPECT_EQ(combo.currentIndex(), -1);
}

}  // namespace
}  // namespace qvzj::test
