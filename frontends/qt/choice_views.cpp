#include "frontends/qt/choice_views.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStyleOption>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "frontends/qt/form_window.h"
#include "frontends/qt/line_link.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/texts.h"

namespace qvzj::qt {

namespace {

QDate ToNative(basic::Date date) { return {date.Year(), date.Month(), date.Day()}; }

basic::Date FromNative(const QDate& date) {
  return basic::Date::FromYmd(date.year(), date.month(), date.day());
}

/// The calendar's own names of its buttons, and the marks they get.
constexpr std::pair<const char*, const char*> kMonthButtons[] = {{"qt_calendar_prevmonth", "‹"},
                                                                 {"qt_calendar_nextmonth", "›"}};

/// Plain marks in place of the toolkit's coloured arrows, and an edge all around.
void DressCalendar(QCalendarWidget& calendar) {
  calendar.setGridVisible(false);
  calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar.layout()->setContentsMargins(1, 1, 1, 1);
  calendar.setAutoFillBackground(true);
  calendar.setBackgroundRole(QPalette::Dark);
  // It measures digits; the rows and columns of its table need more in a Chinese font.
  if (const auto* days = calendar.findChild<QTableView*>()) {
    constexpr int kColumns = 7;
    constexpr int kLines = 9;  // month, weekdays, six weeks, and some air
    const int column = std::max(days->horizontalHeader()->minimumSectionSize(), 40);
    calendar.setMinimumSize(column * kColumns,
                            days->verticalHeader()->minimumSectionSize() * kLines);
  }
  for (const auto& [name, mark] : kMonthButtons) {
    auto* button = calendar.findChild<QToolButton*>(name);
    if (button == nullptr) continue;
    button->setIcon(QIcon());
    button->setText(mark);
  }
}

}  // namespace

ComboView::ComboView(FormWindow& window, ui::ComboBox& combo, QWidget* parent)
    : ControlView(window, combo), combo_(combo), native_(new QComboBox(parent)) {
  native_->setEditable(combo_.Editable());
  native_->setInsertPolicy(QComboBox::NoInsert);
  native_->setMaxVisibleItems(16);
  native_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  if (combo_.Editable()) {
    native_->setCompleter(nullptr);  // what stands in the box is what was typed
    link_ = std::make_unique<LineLink>(*native_->lineEdit(), combo_, window.Pump(),
                                       FromUtf8(view::TextsOf(window.Traditional()).shortened));
  }
  Adopt(native_, native_->lineEdit());
  connect(native_, &QComboBox::activated, this, [this](int index) {
    Act([&] { return GetForm().UserChoose(combo_, index); });
    if (Live()) ShowText();
  });
}

ComboView::~ComboView() = default;

void ComboView::CommitEdit() {
  if (link_ && !link_->Session().Editing()) CommitComposition();
}

void ComboView::SendKey(const ui::Key& key) {
  if (link_) {
    link_->Session().Key(key);
  } else {
    ControlView::SendKey(key);
  }
}

QWidget* ComboView::Widget() const { return native_; }

void ComboView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  switch (aspect) {
    case ui::Aspect::Items:
      ShowItems();
      return;
    case ui::Aspect::Text:
    case ui::Aspect::Value:
      ShowText();
      return;
    case ui::Aspect::Selection:
      if (link_) link_->Session().ShowSelection();
      return;
    case ui::Aspect::Locked:
      native_->setProperty("qvReadOnly", combo_.Locked());
      if (native_->lineEdit()) native_->lineEdit()->setReadOnly(!combo_.TakesText());
      native_->update();
      return;
    default:
      return;
  }
}

void ComboView::ShowItems() {
  const QSignalBlocker quiet(native_);
  QStringList shown;
  for (const std::string& item : combo_.Items()) shown << FromUtf8(combo_.Shown(item));
  native_->clear();
  native_->addItems(shown);
  ShowText();
}

