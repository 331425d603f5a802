#include "frontends/qt/line_link.h"

#include <QApplication>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolTip>
#include <utility>

namespace qvzj::qt {

LineLink::LineLink(QLineEdit& line, ui::EditBox& box, view::ActPump& pump, QString cut)
    : line_(line), cut_(std::move(cut)), session_(*this, box, pump) {
  connect(&line_, &QLineEdit::textEdited, this, [this] {
    if (session_.Edited()) TellCut();
  });
  connect(&line_, &QLineEdit::selectionChanged, this, [this] { session_.Selected(); });
  connect(&line_, &QLineEdit::cursorPositionChanged, this, [this] { session_.Selected(); });
}

std::u16string LineLink::Text() const { return line_.text().toStdU16String(); }

view::Stretch LineLink::Selection() const {
  if (!line_.hasSelectedText()) return {line_.cursorPosition(), 0};
  return {line_.selectionStart(), static_cast<int32_t>(line_.selectedText().size())};
}

int32_t LineLink::Caret() const { return line_.cursorPosition(); }

void LineLink::Show(const std::u16string& text) {
  const QSignalBlocker quiet(line_);
  line_.setText(QString::fromStdU16String(text));
}

void LineLink::Select(view::Stretch stretch) {
  const QSignalBlocker quiet(line_);
  if (stretch.length == 0) {
    line_.setCursorPosition(stretch.start);
  } else {
    line_.setSelection(stretch.start, stretch.length);
  }
}

void LineLink::Replace(view::Stretch stretch, const std::u16string& text) {
  Select(stretch);
  const QSignalBlocker quiet(line_);
  if (text.empty()) {
    line_.del();
  } else {
    line_.insert(QString::fromStdU16String(text));
  }
}

void LineLink::Undo() {
  const QSignalBlocker quiet(line_);
  line_.undo();
}

void LineLink::TellCut() const {
  // A dropped key is seen at once; what a whole word or a pasted text has lost is not.
  QApplication::beep();
  QToolTip::showText(line_.mapToGlobal(QPoint(0, line_.height())), cut_, &line_);
}

}  // namespace qvzj::qt
