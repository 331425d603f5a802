#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QPluginLoader>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QUiLoader>
#include <QVariantMap>
#include <QWidget>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <algorithm>
#include <memory>

#include "hosts/plugin/qv_zj_factory.h"

namespace {

/// Control, made by a form loader that was not written for it.
std::unique_ptr<QWidget> LoadForm(const QByteArray& properties) {
  QByteArray form =
      "<ui version=\"4.0\"><class>Screen</class><widget class=\"QWidget\" name=\"Screen\">"
      "<widget class=\"qvJxc_Zj\" name=\"zj\">" +
      properties + "</widget></widget></ui>";
  QBuffer device(&form);
  QUiLoader loader;
  loader.addPluginPath(QStringLiteral(QV_PLUGIN_DIR));
  EXPECT_TRUE(loader.availableWidgets().contains(QStringLiteral("qvJxc_Zj")))
      << qPrintable(loader.errorString());
  return std::unique_ptr<QWidget>(loader.load(&device));
}

QWidget* ControlOf(QWidget& form) { return form.findChild<QWidget*>(QStringLiteral("zj")); }

// Form tools refuse a widget whose class has another name.
TEST(Plugin, IsFoundByTheFormLoaderAsACustomWidget) {
  const auto form = LoadForm("");
  ASSERT_TRUE(form);
  ASSERT_TRUE(ControlOf(*form));
  EXPECT_STREQ(ControlOf(*form)->metaObject()->className(), "qvJxc_Zj");
}

TEST(Plugin, TakesItsPropertiesFromAFormFile) {
  const auto form = LoadForm(
      "<property name=\"myName\"><string>华源贸易</string></property>"
      "<property name=\"UserID\"><string>sa</string></property>");
  QWidget* control = ControlOf(*form);
  EXPECT_EQ(control->property("myName").toString(), QString::fromUtf8("华源贸易"));
  EXPECT_EQ(control->property("UserID").toString(), "sa");
}

TEST(Plugin, RestoresWhatAFormFileSavedOfTheControl) {
  const auto form = LoadForm(
      "<property name=\"propertyBag\"><string>"
      "{&quot;MYNAME&quot;:&quot;甲&quot;,&quot;UserID&quot;:&quot;sa&quot;,&quot;Default&quot;:"
      "&quot;erp&quot;}</string></property>");
  QWidget* control = ControlOf(*form);
  EXPECT_EQ(control->property("myName").toString(), QString::fromUtf8("甲"));
  EXPECT_EQ(control->property("Default").toString(), "erp");
}

TEST(Plugin, SavesIntoAStoreOfTheHostAndRestoresFromIt) {
  const auto form = LoadForm("");
  QWidget* control = ControlOf(*form);
  control->setProperty("myName", QString::fromUtf8("乙"));
  control->setProperty("UserName", QString::fromUtf8("张三"));
  QVariantMap store;
  ASSERT_TRUE(
      QMetaObject::invokeMethod(control, "SaveProperties", Q_RETURN_ARG(QVariantMap, store)));
  EXPECT_EQ(store.value("myName").toString(), QString::fromUtf8("乙"));
  EXPECT_EQ(store.value("UserName").toString(), QString::fromUtf8("张三"));
  control->setProperty("myName", "");
  ASSERT_TRUE(QMetaObject::invokeMethod(control, "RestoreProperties", Q_ARG(QVariantMap, store)));
  EXPECT_EQ(control->property("myName").toString(), QString::fromUtf8("乙"));
}

TEST(Plugin, AnswersNothingForPropertiesThatAHostMayOnlyWrite) {
  const auto form = LoadForm("");
  QWidget* control = ControlOf(*form);
  control->setProperty("Password", "secret");
  control->setProperty("UserPath", "/data");
  control->setProperty("AlertType", 5);
  EXPECT_EQ(control->property("Password").toString(), "");
  EXPECT_EQ(control->property("UserPath").toString(), "");
  EXPECT_EQ(control->property("AlertType").toInt(), 0);
}

TEST(Plugin, MakesControlsForAHostThatLoadsItItself) {
  QPluginLoader loader(QDir(QStringLiteral(QV_PLUGIN_DIR)).filePath("qv_Zj_Ocx.so"));
  auto* factory = qobject_cast<QvZjFactory*>(loader.instance());
  ASSERT_TRUE(factory) << qPrintable(loader.errorString());
  QWidget screen;
  QWidget* control = factory->CreateControl(&screen);
  EXPECT_EQ(control->parent(), &screen);
  EXPECT_TRUE(control->setProperty("Default", "erp"));
  EXPECT_EQ(control->property("Default").toString(), "erp");
}

TEST(Plugin, ShowsADesignerWhatWasSetThere) {
  QPluginLoader loader(QDir(QStringLiteral(QV_PLUGIN_DIR)).filePath("qv_Zj_Ocx.so"));
  auto* plugin = qobject_cast<QDesignerCustomWidgetInterface*>(loader.instance());
  ASSERT_TRUE(plugin) << qPrintable(loader.errorString());
  int desk = 0;  // stands for the designer, of which only the presence counts
  plugin->initialize(reinterpret_cast<QDesignerFormEditorInterface*>(&desk));
  QWidget screen;
  QWidget* first = plugin->createWidget(&screen);
  QWidget* second = plugin->createWidget(&screen);
  plugin->initialize(nullptr);
  first->setProperty("UserPath", "/data");
  second->setProperty("UserPath", "/other");
  second->setProperty("myName", QString::fromUtf8("乙"));
  EXPECT_EQ(first->property("UserPath").toString(), "/data");
  EXPECT_EQ(first->property("myName").toString(), "");
  EXPECT_EQ(second->property("UserPath").toString(), "/other");
}

TEST(Plugin, IsDroppedUnderANameThatIsNotItsClass) {
  QPluginLoader loader(QDir(QStringLiteral(QV_PLUGIN_DIR)).filePath("qv_Zj_Ocx.so"));
  auto* plugin = qobject_cast<QDesignerCustomWidgetInterface*>(loader.instance());
  ASSERT_TRUE(plugin) << qPrintable(loader.errorString());
  QByteArray form = plugin->domXml().toUtf8();
  QBuffer device(&form);
  QUiLoader forms;
  forms.addPluginPath(QStringLiteral(QV_PLUGIN_DIR));
  const std::unique_ptr<QWidget> control(forms.load(&device));
  ASSERT_TRUE(control);
  EXPECT_STREQ(control->metaObject()->className(), qPrintable(plugin->name()));
  EXPECT_NE(control->objectName(), plugin->name());
}

/// A data folder with empty tables.
class DataFolder {
 public:
  DataFolder() {
    QProcess qvdb;
    qvdb.start(QStringLiteral(QV_QVDB), {"init", "--data", folder_.path()});
    EXPECT_TRUE(qvdb.waitForFinished(60000) && qvdb.exitCode() == 0);
  }
  QString Path() const { return folder_.path(); }

