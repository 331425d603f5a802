#include "frontends/qt/print/preview_window.h"

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QVBoxLayout>
#include <exception>

#include "frontends/qt/ask_file.h"
#include "frontends/qt/print/page_desk.h"
#include "frontends/qt/print/paint_page.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/qt/work_dialog.h"
#include "platform/surroundings.h"

namespace qvzj::qt {
namespace {

constexpr QSize kWindow(1080, 780);
constexpr int kGap = 6;            // between what belongs together
constexpr int kGroupGap = 14;      // between groups
constexpr int kButtonHeight = 28;  // as the module's own
constexpr int kButtonMargin = 20;  // beside a button's text
constexpr int kNumberWidth = 56;
constexpr int kPercentWidth = 58;

}  // namespace

PreviewWindow::PreviewWindow(const PageSource& pages, const QString& title, const QFont& font,
                             bool traditional, QWidget* parent)
    : QDialog(parent, Qt::Window),
      pages_(pages),
      title_(title),
      font_(font),
      traditional_(traditional),
      texts_(view::PreviewTextsOf(traditional)),
      bar_(new QWidget),
      desk_(new PageDesk(pages, font)) {
  setWindowTitle(title);
  setFont(ThemeFont(traditional));  // the buttons are as wide as their texts
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(bar_);
  layout->addWidget(desk_);
  auto* row = new QHBoxLayout(bar_);
  row->setContentsMargins(8, 8, 8, 8);
  row->setSpacing(kGap);
  BuildBar(*row);
  AddKeys();
  desk_->setAccessibleName(title);
  connect(desk_, &PageDesk::CurrentChanged, this, &PreviewWindow::ShowPage);
  connect(desk_, &PageDesk::ZoomChanged, this, &PreviewWindow::ShowSize);
  bar_->setAutoFillBackground(true);
  bar_->setBackgroundRole(QPalette::Button);
  Dress(*this, traditional);
  Colour();
  ShowPage();
  ShowSize();
  resize(kWindow);
  desk_->setFocus();
}

void PreviewWindow::Colour() {
  setPalette(ThemePalette(Appearance::System));
  // The desk is darker than the paper in either appearance.
  desk_->setBackgroundRole(IsDark(palette()) ? QPalette::Base : QPalette::Mid);
}

bool PreviewWindow::event(QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) Colour();
  return QDialog::event(event);
}

QPushButton* PreviewWindow::AddButton(QHBoxLayout& row, std::string_view text,
                                      const QString& keys) {
  auto* button = new QPushButton(FromUtf8(text));
  // Enter in the page's number must not press a button.
  button->setAutoDefault(false);
  QString plain = button->text();
  plain.remove(QChar('&'));
  button->setFixedSize(button->fontMetrics().horizontalAdvance(plain) + kButtonMargin,
                       kButtonHeight);
  if (!keys.isEmpty()) button->setToolTip(keys);
  row.addWidget(button);
  return button;
}

void PreviewWindow::BuildBar(QHBoxLayout& row) {
  connect(AddButton(row, texts_.print, "Ctrl+P"), &QPushButton::clicked, this,
          &PreviewWindow::Print);
  connect(AddButton(row, texts_.pdf, "Ctrl+S"), &QPushButton::clicked, this,
          &PreviewWindow::SavePdf);
  row.addSpacing(kGroupGap);
  AddLeafing(row);
  row.addSpacing(kGroupGap);
  AddSizes(row);
  row.addSpacing(kGroupGap);
  said_ = new QLabel;
  said_->setTextFormat(Qt::PlainText);
  said_->setForegroundRole(QPalette::PlaceholderText);
  said_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  row.addWidget(said_, 1);
  connect(AddButton(row, texts_.close, "Esc"), &QPushButton::clicked, this, &QDialog::reject);
}

void PreviewWindow::AddLeafing(QHBoxLayout& row) {
  first_ = AddButton(row, texts_.first, "Home");
  previous_ = AddButton(row, texts_.previous, "PgUp");
  number_ = new QSpinBox;
  number_->setRange(1, pages_.PageCount());
  number_->setButtonSymbols(QSpinBox::NoButtons);
  number_->setKeyboardTracking(false);  // a number half typed is none
  number_->setAlignment(Qt::AlignCenter);
  number_->setFixedSize(kNumberWidth, kButtonHeight);
  number_->setAccessibleName(FromUtf8(texts_.page));
  row.addWidget(number_);
  row.addWidget(
      new QLabel(FromUtf8(view::Fill(texts_.of_pages, {std::to_string(pages_.PageCount())}))));
  next_ = AddButton(row, texts_.next, "PgDn");
  last_ = AddButton(row, texts_.last, "End");
  const auto go = [this](auto page) {
    return [this, page] { desk_->SetCurrent(page(desk_->Current(), pages_.PageCount())); };
  };
  connect(first_, &QPushButton::clicked, this, go([](int, int) { return 0; }));
  connect(previous_, &QPushButton::clicked, this, go([](int now, int) { return now - 1; }));
  connect(next_, &QPushButton::clicked, this, go([](int now, int) { return now + 1; }));
  connect(last_, &QPushButton::clicked, this, go([](int, int count) { return count - 1; }));
  connect(number_, &QSpinBox::valueChanged, this, [this](int n) { desk_->SetCurrent(n - 1); });
}

