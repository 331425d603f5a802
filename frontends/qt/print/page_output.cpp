#include "frontends/qt/print/page_output.h"

#include <QApplication>

#include "frontends/qt/print/paint_page.h"
#include "frontends/qt/print/preview_window.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/texts.h"

namespace qvzj::qt {

QtPageOutput::QtPageOutput(std::function<bool()> traditional)
    : traditional_(std::move(traditional)) {}

QtPageOutput::~QtPageOutput() = default;

const QtPageOutput::Face& QtPageOutput::CurrentFace() const {
  const bool traditional = traditional_();
  std::optional<Face>& face = faces_[traditional ? 1 : 0];
  if (!face) face.emplace(ThemeFont(traditional));
  return *face;
}

bool QtPageOutput::ShowProgress(int64_t done, int64_t total) {
  if (!pdf_path_.isEmpty()) return true;
  if (!work_) {
    QWidget* owner = QApplication::activeWindow();
    work_ = std::make_unique<WorkDialog>(owner, owner == nullptr ? QString() : owner->windowTitle(),
                                         FromUtf8(view::PreviewTextsOf(traditional_()).laying_out),
                                         traditional_());
  }
  const bool goes_on = work_->Step(done, total);
  if (!goes_on) work_.reset();
  return goes_on;
}

void QtPageOutput::Output(const PageSource& pages, const std::string& title) {
  work_.reset();
  if (!pdf_path_.isEmpty()) {
    WritePdf(pages, pdf_path_, FromUtf8(title), CurrentFace().font, {});
    return;
  }
  PreviewWindow preview(pages, FromUtf8(title), CurrentFace().font, traditional_(),
                        QApplication::activeWindow());
  preview.exec();
}

}  // namespace qvzj::qt
