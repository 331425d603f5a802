#include "hosts/plugin/plugin.h"

#include <QIcon>

#include "hosts/plugin/control_widget.h"

namespace qvzj {

QWidget* Plugin::CreateControl(QWidget* parent) {
  // On a designer's desk nothing is opened, and the surroundings are the designer's own.
  if (!designing_ && !component_) component_ = std::make_shared<Component>();
  return new ::qvJxc_Zj(parent, designing_ ? nullptr : component_, designing_);
}

void Plugin::initialize(QDesignerFormEditorInterface* designer) {
  designing_ = designer != nullptr;
}

QString Plugin::domXml() const {
  return QStringLiteral(
      "<ui language=\"c++\"><widget class=\"qvJxc_Zj\" name=\"zj\">"
      "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>220</width><height>64</height>"
      "</rect></property></widget></ui>");
}

QString Plugin::toolTip() const { return QString::fromUtf8("客户往来帐与资金帐户管理"); }

}  // namespace qvzj
