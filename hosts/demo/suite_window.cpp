#include "hosts/demo/suite_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include "frontends/qt/theme.h"
#include "hosts/demo/demo_host.h"

namespace qvzj::demo {

namespace {

constexpr int16_t kCustomersRunMode = 0;
constexpr int16_t kAccountsRunMode = 1;

QString Said(bool traditional, const char* simplified_text, const char* traditional_text) {
  return QString::fromUtf8(traditional ? traditional_text : simplified_text);
}

}  // namespace

SuiteWindow::SuiteWindow(DemoHost& host)
    : host_(host),
      title_(new QLabel(this)),
      customers_(new QPushButton(this)),
      accounts_(new QPushButton(this)),
      language_(new QComboBox(this)),
      appearance_(new QComboBox(this)) {
  QFont large = qt::ThemeFont(false);
  large.setPointSizeF(14);
  title_->setFont(large);
  for (QPushButton* button : {customers_, accounts_}) button->setMinimumSize(170, 64);
  language_->addItems({"简体中文", "繁體中文"});
  appearance_->addItems({"", "", ""});

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(28, 24, 28, 24);
  grid->setSpacing(14);
  grid->addWidget(title_, 0, 0, 1, 2, Qt::AlignLeft);
  grid->addWidget(customers_, 1, 0);
  grid->addWidget(accounts_, 1, 1);
  grid->addWidget(language_, 2, 0);
  grid->addWidget(appearance_, 2, 1);
  for (QWidget* part : findChildren<QWidget*>()) part->setStyle(qt::ThemeStyle());

  connect(customers_, &QPushButton::clicked, this, [this] { host_.Open(kCustomersRunMode); });
  connect(accounts_, &QPushButton::clicked, this, [this] { host_.Open(kAccountsRunMode); });
  connect(language_, &QComboBox::activated, this, [this](int index) {
    host_.SetLanguage(static_cast<int16_t>(index));
    Caption();
  });
  connect(appearance_, &QComboBox::activated, this, [this](int index) { ChooseAppearance(index); });
  Caption();
}

void SuiteWindow::Caption() {
  const bool traditional = host_.Language() == 1;
  setFont(qt::ThemeFont(traditional));
  setPalette(qt::ThemePalette(qt::Appearance::System));
  setWindowTitle(Said(traditional, "示例进销存", "示例進銷存"));
  title_->setText(Said(traditional, "示例贸易有限公司", "示例貿易有限公司"));
  customers_->setText(Said(traditional, "客户往来帐", "客戶往來帳"));
  accounts_->setText(Said(traditional, "资金帐户", "資金帳戶"));
  appearance_->setItemText(0, Said(traditional, "跟随系统外观", "跟隨系統外觀"));
  appearance_->setItemText(1, Said(traditional, "浅色", "淺色"));
  appearance_->setItemText(2, Said(traditional, "深色", "深色"));
}

void SuiteWindow::ChooseAppearance(int index) {
  if (index == 0) {
    QApplication::setPalette(QPalette());
  } else {
    QApplication::setPalette(
        qt::ThemePalette(index == 1 ? qt::Appearance::Light : qt::Appearance::Dark));
  }
  setPalette(qt::ThemePalette(qt::Appearance::System));
}

void SuiteWindow::closeEvent(QCloseEvent* event) {
  host_.Close();
  event->accept();
  QApplication::quit();
}

}  // namespace qvzj::demo
