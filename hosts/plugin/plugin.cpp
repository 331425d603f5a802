#include "hosts/plugin/plugin.h"

#include <QIcon>

#include "hosts/plugin/control_widget.h"

namespace qvzj {

QWidget* Plugin::CreateControl(QWidget* parent) {
  if (!component_) component_ = std::make_unique<Component>();
  return new ControlWidget(parent);
}

QString Plugin::toolTip() const { return QString::fromUtf8("客户往来帐与资金帐户管理"); }

}  // namespace qvzj
