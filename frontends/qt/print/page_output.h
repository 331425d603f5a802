#pragma once

#include <QFont>
#include <QString>
#include <functional>
#include <memory>

#include "frontends/qt/print/font_metrics.h"
#include "frontends/qt/work_dialog.h"
#include "platform/pages.h"

namespace qvzj::qt {

/// Shows printed pages in a preview window, or writes each job straight to a PDF file where a path
/// was set (for programs that run unattended).
class QtPageOutput : public PageOutput {
 public:
  /// `font` for the pages; `traditional` answers the language of the preview's own words.
  QtPageOutput(const QFont& font, std::function<bool()> traditional);
  ~QtPageOutput() override;

  const TextMetrics& Metrics() const override { return metrics_; }
  bool ShowProgress(int64_t done, int64_t total) override;
  void Output(const PageSource& pages, const std::string& title) override;
  /// Where the next jobs go; "" shows the preview again.
  void SetPdfPath(const QString& path) { pdf_path_ = path; }

 private:
  QFont font_;
  FontMetrics metrics_;
  std::function<bool()> traditional_;
  QString pdf_path_;
  std::unique_ptr<WorkDialog> work_;
};

}  // namespace qvzj::qt