 private:
  QTemporaryDir folder_;
};

/// A control of a host that loads the plug-in itself, opened on a data folder.
QWidget* OpenedControl(QPluginLoader& loader, const DataFolder& data, QWidget* screen,
                       int show_mode = 0) {
  auto* factory = qobject_cast<QvZjFactory*>(loader.instance());
  if (!factory) return nullptr;
  QWidget* control = factory->CreateControl(screen);
  control->setProperty("UserPath", data.Path());
  control->setProperty("myModel", "11111111111");
  control->setProperty("UserName", "admin");
  control->setProperty("ZgName", "admin");
  QMetaObject::invokeMethod(control, "refresh", Q_ARG(int, 0), Q_ARG(int, show_mode));
  return control;
}

bool MainFormIsShown() {
  const QWidgetList shown = QApplication::topLevelWidgets();
  return std::any_of(shown.begin(), shown.end(), [](const QWidget* window) {
    return window->objectName() == "frmZj" && window->isVisible();
  });
}

TEST(PluginLife, TheHostDestroysItsScreenWithTheFormOpen) {
  DataFolder data;
  QPluginLoader loader(QDir(QStringLiteral(QV_PLUGIN_DIR)).filePath("qv_Zj_Ocx.so"));
  auto screen = std::make_unique<QWidget>();
  ASSERT_TRUE(OpenedControl(loader, data, screen.get()));
  EXPECT_TRUE(MainFormIsShown());
  screen.reset();
  EXPECT_FALSE(MainFormIsShown());
}

TEST(PluginLife, TheHostDestroysItsScreenWhileTheFormIsModal) {
  DataFolder data;
  QPluginLoader loader(QDir(QStringLiteral(QV_PLUGIN_DIR)).filePath("qv_Zj_Ocx.so"));
  auto screen = std::make_unique<QWidget>();
  screen->show();
  bool was_shown = false;
  QTimer::singleShot(100, [&] {
    was_shown = MainFormIsShown();
    screen.reset();
  });
  OpenedControl(loader, data, screen.get(), 1);
  EXPECT_TRUE(was_shown);
  EXPECT_FALSE(MainFormIsShown());
}

TEST(PluginLife, TheHostUnloadsThePluginWhileItHoldsAControl) {
  DataFolder data;
  QPluginLoader loader(QDir(QStringLiteral(QV_PLUGIN_DIR)).filePath("qv_Zj_Ocx.so"));
  QWidget* control = OpenedControl(loader, data, nullptr);
  ASSERT_TRUE(control);
  loader.unload();
  QApplication::processEvents();
  EXPECT_TRUE(MainFormIsShown());
  control->setProperty("Default", "erp");
  EXPECT_EQ(control->property("Default").toString(), "erp");
  QMetaObject::invokeMethod(control, "refresh", Q_ARG(int, 1), Q_ARG(int, 0));
  EXPECT_TRUE(MainFormIsShown());
  delete control;
  EXPECT_FALSE(MainFormIsShown());
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
