#include "frontends/qt/text_view.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "frontends/qt/form_window.h"
#include "frontends/qt/keys.h"
#include "frontends/qt/line_link.h"
#include "frontends/qt/native_texts.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/utf16.h"

namespace qvzj::qt {

LineView::LineView(FormWindow& window, ui::TextBox& box, QWidget* parent)
    : ControlView(window, box), box_(box), line_(new QLineEdit(parent)) {
  Adopt(line_);
  if (box_.Masked()) line_->setEchoMode(QLineEdit::Password);
  // Input methods then offer figures, not words.
  if (box_.RightAligned()) line_->setInputMethodHints(Qt::ImhFormattedNumbersOnly);
  line_->setAlignment((box_.RightAligned() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  link_ = std::make_unique<LineLink>(
      *line_, box_, [this](const std::function<bool()>& act) { return Act(act); },
      [this] { return Live(); }, TextsOf(window.Traditional() ? 1 : 0).shortened);
}

LineView::~LineView() = default;

QWidget* LineView::Widget() const { return line_; }

void LineView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  switch (aspect) {
    case ui::Aspect::Text:
      link_->ShowText();
      return;
    case ui::Aspect::Selection:
      link_->ShowSelection();
      return;
    case ui::Aspect::Locked:
      line_->setReadOnly(!box_.TakesText());
      return;
    default:
      return;
  }
}

bool LineView::SwallowFocusingPress() const {
  // The form has selected the text for being typed over; the press would undo that.
  return box_.SelLength() > 0;
}

bool LineView::IsModelKey(const ui::Key& key) const {
  return LineLink::TakesKey(key) || IsFormKey(key);
}

void LineView::CommitEdit() {
  if (!link_->Editing()) CommitComposition();
}

void LineView::SendKey(const ui::Key& key) { link_->Key(key); }

MemoView::MemoView(FormWindow& window, ui::TextBox& box, QWidget* parent)
    : ControlView(window, box), box_(box), page_(new QPlainTextEdit(parent)) {
  Adopt(page_, page_->viewport());
  page_->setTabChangesFocus(true);
  page_->setFrameShape(QFrame::StyledPanel);
  connect(page_, &QPlainTextEdit::textChanged, this, [this] { Edited(); });
  connect(page_, &QPlainTextEdit::selectionChanged, this, [this] { Selected(); });
  connect(page_, &QPlainTextEdit::cursorPositionChanged, this, [this] { Selected(); });
}

QWidget* MemoView::Widget() const { return page_; }

void MemoView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  switch (aspect) {
    case ui::Aspect::Text:
      ShowText();
      return;
    case ui::Aspect::Selection:
      ShowSelection();
      return;
    case ui::Aspect::Locked: {
      page_->setReadOnly(!box_.TakesText());
      QPalette palette = page_->parentWidget()->palette();
      if (!box_.TakesText()) {
        palette.setColor(QPalette::Base, ColorsFor(palette).read_only);
      }
      page_->setPalette(palette);
      return;
    }
    default:
      return;
  }
}

bool MemoView::IsModelKey(const ui::Key& key) const {
  // A new line is an edit like any other and comes in through the text.
  return key.name != ui::Key::Name::Enter && IsFormKey(key);
}

void MemoView::CommitEdit() {
  if (!editing_) CommitComposition();
}

void MemoView::ShowText() {
  const QString wanted = FromUtf8(box_.Text());
  if (page_->toPlainText() == wanted) return;
  const QSignalBlocker quiet(page_);
  if (editing_) {
    QTextCursor cursor(page_->document());
    cursor.select(QTextCursor::Document);
    cursor.insertText(wanted);  // an edit, so that it can be undone
  } else {
    page_->setPlainText(wanted);
  }
  ShowSelection();
}

void MemoView::ShowSelection() {
  const QString text = page_->toPlainText();
  const int start = view::Utf16Position(Units(text), box_.SelStart());
  const int end = view::Utf16Position(Units(text), box_.SelStart() + box_.SelLength());
  QTextCursor cursor = page_->textCursor();
  if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
  const QSignalBlocker quiet(page_);
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  page_->setTextCursor(cursor);
}

void MemoView::Edited() {
  if (!Live() || editing_) return;
  const QString text = page_->toPlainText();
  const std::string utf8 = ToUtf8(text);
  if (utf8 == box_.Text()) return;
  editing_ = true;
  const int32_t caret =
      view::CharactersBefore(Units(text), static_cast<size_t>(page_->textCursor().position()));
  Act([&] { return GetForm().UserEdited(box_, utf8, caret); });
  if (Live()) ShowText();
  editing_ = false;
}

void MemoView::Selected() {
  if (!Live() || editing_) return;
  const QString text = page_->toPlainText();
  if (text != FromUtf8(box_.Text())) return;
  const QTextCursor cursor = page_->textCursor();
  const int32_t start =
      view::CharactersBefore(Units(text), static_cast<size_t>(cursor.selectionStart()));
  const int32_t end =
      view::CharactersBefore(Units(text), static_cast<size_t>(cursor.selectionEnd()));
  if (start == box_.SelStart() && end - start == box_.SelLength()) return;
  GetForm().UserSelect(box_, start, end - start);
}

}  // namespace qvzj::qt
