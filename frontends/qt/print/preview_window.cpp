#include "frontends/qt/print/preview_window.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollArea>
#include <QSpinBox>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>

#include "frontends/qt/print/paint_page.h"
#include "frontends/qt/print/work_dialog.h"

namespace qvzj::qt {
namespace {

constexpr double kZoomStep = 1.25;
constexpr double kSmallest = 0.4;
constexpr double kLargest = 5;
constexpr QSize kWindow(960, 760);
constexpr int kBesidePage = 60;  // pixels for the desk and the scroll bar

}  // namespace

PreviewWindow::PreviewWindow(const PageSource& pages, const QString& title, const QFont& font,
                             bool traditional, QWidget* parent)
    : QDialog(parent, Qt::Window),
      pages_(pages),
      title_(title),
      font_(font),
      traditional_(traditional),
      view_(new PageView(pages, font)) {
  setWindowTitle(title);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  BuildToolBar();
  auto* scroll = new QScrollArea;
  scroll->setWidget(view_);
  scroll->setAlignment(Qt::AlignCenter);
  scroll->setBackgroundRole(QPalette::Mid);
  layout->addWidget(scroll);
  connect(view_, &PageView::CurrentChanged, this, &PreviewWindow::Leaf);
  Leaf(0);
  resize(kWindow);
  view_->SetZoom(std::min(view_->Zoom(), (kWindow.width() - kBesidePage) / pages.PageWidth()));
}

QString PreviewWindow::Said(const char* simplified, const char* traditional) const {
  return QString::fromUtf8(traditional_ ? traditional : simplified);
}

void PreviewWindow::BuildToolBar() {
  auto* bar = new QToolBar;
  layout()->addWidget(bar);
  QAction* print = bar->addAction(Said("打印(&P)", "打印(&P)"), this, &PreviewWindow::Print);
  print->setShortcut(QKeySequence::Print);
  QAction* pdf = bar->addAction(Said("存为PDF(&S)", "存為PDF(&S)"), this, &PreviewWindow::SavePdf);
  pdf->setShortcut(QKeySequence::Save);
  bar->addSeparator();
  previous_ = bar->addAction(Said("上一页", "上一頁"), this,
                             [this] { view_->SetCurrent(view_->Current() - 1); });
  previous_->setShortcut(Qt::Key_PageUp);
  number_ = new QSpinBox;
  number_->setRange(1, pages_.PageCount());
  connect(number_, &QSpinBox::valueChanged, this, [this](int n) { view_->SetCurrent(n - 1); });
  bar->addWidget(number_);
  bar->addWidget(new QLabel(QStringLiteral(" / %1 ").arg(pages_.PageCount())));
  next_ = bar->addAction(Said("下一页", "下一頁"), this,
                         [this] { view_->SetCurrent(view_->Current() + 1); });
  next_->setShortcut(Qt::Key_PageDown);
  bar->addSeparator();
  const auto zoom = [this](double factor) {
    return [this, factor] { view_->SetZoom(qBound(kSmallest, view_->Zoom() * factor, kLargest)); };
  };
  bar->addAction(Said("放大", "放大"), this, zoom(kZoomStep))->setShortcut(QKeySequence::ZoomIn);
  bar->addAction(Said("缩小", "縮小"), this, zoom(1 / kZoomStep))
      ->setShortcut(QKeySequence::ZoomOut);
  bar->addSeparator();
  bar->addAction(Said("关闭(&C)", "關閉(&C)"), this, &QDialog::reject);
}

void PreviewWindow::Leaf(int page) {
  const QSignalBlocker quiet(number_);
  number_->setValue(page + 1);
  previous_->setEnabled(page > 0);
  next_->setEnabled(page + 1 < pages_.PageCount());
}

void PreviewWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(title_);
  FitPaper(printer, pages_);
  printer.setFromTo(1, pages_.PageCount());
  QPrintDialog dialog(&printer, this);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  if (dialog.exec() != QDialog::Accepted) return;
  FitPaper(printer, pages_);  // the dialog may have turned the paper
  const bool all = printer.printRange() != QPrinter::PageRange;
  const int first = all ? 0 : printer.fromPage() - 1;
  const int last = all ? pages_.PageCount() - 1 : printer.toPage() - 1;
  WorkDialog work(this, title_);
  PaintPages(printer, printer.resolution(), pages_, first, last, font_, work.AsProgress());
}

void PreviewWindow::SavePdf() {
  const QString path =
      QFileDialog::getSaveFileName(this, Said("存为PDF", "存為PDF"),
                                   title_ + QStringLiteral(".pdf"), QStringLiteral("PDF (*.pdf)"));
  if (path.isEmpty()) return;
  try {
    WorkDialog work(this, title_);
    WritePdf(pages_, path, title_, font_, work.AsProgress());
  } catch (const std::exception& error) {
    QMessageBox::critical(this, title_, QString::fromUtf8(error.what()));
  }
}

}  // namespace qvzj::qt
