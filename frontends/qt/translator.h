#pragma once

#include <QTranslator>
#include <functional>

namespace qvzj::qt {

/// Gives the toolkit's own menus their Chinese texts, whatever translations are installed, and its
/// dialogs (files, printers) theirs where the toolkit's Chinese translation is installed.
class NativeTranslator : public QTranslator {
 public:
  explicit NativeTranslator(std::function<int()> language);
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char* disambiguation,
                    int number) const override;

 private:
  std::function<int()> language_;
  QTranslator toolkit_[2];  // by language, empty where the translation is not installed
};

}  // namespace qvzj::qt
