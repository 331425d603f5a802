#pragma once

#include <functional>

#include "platform/boxes.h"

class QDialog;

namespace qvzj::qt {

/// Modal message and input boxes in front of the active window, with button texts in the language
/// of the module.
class QtBoxes : public Boxes {
 public:
  /// `language` answers 0 for simplified and 1 for traditional Chinese.
  explicit QtBoxes(std::function<int()> language) : language_(std::move(language)) {}

  using Boxes::Error;
  using Boxes::Show;
  Answer Show(const std::string& text, int style, const std::string& title,
              const std::string& detail) override;
  std::optional<std::string> Input(const std::string& prompt, const std::string& title,
                                   const std::string& preset) override;
  void Error(const std::string& text, const std::string& title, const std::string& detail) override;

 private:
  void DressBox(QDialog& dialog) const;

  std::function<int()> language_;
};

}  // namespace qvzj::qt
