#include "hosts/demo/suite_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QtTest/QTest>
#include <functional>

#include "adapters/sqlite/sqlite_session.h"
#include "frontends/qt/form_window.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "hosts/demo/demo_host.h"
#include "services/context.h"
#include "suite/store/schema.h"
#include "suite/users/user_rights.h"
#include "tests/support/temporary_folder.h"

namespace qvzj::demo {
namespace {

constexpr const char* kFundTitle = "资金帐户管理系统";
constexpr const char* kCustomersTitle = "客户往来帐管理系统";

/// The pretend suite on a small data file of its own, worked by mouse and keys.
class Suite : public testing::Test {
 protected:
  Suite() {
    SqliteOptions options;
    options.create = true;
    const auto data = OpenSqlite((folder_.Path() / "qvjxc.db").string(), options);
    store::CreateSchema(*data);
    data->NativeScript(
        "insert into cards (fID,CompCode,compname,fType0) values (1,'K1','甲公司',0);"
        "insert into cards (fID,CompCode,compname,fType0) values (2,'K2','乙公司',0);"
        "insert into tAccounts (fID,CompCode,compname) values (1,'Z1','现金');");
  }
  ~Suite() override {
    window_.reset();
    host_.reset();
    Around() = {};
    QApplication::setPalette(QPalette());
  }

  void Start() {
    const QString folder = QString::fromStdString(folder_.Path().string());
    host_ = std::make_unique<DemoHost>(folder, folder + "/settings.ini");
    window_ = std::make_unique<SuiteWindow>(*host_);
    window_->show();
    window_->activateWindow();
    QApplication::processEvents();
  }

  template <class Widget>
  Widget& Part(const QString& name = {}) {
    return *window_->findChild<Widget*>(name);
  }
  void Press(const QString& name) {
    QTest::mouseClick(&Part<QPushButton>(name), Qt::LeftButton);
    QApplication::processEvents();
  }
  void Choose(const QString& name, int index) {
    auto& box = Part<QComboBox>(name);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Home);
    for (int i = 0; i < index; ++i) QTest::keyClick(&box, Qt::Key_Down);
    QApplication::processEvents();
  }

  /// Types by an input method, as Chinese is.
  void Put(QLineEdit& line, const QString& text) {
    line.setFocus();
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(&line, &event);
  }

  bool Opened() { return host_->Control().Form() != nullptr; }
  frmZj& Control() { return *host_->Control().Form(); }
  qt::FormWindow& ControlWindow() { return *host_->Windows().WindowOf(Control()); }
  /// Names in the register, top to bottom.
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (int32_t row = 1; row <= Control().Grid1.RowCount(); ++row) {
      names.push_back(Control().Grid1.CellText(2, row));
    }
    return names;
  }
  QStringList Labels() {
    QStringList texts;
    for (const QLabel* label : window_->findChildren<QLabel*>()) texts << label->text();
    return texts;
  }

  const test::TemporaryFolder folder_;
  std::unique_ptr<DemoHost> host_;
  std::unique_ptr<SuiteWindow> window_;
};

using Texts = std::vector<std::string>;

TEST_F(Suite, OpensTheCustomers) {
  Start();
  EXPECT_FALSE(Opened());
  Press("customers");
  ASSERT_TRUE(Opened());
  EXPECT_TRUE(ControlWindow().isVisible());
  EXPECT_EQ(ControlWindow().windowTitle(), kCustomersTitle);
  EXPECT_EQ(Names(), (Texts{"甲公司", "乙公司"}));
  EXPECT_EQ(Shared().Title, kCustomersTitle);
}

TEST_F(Suite, PressesTheButtonInFocusWithEnter) {
  Start();
  auto& button = Part<QPushButton>("accounts");
  button.setFocus();
  QTest::keyClick(&button, Qt::Key_Return);
  QApplication::processEvents();
  ASSERT_TRUE(Opened());
  EXPECT_EQ(Names(), (Texts{"现金"}));
}

