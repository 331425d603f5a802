#include "frontends/qt/find_bar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

#include "frontends/qt/calm_style.h"
#include "frontends/qt/composition.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"

namespace qvzj::qt {

FindBar::FindBar(QWidget* over, const view::Texts& texts,
                 std::function<bool(const QString&, bool)> find, std::function<void()> closed)
    : QWidget(over),
      line_(new QLineEdit(this)),
      answer_(new QLabel(this)),
      not_found_(FromUtf8(texts.not_found)),
      find_(std::move(find)),
      closed_(std::move(closed)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 6, 6, 6);
  row->addWidget(line_);
  row->addWidget(answer_);
  answer_->hide();
  line_->setMinimumWidth(200);
  line_->setClearButtonEnabled(true);
  line_->setPlaceholderText(FromUtf8(texts.find_here));
  line_->setAccessibleName(FromUtf8(texts.find_here));
  line_->installEventFilter(this);
  over->installEventFilter(this);
  hide();
}

void FindBar::Open() {
  Place();
  show();
  raise();
  line_->setFocus(Qt::ShortcutFocusReason);
  line_->selectAll();
}

void FindBar::Next() {
  if (line_->text().isEmpty()) {
    Open();
  } else {
    Find(false);
  }
}

void FindBar::Find(bool backwards) {
  if (line_->text().isEmpty()) return;
  const bool found = find_(line_->text(), backwards);
  answer_->setText(found ? QString() : not_found_);
  answer_->setVisible(!found);
  Place();
}

void FindBar::Place() {
  adjustSize();
  move(parentWidget()->width() - width() - 20, 30);
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget()) {
    if (event->type() == QEvent::Resize) Place();
    return false;
  }
  Follow(composition_, *event);
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
  const bool again = key->key() == Qt::Key_F3;
  if (!enter && !again && key->key() != Qt::Key_Escape) return false;
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  if (composition_.UnderWay()) return true;
  if (enter || again) {
    Find(key->modifiers().testFlag(Qt::ShiftModifier));
  } else {
    hide();
    closed_();
  }
  return true;
}

void FindBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const view::Colors& colors = ColorsFor(palette());
  DrawRounded(painter, rect(), colors.card, colors.strong_border);
}

}  // namespace qvzj::qt