void ComboView::ShowText() {
  const QSignalBlocker quiet(native_);
  if (native_->currentIndex() != combo_.ListIndex()) {
    // Choosing an item also rewrites an editor's text; its own change must not come back.
    const QSignalBlocker quiet_line(native_->lineEdit() ? native_->lineEdit()
                                                        : static_cast<QObject*>(native_));
    native_->setCurrentIndex(combo_.ListIndex());
  }
  if (link_) {
    link_->Session().ShowText();
  } else {
    // A list-only box shows a text that is not in its list as if it were.
    native_->setPlaceholderText(FromUtf8(combo_.Shown(combo_.Text())));
  }
}

bool ComboView::eventFilter(QObject* watched, QEvent* event) {
  if (ControlView::eventFilter(watched, event)) return true;
  if (!Live() || !combo_.Locked() || watched != native_) return false;
  // A locked box shows its text and nothing else: it drops no list and takes no key.
  const auto type = event->type();
  return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick ||
         type == QEvent::Wheel ||
         (type == QEvent::KeyPress && !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy));
}

ListView::ListView(FormWindow& window, ui::ListBox& list, QWidget* parent)
    : ControlView(window, list), list_(list), native_(new QListWidget(parent)) {
  Adopt(native_, native_->viewport());
  native_->setUniformItemSizes(true);
  native_->setTabKeyNavigation(false);
  connect(native_, &QListWidget::currentRowChanged, this, [this](int row) {
    Act([&] { return GetForm().UserChoose(list_, row); });
    if (Live()) Mirror(ui::Aspect::Value);
  });
  connect(native_, &QListWidget::itemDoubleClicked, this,
          [this] { Act([this] { return GetForm().UserDoubleClick(list_); }); });
}

QWidget* ListView::Widget() const { return native_; }

void ListView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  const QSignalBlocker quiet(native_);
  if (aspect == ui::Aspect::Items) ShowItems();
  if (aspect == ui::Aspect::Value && native_->currentRow() != list_.ListIndex()) {
    native_->setCurrentRow(list_.ListIndex());
  }
}

void ListView::ShowItems() {
  QStringList shown;
  for (const std::string& item : list_.Items()) {
    shown << FromUtf8(item).replace(QLatin1Char('\t'), QStringLiteral("    "));
  }
  native_->clear();
  native_->addItems(shown);
  native_->setCurrentRow(list_.ListIndex());
}

/// A date field that makes its calendar when it is first dropped: a calendar takes longer to make
/// than all the other fields of a screen together. F4 and Alt+Down drop it, as they drop lists.
class DateEdit : public QDateEdit {
 public:
  using QDateEdit::QDateEdit;
  /// True while the field reads its own text, as it does whenever the focus comes or goes: what it
  /// makes of a date half typed is no word of the user's.
  bool Settling() const { return settling_; }
  /// The focus came or went.
  std::function<void()> onFocus;

