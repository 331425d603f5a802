#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <memory>

#include "hosts/component/component.h"
#include "hosts/plugin/qv_zj_factory.h"

namespace qvzj {

/// The shared library `qv_Zj_Ocx`: registers the control with Qt Designer and with the form loader,
/// and makes controls for hosts that load it themselves. The component behind it is loaded with
/// the first control.
class Plugin : public QObject, public QDesignerCustomWidgetInterface, public QvZjFactory {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QvZjFactory_iid)
  Q_INTERFACES(QDesignerCustomWidgetInterface QvZjFactory)

 public:
  QWidget* CreateControl(QWidget* parent) override;

  QWidget* createWidget(QWidget* parent) override { return CreateControl(parent); }
  /// Called by Qt Designer only: from now on controls lie on its desk.
  void initialize(QDesignerFormEditorInterface* designer) override;
  bool isInitialized() const override { return designing_; }
  QString domXml() const override;
  QString name() const override { return QStringLiteral("qvJxc_Zj"); }
  QString group() const override { return QStringLiteral("qvZj_ocx"); }
  QString toolTip() const override;
  QString whatsThis() const override { return toolTip(); }
  QString includeFile() const override { return QStringLiteral("hosts/plugin/control_widget.h"); }
  QIcon icon() const override { return {}; }
  bool isContainer() const override { return false; }

 private:
  std::shared_ptr<Component> component_;  // shared with the controls, which may outlive the plug-in
  bool designing_ = false;
};

}  // namespace qvzj
