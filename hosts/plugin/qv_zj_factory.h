#pragma once

#include <QtPlugin>

class QWidget;

/// What the plug-in `qv_Zj_Ocx` offers a host that loads it with QPluginLoader. The control is
/// then used through Qt's property system and its `refresh(int,int)` slot alone, so that the host
/// links nothing of the module.
class QvZjFactory {
 public:
  virtual ~QvZjFactory() = default;
  /// A new control; the parent owns it.
  virtual QWidget* CreateControl(QWidget* parent) = 0;
};

#define QvZjFactory_iid "qvzj.QvZjFactory/1.0"
Q_DECLARE_INTERFACE(QvZjFactory, QvZjFactory_iid)