TEST_F(Suite, OpensTheMoneyAccounts) {
  Start();
  Press("accounts");
  ASSERT_TRUE(Opened());
  EXPECT_EQ(ControlWindow().windowTitle(), kFundTitle);
  EXPECT_EQ(Names(), (Texts{"现金"}));
}

TEST_F(Suite, OpensTheCustomersUnderTheFundSystemsTitle) {
  Start();
  Press("fund_customers");
  ASSERT_TRUE(Opened());
  EXPECT_EQ(Names(), (Texts{"甲公司", "乙公司"}));
  EXPECT_EQ(Control().SSTab2.TabCaption(0), "往来总帐");
  EXPECT_EQ(Shared().Title, kFundTitle);
}

TEST_F(Suite, OpensTheMoneyAccountsUnderTheFundSystemsTitle) {
  Start();
  Press("fund_accounts");
  ASSERT_TRUE(Opened());
  EXPECT_EQ(Names(), (Texts{"现金"}));
  EXPECT_EQ(Control().SSTab2.TabCaption(0), "进出总帐");
  EXPECT_EQ(Shared().Title, kFundTitle);
}

TEST_F(Suite, HandsOverTheCustomerOfAnotherScreen) {
  Start();
  auto& number = Part<QSpinBox>();
  number.setFocus();
  number.selectAll();
  QTest::keyClicks(&number, "2");
  Put(Part<QLineEdit>("customer_name"), "乙公司");
  Press("open_customer");
  ASSERT_TRUE(Opened());
  EXPECT_EQ(Control().txtSeek(1).Text(), "乙公司");
  EXPECT_EQ(Control().chkSeek2.Value(), 0);
  EXPECT_EQ(Shared().myTaskID, 2);
  EXPECT_EQ(Shared().Title, kFundTitle);
  EXPECT_EQ(Names(), (Texts{"甲公司", "乙公司"})) << "the name's box is not ticked by itself";
}

TEST_F(Suite, OpensTheCustomerOfAnotherScreenWithEnterToo) {
  Start();
  auto& name = Part<QLineEdit>("customer_name");
  Put(name, "甲公司");
  QTest::keyClick(&name, Qt::Key_Return);
  QApplication::processEvents();
  ASSERT_TRUE(Opened());
  EXPECT_EQ(Control().txtSeek(1).Text(), "甲公司");
}

TEST_F(Suite, ClosesOneWayBeforeItOpensAnother) {
  Start();
  Press("customers");
  Press("accounts");
  ASSERT_TRUE(Opened());
  EXPECT_EQ(Names(), (Texts{"现金"}));
  int windows = 0;
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (dynamic_cast<const qt::FormWindow*>(window) != nullptr && window->isVisible()) ++windows;
  }
  EXPECT_EQ(windows, 1);
}

TEST_F(Suite, OpensInTheLanguageThatItsHostSpeaks) {
  Start();
  host_->SetLanguage(1);
  window_ = std::make_unique<SuiteWindow>(*host_);
  EXPECT_EQ(window_->findChild<QComboBox*>("language")->currentText(), "繁體中文");
}

TEST_F(Suite, ChangesTheLanguageOfItselfAndOfTheControl) {
  Start();
  Press("customers");
  Choose("language", 1);
  EXPECT_FALSE(Opened()) << "its texts are set once";
  EXPECT_EQ(window_->windowTitle(), "示例進銷存");
  EXPECT_EQ(Part<QPushButton>("accounts").text(), "資金帳戶(&Z)");
  Press("customers");
  ASSERT_TRUE(Opened());
  EXPECT_EQ(ControlWindow().windowTitle(), "客戶往来帳管理系統");
  Choose("language", 0);
  EXPECT_EQ(window_->windowTitle(), "示例进销存");
}