void PreviewWindow::AddSizes(QHBoxLayout& row) {
  QPushButton* smaller = AddButton(row, "−", "Ctrl+-");
  smaller->setAccessibleName(FromUtf8(texts_.smaller));
  connect(smaller, &QPushButton::clicked, desk_, &PageDesk::ZoomOut);
  zoom_ = AddButton(row, "100%", FromUtf8(texts_.real_size) + " (Ctrl+0)");
  zoom_->setFixedWidth(kPercentWidth);
  connect(zoom_, &QPushButton::clicked, desk_, [this] { desk_->SetZoom(1); });
  QPushButton* larger = AddButton(row, "+", "Ctrl++");
  larger->setAccessibleName(FromUtf8(texts_.larger));
  connect(larger, &QPushButton::clicked, desk_, &PageDesk::ZoomIn);
  for (QPushButton* sign : {smaller, larger}) sign->setFixedWidth(kButtonHeight);
  width_ = AddButton(row, texts_.width, {});
  whole_ = AddButton(row, texts_.whole, {});
  for (QPushButton* fit : {width_, whole_}) fit->setCheckable(true);
  connect(width_, &QPushButton::clicked, this, [this] { ChooseFit(view::PageFit::Width); });
  connect(whole_, &QPushButton::clicked, this, [this] { ChooseFit(view::PageFit::WholePage); });
}

void PreviewWindow::AddKeys() {
  const auto add = [this](const QKeySequence& keys, QPushButton* button) {
    auto* shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
  };
  add(Qt::Key_Home, first_);
  add(Qt::Key_PageUp, previous_);
  add(Qt::Key_PageDown, next_);
  add(Qt::Key_End, last_);
  add(Qt::CTRL | Qt::Key_0, zoom_);
  const auto act = [this](const QKeySequence& keys, auto call) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, call);
  };
  act(Qt::CTRL | Qt::Key_P, [this] { Print(); });
  act(Qt::CTRL | Qt::Key_S, [this] { SavePdf(); });
  act(Qt::CTRL | Qt::Key_Minus, [this] { desk_->ZoomOut(); });
  // Plus stands on the key of the equals sign on most keyboards.
  for (const Qt::Key plus : {Qt::Key_Plus, Qt::Key_Equal}) {
    act(Qt::CTRL | plus, [this] { desk_->ZoomIn(); });
  }
}

void PreviewWindow::ShowPage() {
  const QSignalBlocker quiet(number_);
  const int page = desk_->Current();
  number_->setValue(page + 1);
  for (QPushButton* back : {first_, previous_}) back->setEnabled(page > 0);
  for (QPushButton* on : {next_, last_}) on->setEnabled(page + 1 < pages_.PageCount());
  Say({});
}

void PreviewWindow::ShowSize() {
  zoom_->setText(QStringLiteral("%1%").arg(qRound(desk_->Zoom() * 100)));
  width_->setChecked(desk_->Fit() == view::PageFit::Width);
  whole_->setChecked(desk_->Fit() == view::PageFit::WholePage);
}

void PreviewWindow::ChooseFit(view::PageFit fit) { desk_->SetFit(fit); }

void PreviewWindow::Say(std::string_view text) { said_->setText(FromUtf8(text)); }

void PreviewWindow::Complain(std::string_view text, const std::exception& error) {
  Around().boxes->Error(view::Fill(text, {error.what()}), ToUtf8(title_));
}

void PreviewWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(title_);
  FitPaper(printer, pages_);
  printer.setFromTo(1, pages_.PageCount());
  QPrintDialog dialog(&printer, this);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  Dress(dialog, traditional_);
  dialog.setWindowTitle(title_);
  const bool accepted = dialog.exec() == QDialog::Accepted;
  activateWindow();
  if (!accepted) return;
  FitPaper(printer, pages_);  // the dialog may have turned the paper
  const bool all = printer.printRange() != QPrinter::PageRange;
  const int first = all ? 0 : printer.fromPage() - 1;
  const int last = all ? pages_.PageCount() - 1 : printer.toPage() - 1;
  try {
    WorkDialog work(this, title_, FromUtf8(texts_.printing), traditional_);
    const bool done =
        PaintPages(printer, printer.resolution(), pages_, first, last, font_, work.AsProgress());
    if (!done) printer.abort();
    Say(done ? view::Fill(texts_.printed, {std::to_string(last - first + 1)})
             : std::string(texts_.cancelled));
  } catch (const std::exception& error) {
    Complain(texts_.not_printed, error);
  }
}

void PreviewWindow::SavePdf() {
  const view::FileQuestion question{std::string(texts_.save_pdf), ToUtf8(title_), {{"PDF", "pdf"}}};
  const view::FileAnswer answer = AskSaveFile(*this, question, traditional_);
  if (!answer.path.empty()) WritePdfTo(FromUtf8(answer.path));
}

void PreviewWindow::WritePdfTo(const QString& path) {
  try {
    WorkDialog work(this, title_, FromUtf8(texts_.painting), traditional_);
    const bool done = WritePdf(pages_, path, title_, font_, work.AsProgress());
    Say(done ? view::Fill(texts_.saved, {ToUtf8(QFileInfo(path).fileName())})
             : std::string(texts_.cancelled));
  } catch (const std::exception& error) {
    Complain(texts_.not_written, error);
  }
}

}  // namespace qvzj::qt
