#pragma once

#include <QString>
#include <QTranslator>
#include <functional>

/// The few texts that belong to the window and not to the module: buttons of boxes, the edit menu
/// of fields, the menu of grids.
namespace qvzj::qt {

struct NativeTexts {
  QString ok, cancel, yes, no;
  QString undo, redo, cut, copy, paste, erase, select_all;
  QString copy_rows, find, find_next, reset_columns;
  QString selected;  ///< "%1 rows", shown while several rows are selected
  QString sum;       ///< "caption: sum" of one column of the selected rows
  QString not_found;
};

/// By language: 0 simplified, anything else traditional Chinese.
const NativeTexts& TextsOf(int language);

/// Gives the toolkit's own menus their Chinese texts, whatever translations are installed.
class NativeTranslator : public QTranslator {
 public:
  explicit NativeTranslator(std::function<int()> language) : language_(std::move(language)) {}
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char* disambiguation,
                    int number) const override;

 private:
  std::function<int()> language_;
};

}  // namespace qvzj::qt