TEST_F(Suite, ChangesTheAppearanceOfItselfAndOfTheOpenControl) {
  Start();
  Press("customers");
  Choose("appearance", 2);
  EXPECT_TRUE(qt::IsDark(window_->palette()));
  EXPECT_TRUE(qt::IsDark(ControlWindow().palette()));
  Choose("appearance", 1);
  EXPECT_FALSE(qt::IsDark(window_->palette()));
  EXPECT_FALSE(qt::IsDark(ControlWindow().palette()));
  ASSERT_TRUE(Opened());
}

TEST_F(Suite, ClosesTheControlWithItself) {
  Start();
  Press("customers");
  window_->close();
  EXPECT_FALSE(Opened());
}

TEST_F(Suite, LetsItsWindowShowItsTextsWhole) {
  Start();
  for (int language : {0, 1}) {
    Choose("language", language);
    for (const QWidget* part : window_->findChildren<QWidget*>()) {
      if (!part->isVisible() || part->inherits("QComboBox")) continue;
      EXPECT_GE(part->width(), part->minimumSizeHint().width())
          << part->metaObject()->className() << " " << qPrintable(part->objectName());
    }
  }
}

/// The suite where users log in.
class SuiteWithUsers : public Suite {
 protected:
  SuiteWithUsers() {
    users::RightsDatabase rights((folder_.Path() / users::kRightsFile).string(),
                                 users::RightsDatabase::Missing::Create);
    rights.Add("wang", "secret", "101");
    rights.SetUnit("总公司");
  }

  /// Types into the login window as soon as it stands there.
  void InLogin(std::function<void()> act) {
    QTimer::singleShot(100, [act = std::move(act)] {
      ASSERT_NE(dynamic_cast<qt::FormWindow*>(QApplication::activeModalWidget()), nullptr);
      act();
    });
  }
  static void Type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
  static void Key(Qt::Key key) {
    QTest::keyClick(QApplication::focusWidget(), key);
    QApplication::processEvents();
  }
};

TEST_F(SuiteWithUsers, LogsAUserInWhoThenWorksInTheControl) {
  Start();
  EXPECT_TRUE(Part<QPushButton>("change_user").isVisible());
  Press("customers");
  InLogin([] {
    Type("wang");
    Key(Qt::Key_Return);
    Type("secret");
    Key(Qt::Key_Return);
  });
  Press("change_user");
  EXPECT_FALSE(Opened()) << "what the other user opened is closed";
  EXPECT_TRUE(Labels().contains("操作员: wang"));
  EXPECT_TRUE(Labels().contains("总公司"));
  Press("customers");
  ASSERT_TRUE(Opened());
  EXPECT_EQ(Shared().UserName, "wang");
  EXPECT_EQ(Shared().CompName, "总公司");
  EXPECT_EQ(Shared().myPower.substr(0, 4), "1010");
}

TEST_F(SuiteWithUsers, LetsTheOldUserGoOnWhenTheNewOneGivesUp) {
  Start();
  Press("customers");
  InLogin([] { Key(Qt::Key_Escape); });
  Press("change_user");
  EXPECT_TRUE(Opened());
  EXPECT_TRUE(Labels().contains("操作员: admin"));
}

TEST_F(SuiteWithUsers, SaysThatAPasswordIsWrongAndAsksAgain) {
  Start();
  QString said;
  InLogin([&said] {
    QTimer::singleShot(100, [&said] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      said = box->text();
      box->accept();
      QTimer::singleShot(50, [] { Key(Qt::Key_Escape); });
    });
    Type("wang");
    Key(Qt::Key_Return);
    Type("wrong");
    Key(Qt::Key_Return);
  });
  Press("change_user");
  EXPECT_EQ(said, "用户名或密码不正确!");
  EXPECT_TRUE(Labels().contains("操作员: admin"));
}

TEST_F(Suite, OffersNoChangeOfUserWithoutUsers) {
  Start();
  EXPECT_FALSE(Part<QPushButton>("change_user").isVisible());
}

}  // namespace
}  // namespace qvzj::demo
