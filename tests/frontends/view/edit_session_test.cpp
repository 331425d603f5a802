#include "frontends/view/edit_session.h"

#include <gtest/gtest.h>

#include <vector>

#include "frontends/view/utf16.h"

namespace qvzj::view {
namespace {

/// An editor that remembers every text the user could undo to.
class FakeEditor : public NativeEditor {
 public:
  std::u16string Text() const override { return text; }
  Stretch Selection() const override { return selection; }
  int32_t Caret() const override { return selection.start + selection.length; }
  void Show(const std::u16string& shown) override {
    text = shown;
    history.clear();
    selection = {};
  }
  void Select(Stretch stretch) override { selection = stretch; }
  void Replace(Stretch stretch, const std::u16string& inserted) override {
    history.push_back(text);
    replaced = stretch;
    text.replace(static_cast<size_t>(stretch.start), static_cast<size_t>(stretch.length), inserted);
    selection = {stretch.start + static_cast<int32_t>(inserted.size()), 0};
  }
  void Undo() override {
    text = history.back();
    history.pop_back();
  }
  /// The user changes the text in the editor itself, by pasting or dropping.
  void Change(const std::u16string& to) {
    history.push_back(text);
    text = to;
    selection = {static_cast<int32_t>(to.size()), 0};
  }

  std::u16string text;
  Stretch selection;
  Stretch replaced;
  std::vector<std::u16string> history;
};

class Session : public ::testing::Test {
 protected:
  Session() {
    form_.onError = [](const std::exception& error) { ADD_FAILURE() << error.what(); };
    form_.SetLoaded(true);
    form_.UserFocus(box_);
  }

  ui::Form form_{"frm"};
  ui::TextBox box_{form_, "txt"};
  ActPump pump_{form_, {[](auto) {}, [](ui::Control&) {}, [](ui::Control&) {}, [] {}}};
  FakeEditor editor_;
  EditSession session_{editor_, box_, pump_};
};

TEST_F(Session, HandsATextThatCameInAtOnceToTheForm) {
  editor_.Change(u"甲乙");
  EXPECT_FALSE(session_.Edited());
  EXPECT_EQ(box_.Text(), "甲乙");
  EXPECT_EQ(box_.Caret(), 2);
}

TEST_F(Session, TakesBackWhatTheFormRefusesAndPutsInWhatItLetThrough) {
  box_.onEdit = [](std::string& inserted) { std::erase(inserted, 'x'); };
  box_.SetText("ab");
  session_.ShowText();
  editor_.Change(u"ab1x2");
  EXPECT_TRUE(session_.Edited());
  EXPECT_EQ(editor_.text, u"ab12");
  EXPECT_EQ(editor_.history, std::vector<std::u16string>{u"ab"}) << "an undo meets no refused text";
}

TEST_F(Session, ReplacesNoMoreOfTheTextThanHasChanged) {
  box_.SetText("甲乙丙丁");
  session_.ShowText();
  box_.Select(1, 2);
  session_.Key(ui::Key::Character(U'X'));
  EXPECT_EQ(editor_.text, u"甲乙丙丁") << "the form tells its window, which shows the text";
  session_.ShowText();
  EXPECT_EQ(editor_.text, u"甲X丁");
}

TEST_F(Session, ShowsATypedKeyAsAnEditOfTheEditors) {
  struct Mirror : ui::FormObserver {
    explicit Mirror(EditSession& session) : session(session) {}
    void ControlChanged(ui::Control&, ui::Aspect aspect) override {
      if (aspect == ui::Aspect::Text) session.ShowText();
    }
    void FormChanged(ui::Form&, ui::Aspect) override {}
    void PopUpMenu(ui::Form&, ui::MenuItem&, int32_t, int32_t) override {}
    EditSession& session;
  } mirror(session_);
  box_.SetText("ab\U00020BB7d");
  session_.ShowText();
  form_.AddObserver(&mirror);
  box_.Select(3, 1);
  session_.Key(ui::Key::Character(U'X'));
  form_.RemoveObserver(&mirror);
  EXPECT_EQ(editor_.text, u"ab\U00020BB7X");
  EXPECT_EQ(editor_.replaced, (Stretch{4, 1})) << "a rare character takes two units";
  EXPECT_EQ(editor_.history.size(), 1U);
}

TEST_F(Session, TellsTheFormWhatTheUserSelectsInCharacters) {
  box_.SetText("a\U00020BB7bc");
  session_.ShowText();
  editor_.selection = {1, 3};
  session_.Selected();
  EXPECT_EQ(box_.SelStart(), 1);
  EXPECT_EQ(box_.SelLength(), 2);
}

TEST_F(Session, DoesNothingOnceTheFormHasGone) {
  pump_.Detach();
  editor_.Change(u"x");
  EXPECT_FALSE(session_.Edited());
  session_.Selected();
  EXPECT_EQ(box_.Text(), "");
}

TEST(Utf16, TurnsTextsBothWays) {
  EXPECT_EQ(ToUtf16("a甲\U00020BB7"), u"a甲\U00020BB7");
  EXPECT_EQ(ToUtf8(u"a甲\U00020BB7"), "a甲\U00020BB7");
  EXPECT_EQ(ToUtf8(std::u16string{u'a', char16_t{0xd842}}), "a\uFFFD");
}

}  // namespace
}  // namespace qvzj::view
