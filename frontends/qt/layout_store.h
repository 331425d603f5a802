#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

class QSettings;

namespace qvzj::qt {

/// How the user arranged the columns of a grid.
struct ColumnLayout {
  std::vector<int> widths;  ///< pixels at 96 dpi, by column; 0 = as designed
  std::vector<int> order;   ///< columns from left to right
};

/// Keeps what users arrange for themselves: columns of grids and places of windows.
class LayoutStore {
 public:
  explicit LayoutStore(QSettings& settings) : settings_(settings) {}

  /// Empty when the user has arranged nothing, or for a grid of another number of columns.
  std::optional<ColumnLayout> Columns(const QString& grid, size_t count) const;
  void KeepColumns(const QString& grid, const ColumnLayout& layout);
  void ForgetColumns(const QString& grid);

  QByteArray Place(const QString& window) const;
  void KeepPlace(const QString& window, const QByteArray& place);

 private:
  QSettings& settings_;
};

}  // namespace qvzj::qt