 protected:
  bool event(QEvent* event) override {
    const bool focus = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    if (!focus) return QDateEdit::event(event);
    const QScopedValueRollback<bool> settling(settling_, true);
    const bool done = QDateEdit::event(event);
    onFocus();
    return done;
  }
  void mousePressEvent(QMouseEvent* event) override {
    if (!calendar_) MakeCalendar();
    ColourCalendar();
    QDateEdit::mousePressEvent(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    const bool alt = event->modifiers().testFlag(Qt::AltModifier);
    if (event->key() == Qt::Key_F4 || (alt && event->key() == Qt::Key_Down)) {
      Drop();
    } else {
      QDateEdit::keyPressEvent(event);
    }
  }

 private:
  /// The toolkit drops a calendar for a press on the arrow alone.
  void Drop() {
    QStyleOptionComboBox option;
    option.initFrom(this);
    const QPointF arrow =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this)
            .center();
    QMouseEvent press(QEvent::MouseButtonPress, arrow, mapToGlobal(arrow), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    mousePressEvent(&press);
  }
  /// The application may have gone from light to dark since.
  void ColourCalendar() {
    QTextCharFormat format;
    format.setForeground(QColor(ColorsFor(palette()).negative));
    for (Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) {
      calendar_->setWeekdayTextFormat(day, format);
    }
    QPalette marks = palette();
    marks.setBrush(QPalette::ButtonText, marks.highlightedText());
    for (const auto& [name, mark] : kMonthButtons) {
      if (auto* button = calendar_->findChild<QToolButton*>(name)) button->setPalette(marks);
    }
  }
  void MakeCalendar() {
    calendar_ = calendarWidget();
    calendar_->setStyle(style());
    for (QWidget* part : calendar_->findChildren<QWidget*>()) part->setStyle(style());
    DressCalendar(*calendar_);  // last, since it makes the calendar measure itself anew
  }

  QCalendarWidget* calendar_ = nullptr;
  bool settling_ = false;
};

DateView::DateView(FormWindow& window, ui::DatePicker& picker, QWidget* parent)
    : ControlView(window, picker), picker_(picker), native_(new DateEdit(parent)) {
  native_->setDisplayFormat("yyyy-MM-dd");
  native_->setCalendarPopup(true);
  native_->setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
  native_->setLocale(QLocale(QLocale::Chinese));
  Adopt(native_, native_->findChild<QLineEdit*>());
  // The native field goes later than its view, and loses the focus then.
  native_->onFocus = [self = QPointer<DateView>(this)] {
    if (self && self->Live()) self->ShowKeyed();
  };
  connect(native_, &QDateEdit::userDateChanged, this, [this](QDate date) {
    if (!Live() || native_->Settling() || !date.isValid()) return;
    Act([&] { return GetForm().UserDate(picker_, FromNative(date)); });
    if (Live()) Mirror(ui::Aspect::Value);
  });
}

QWidget* DateView::Widget() const { return native_; }

void DateView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  if (aspect == ui::Aspect::Value) {
    const QSignalBlocker quiet(native_);
    native_->setDate(ToNative(picker_.Value()));
  }
  if (aspect == ui::Aspect::Value || aspect == ui::Aspect::Text) ShowKeyed();
}

void DateView::ShowKeyed() {
  auto& line = *native_->findChild<QLineEdit*>();
  const QSignalBlocker quiet(line);
  const ui::DateKeys& keyed = picker_.Keyed();
  line.setText(FromUtf8(keyed.Shown()));
  if (!native_->hasFocus()) {
    line.setCursorPosition(0);
  } else if (keyed.SelLength() == 0) {
    line.setCursorPosition(keyed.SelStart());
  } else {
    line.setSelection(keyed.SelStart(), keyed.SelLength());
  }
}

void DateView::TakeComposed(const QString& text) {
  for (char32_t character : text.toUcs4()) SendKey(ui::Key::Character(character));
}

void DateView::PointAtPart(int character) {
  const ui::DatePart part = character < 5   ? ui::DatePart::Year
                            : character < 8 ? ui::DatePart::Month
                                            : ui::DatePart::Day;
  Act([&] { return GetForm().UserDatePart(picker_, part); });
  if (Live()) ShowKeyed();
}

bool DateView::eventFilter(QObject* watched, QEvent* event) {
  if (ControlView::eventFilter(watched, event)) return true;
  if (!Live()) return false;
  if (event->type() == QEvent::InputMethod) {
    // What is composed comes in as typed characters do.
    TakeComposed(static_cast<QInputMethodEvent*>(event)->commitString());
    return true;
  }
  auto* line = qobject_cast<QLineEdit*>(watched);
  if (event->type() == QEvent::MouseButtonRelease && line != nullptr) {
    const QPoint at = static_cast<QMouseEvent*>(event)->position().toPoint();
    PointAtPart(line->cursorPositionAt(at));
  }
  return false;
}

}  // namespace qvzj::qt
