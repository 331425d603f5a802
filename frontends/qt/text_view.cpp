#include "frontends/qt/text_view.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "frontends/qt/form_window.h"
#include "frontends/qt/line_link.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/texts.h"

namespace qvzj::qt {

LineView::LineView(FormWindow& window, ui::TextBox& box, QWidget* parent)
    : ControlView(window, box), box_(box), line_(new QLineEdit(parent)) {
  Adopt(line_);
  if (box_.Masked()) line_->setEchoMode(QLineEdit::Password);
  // Input methods then offer figures, not words.
  if (box_.RightAligned()) line_->setInputMethodHints(Qt::ImhFormattedNumbersOnly);
  line_->setAlignment((box_.RightAligned() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  link_ = std::make_unique<LineLink>(*line_, box_, window.Pump(),
                                     FromUtf8(view::TextsOf(window.Traditional()).shortened));
}

LineView::~LineView() = default;

QWidget* LineView::Widget() const { return line_; }

void LineView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  switch (aspect) {
    case ui::Aspect::Text:
      link_->Session().ShowText();
      return;
    case ui::Aspect::Selection:
      link_->Session().ShowSelection();
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

void LineView::CommitEdit() {
  if (!link_->Session().Editing()) CommitComposition();
}

void LineView::SendKey(const ui::Key& key) { link_->Session().Key(key); }

MemoView::MemoView(FormWindow& window, ui::TextBox& box, QWidget* parent)
    : ControlView(window, box),
      box_(box),
      page_(new QPlainTextEdit(parent)),
      session_(*this, box, window.Pump()) {
  Adopt(page_, page_->viewport());
  page_->setTabChangesFocus(true);
  page_->setFrameShape(QFrame::StyledPanel);
  connect(page_, &QPlainTextEdit::textChanged, this, [this] { session_.Edited(); });
  connect(page_, &QPlainTextEdit::selectionChanged, this, [this] { session_.Selected(); });
  connect(page_, &QPlainTextEdit::cursorPositionChanged, this, [this] { session_.Selected(); });
}

QWidget* MemoView::Widget() const { return page_; }

void MemoView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  switch (aspect) {
    case ui::Aspect::Text:
      session_.ShowText();
      return;
    case ui::Aspect::Selection:
      session_.ShowSelection();
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

void MemoView::CommitEdit() {
  if (!session_.Editing()) CommitComposition();
}

std::u16string MemoView::Text() const { return page_->toPlainText().toStdU16String(); }

view::Stretch MemoView::Selection() const {
  const QTextCursor cursor = page_->textCursor();
  return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
}

int32_t MemoView::Caret() const { return page_->textCursor().position(); }

void MemoView::Show(const std::u16string& text) {
  const QSignalBlocker quiet(page_);
  page_->setPlainText(QString::fromStdU16String(text));
}

void MemoView::Select(view::Stretch stretch) {
  QTextCursor cursor = page_->textCursor();
  cursor.setPosition(stretch.start);
  cursor.setPosition(stretch.start + stretch.length, QTextCursor::KeepAnchor);
  const QSignalBlocker quiet(page_);
  page_->setTextCursor(cursor);
}

void MemoView::Replace(view::Stretch stretch, const std::u16string& text) {
  QTextCursor cursor(page_->document());
  cursor.setPosition(stretch.start);
  cursor.setPosition(stretch.start + stretch.length, QTextCursor::KeepAnchor);
  const QSignalBlocker quiet(page_);
  cursor.insertText(QString::fromStdU16String(text));
}

}  // namespace qvzj::qt
