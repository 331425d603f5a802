#include "hosts/pictures/qt_pictures.h"

#include <QApplication>
#include <QImage>
#include <QPixmap>

#include "frontends/qt/form_window.h"
#include "frontends/qt/print/page_output.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/measure.h"
#include "platform/basic/errors.h"
#include "platform/surroundings.h"
#include "services/context.h"
#include "suite/print/suite_print.h"

namespace qvzj {

/// The running Qt application and what prints in it.
struct QtPictures::Running {
  static bool Traditional() { return Shared().Language == 1; }

  int argument_count = 1;
  char name[16] = "qvzj-script";
  char* arguments[2] = {name, nullptr};
  QApplication application{argument_count, arguments};
  qt::QtPageOutput pages{Traditional};
  print::SuitePrint print{pages, *Around().clock};
};

QtPictures::QtPictures() = default;
QtPictures::~QtPictures() = default;

QtPictures::Running& QtPictures::Start() {
  if (!running_) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    running_ = std::make_unique<Running>();
  }
  return *running_;
}

namespace {

/// The form as a window of its size shows it, larger than the offscreen screen where it must be.
QImage Draw(ui::Form& form) {
  qt::WindowOptions options;
  options.language = [] { return int{Shared().Language}; };
  qt::FormWindow window(form, options);
  if (window.Resizable()) {
    window.setWindowState(Qt::WindowNoState);  // a small screen would have it maximised
    window.resize(view::ToPixels(form.Width(), window.logicalDpiX()),
                  view::ToPixels(form.Height(), window.logicalDpiY()));
  }
  window.show();
  QApplication::processEvents();
  return window.grab().toImage();
}

}  // namespace

void QtPictures::Screenshot(ui::Form& form, const std::string& file) {
  Start();
  const int32_t width = form.Width();
  const int32_t height = form.Height();
  const ui::WindowState state = form.GetWindowState();
  const QImage picture = Draw(form);
  // Whole pixels are not whole twips: who looks must not move anything.
  if (form.Width() != width || form.Height() != height) form.UserResize(width, height, state);
  if (!picture.save(qt::FromUtf8(file), "PNG")) throw Error(file + ": cannot be written");
}

PrintComponent& QtPictures::PdfPrinter(const std::string& file) {
  Running& running = Start();
  running.pages.SetPdfPath(qt::FromUtf8(file));
  return running.print;
}

}  // namespace qvzj
