// The least that a host needs: load the plug-in, make the control, say who works where, open it.
#include <QApplication>
#include <QFileInfo>
#include <QPluginLoader>
#include <QVBoxLayout>
#include <QWidget>

#include "hosts/plugin/qv_zj_factory.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList words = QApplication::arguments();
  if (words.size() < 3) {
    qWarning("usage: qvzj-minimal-host PLUGIN DATA_FOLDER");
    return 2;
  }
  QPluginLoader loader(QFileInfo(words[1]).absoluteFilePath());
  auto* factory = qobject_cast<QvZjFactory*>(loader.instance());
  if (!factory) {
    qWarning("%s", qPrintable(loader.errorString()));
    return 1;
  }
  QWidget screen;
  QWidget* control = factory->CreateControl(&screen);
  auto* layout = new QVBoxLayout(&screen);
  layout->addWidget(control);
  control->setProperty("UserPath", words[2]);  // the folder of the data file
  control->setProperty("UserName", "张三");    // who works
  control->setProperty("ZgName", "张三");      // nobody else needs gates in this host
  control->setProperty("CompName", "示例公司");
  control->setProperty("myModel", "11111111111");  // the 11th digit is the right to this module
  screen.show();
  QMetaObject::invokeMethod(control, "refresh", Q_ARG(int, 0), Q_ARG(int, 0));
  return QApplication::exec();
}
