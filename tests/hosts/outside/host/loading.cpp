// A host that loads the plug-in: opens the main form and looks for its window.
#include <QApplication>
#include <QPluginLoader>
#include <QWidget>

#include "hosts/plugin/qv_zj_factory.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QPluginLoader loader(PLUGIN);
  auto* factory = qobject_cast<QvZjFactory*>(loader.instance());
  if (!factory) {
    qWarning("%s", qPrintable(loader.errorString()));
    return 1;
  }
  QWidget screen;
  QWidget* control = factory->CreateControl(&screen);
  control->setProperty("UserPath", QString::fromLocal8Bit(argv[1]));
  control->setProperty("UserName", "张三");
  control->setProperty("ZgName", "张三");
  control->setProperty("myModel", "11111111111");
  QMetaObject::invokeMethod(control, "refresh", Q_ARG(int, 0), Q_ARG(int, 0));
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window == &screen || !window->isVisible() || window->windowTitle().isEmpty()) continue;
    std::printf("loading: %s\n", qPrintable(window->windowTitle()));
    return 0;
  }
  return 1;
}
