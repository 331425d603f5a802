#pragma once

#include <QString>
#include <QTranslator>
#include <functional>

/// The few texts that belong to the window and not to the module: buttons of boxes, the edit menu
/// of fields, the menu of grids.
namespace qvzj::qt {

struct NativeTexts {
  QString ok, cancel, yes, no;
  QString save, folder, file_name, file_type;  ///< of the question for a file
  QString undo, redo, cut, copy, paste, erase, select_all;
  QString copy_rows, find, find_next, export_grid, print, reset_columns;
  QString selected;   ///< how many rows are selected: %1
  QString sum;        ///< of the selected rows: %1 column, %2 sum
  QString find_here;  ///< stands in the empty find line
  QString not_found;
  QString exporting;  ///< while it takes long
  QString excel_file, csv_utf8_file, csv_gb_file;
  QString exported;      ///< %1 rows, %2 file
  QString sheets;        ///< %1 sheets that the rows took
  QString not_exported;  ///< %1 the reason
  QString lost;          ///< %1 characters that the file's encoding lacks
  QString shortened;     ///< a field did not take all of a text
};

/// By language: 0 simplified, anything else traditional Chinese.
const NativeTexts& TextsOf(int language);

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
