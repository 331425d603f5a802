#pragma once

#include <QByteArray>
#include <QString>

#include "frontends/view/column_arrangement.h"

class QSettings;

namespace qvzj::qt {

/// Keeps what users arrange for themselves: columns of grids and places of windows.
class LayoutStore : public view::NumberStore {
 public:
  explicit LayoutStore(QSettings& settings) : settings_(settings) {}

  std::vector<int> Numbers(const std::string& name) const override;
  void KeepNumbers(const std::string& name, const std::vector<int>& numbers) override;
  void Forget(const std::string& name) override;

  QByteArray Place(const QString& window) const;
  void KeepPlace(const QString& window, const QByteArray& place);

 private:
  QSettings& settings_;
};

}  // namespace qvzj::qt
