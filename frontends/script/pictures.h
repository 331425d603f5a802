#pragma once

#include <string>

#include "platform/components.h"

namespace qvzj::ui {
class Form;
}

namespace qvzj::script {

/// Draws what a window would show, for programs that are built with one.
class Pictures {
 public:
  virtual ~Pictures() = default;
  /// Draws the form into a PNG file. Throws Error when the file cannot be written.
  virtual void Screenshot(ui::Form& form, const std::string& file) = 0;
  /// A print component that writes its next job into a PDF file; valid until the next call.
  virtual PrintComponent& PdfPrinter(const std::string& file) = 0;
};

}  // namespace qvzj::script
