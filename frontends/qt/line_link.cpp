#include "frontends/qt/line_link.h"

#include <QApplication>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "frontends/qt/text.h"
#include "frontends/view/utf16.h"

namespace qvzj::qt {

namespace {

struct Selection {
  int start = 0;
  int length = 0;
  friend bool operator==(const Selection&, const Selection&) = default;
};

Selection NativeSelection(const QLineEdit& line) {
  if (!line.hasSelectedText()) return {line.cursorPosition(), 0};
  return {line.selectionStart(), static_cast<int>(line.selectedText().size())};
}

Selection WantedSelection(const QString& text, const ui::EditBox& box) {
  const int start = view::Utf16Position(Units(text), box.SelStart());
  return {start, view::Utf16Position(Units(text), box.SelStart() + box.SelLength()) - start};
}

}  // namespace

LineLink::LineLink(QLineEdit& line, ui::EditBox& box, Act act, std::function<bool()> live,
                   QString cut)
    : line_(line), box_(box), act_(std::move(act)), live_(std::move(live)), cut_(std::move(cut)) {
  connect(&line_, &QLineEdit::textEdited, this, [this] { Edited(); });
  connect(&line_, &QLineEdit::selectionChanged, this, [this] { Selected(); });
  connect(&line_, &QLineEdit::cursorPositionChanged, this, [this] { Selected(); });
}

bool LineLink::TakesKey(const ui::Key& key) {
  using Name = ui::Key::Name;
  if (key.alt) return false;
  if (!key.ctrl) {
    return key.name == Name::Character || key.name == Name::Space || key.name == Name::Backspace ||
           (key.name == Name::Delete && !key.shift);
  }
  const char32_t letter = key.character | 0x20;
  return key.name == Name::Character && !key.shift &&
         (letter == U'c' || letter == U'v' || letter == U'x');
}

void LineLink::Key(const ui::Key& key) {
  edit_ = Edit::ByKey;
  act_([&] { return box_.GetForm().UserKey(key); });
  edit_ = Edit::None;
}

void LineLink::ShowText() {
  const QString wanted = FromUtf8(box_.Text());
  if (line_.text() == wanted) return;
  const QSignalBlocker quiet(line_);
  if (edit_ != Edit::None) {
    Correct(wanted);
  } else {
    line_.setText(wanted);
  }
  ShowSelection();
}

void LineLink::ShowSelection() {
  const Selection wanted = WantedSelection(line_.text(), box_);
  if (NativeSelection(line_) == wanted) return;
  const QSignalBlocker quiet(line_);
  if (wanted.length == 0) {
    line_.setCursorPosition(wanted.start);
  } else {
    line_.setSelection(wanted.start, wanted.length);
  }
}

void LineLink::Correct(const QString& wanted) {
  // A refused edit is taken back, then what was let through is put in as one edit, so that an undo
  // never meets a text that the form has refused.
  if (edit_ == Edit::ByEditor) line_.undo();
  const QString now = line_.text();
  const auto shorter = std::min(now.size(), wanted.size());
  qsizetype head = 0;
  while (head < shorter && now.at(head) == wanted.at(head)) ++head;
  qsizetype tail = 0;
  while (tail < shorter - head &&
         now.at(now.size() - 1 - tail) == wanted.at(wanted.size() - 1 - tail)) {
    ++tail;
  }
  if (now == wanted) return;
  line_.setSelection(static_cast<int>(head), static_cast<int>(now.size() - head - tail));
  if (head == now.size() - tail) line_.setCursorPosition(static_cast<int>(head));
  const QString inserted = wanted.mid(head, wanted.size() - head - tail);
  if (inserted.isEmpty()) {
    line_.del();
  } else {
    line_.insert(inserted);
  }
}

void LineLink::Edited() {
  if (!live_() || edit_ != Edit::None) return;
  edit_ = Edit::ByEditor;
  const QString text = line_.text();
  const int32_t caret =
      view::CharactersBefore(Units(text), static_cast<size_t>(line_.cursorPosition()));
  const std::string utf8 = ToUtf8(text);
  act_([&] { return box_.GetForm().UserEdited(box_, utf8, caret); });
  if (live_()) {
    ShowText();
    if (line_.text().size() < text.size()) TellCut();
  }
  edit_ = Edit::None;
}

void LineLink::TellCut() const {
  // A dropped key is seen at once; what a whole word or a pasted text has lost is not.
  QApplication::beep();
  QToolTip::showText(line_.mapToGlobal(QPoint(0, line_.height())), cut_, &line_);
}

void LineLink::Selected() {
  if (!live_() || edit_ != Edit::None || line_.text() != FromUtf8(box_.Text())) return;
  const Selection native = NativeSelection(line_);
  const int32_t start =
      view::CharactersBefore(Units(line_.text()), static_cast<size_t>(native.start));
  const int32_t end = view::CharactersBefore(Units(line_.text()),
                                             static_cast<size_t>(native.start + native.length));
  if (start == box_.SelStart() && end - start == box_.SelLength()) return;
  box_.GetForm().UserSelect(box_, start, end - start);
}

}  // namespace qvzj::qt
