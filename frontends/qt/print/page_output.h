#pragma once

#include <QFont>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "frontends/qt/print/font_metrics.h"
#include "frontends/qt/work_dialog.h"
#include "platform/pages.h"

namespace qvzj::qt {

/// Shows printed pages in a preview window, or writes each job straight to a PDF file where a path
/// was set (for programs that run unattended).
class QtPageOutput : public PageOutput {
 public:
  /// `traditional` answers the language of the pages and of the preview's own words.
  explicit QtPageOutput(std::function<bool()> traditional);
  ~QtPageOutput() override;

  const TextMetrics& Metrics() const override { return CurrentFace().metrics; }
  bool ShowProgress(int64_t done, int64_t total) override;
  void Output(const PageSource& pages, const std::string& title) override;
  /// Where the next jobs go; "" shows the preview again.
  void SetPdfPath(const QString& path) { pdf_path_ = path; }

 private:
  struct Face {
    explicit Face(const QFont& of) : font(of), metrics(of) {}
    QFont font;
    FontMetrics metrics;
  };
  /// The font of the language in force.
  const Face& CurrentFace() const;

  mutable std::optional<Face> faces_[2];
  std::function<bool()> traditional_;
  QString pdf_path_;
  std::unique_ptr<WorkDialog> work_;
};

}  // namespace qvzj::qt
