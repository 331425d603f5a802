#include "hosts/demo/suite_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <iterator>

#include "frontends/qt/theme.h"
#include "hosts/demo/demo_host.h"

namespace qvzj::demo {

namespace {

constexpr int16_t kCustomersRunMode = 0;
constexpr int16_t kAccountsRunMode = 1;
constexpr int16_t kFundCustomersRunMode = 10;
constexpr int16_t kFundAccountsRunMode = 11;

QString Said(bool traditional, const char* simplified_text, const char* traditional_text) {
  return QString::fromUtf8(traditional ? traditional_text : simplified_text);
}

}  // namespace

SuiteWindow::SuiteWindow(DemoHost& host)
    : host_(host),
      title_(new QLabel(this)),
      customers_(new QPushButton(this)),
      accounts_(new QPushButton(this)),
      fund_customers_(new QPushButton(this)),
      fund_accounts_(new QPushButton(this)),
      customer_id_(new QSpinBox(this)),
      customer_name_(new QLineEdit(this)),
      open_customer_(new QPushButton(this)),
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
  AddOtherWays(*grid);
  grid->addWidget(language_, 5, 0);
  grid->addWidget(appearance_, 5, 1);
  QWidget* const order[] = {customers_,     accounts_,    fund_customers_,
                            fund_accounts_, customer_id_, customer_name_,
                            open_customer_, language_,    appearance_};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
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

void SuiteWindow::AddOtherWays(QGridLayout& grid) {
  grid.addWidget(fund_customers_, 2, 0);
  grid.addWidget(fund_accounts_, 2, 1);
  customer_id_->setRange(1, 999'999'999);
  auto* named = new QHBoxLayout;
  named->addWidget(customer_id_);
  named->addWidget(customer_name_, 1);
  grid.addLayout(named, 3, 0, 1, 2);
  grid.addWidget(open_customer_, 4, 0, 1, 2);
  connect(fund_customers_, &QPushButton::clicked, this,
          [this] { host_.Open(kFundCustomersRunMode); });
  connect(fund_accounts_, &QPushButton::clicked, this,
          [this] { host_.Open(kFundAccountsRunMode); });
  const auto open = [this] { host_.OpenCustomer(customer_id_->value(), customer_name_->text()); };
  connect(open_customer_, &QPushButton::clicked, this, open);
  connect(customer_name_, &QLineEdit::returnPressed, this, open);
}

void SuiteWindow::Caption() {
  const bool traditional = host_.Language() == 1;
  setFont(qt::ThemeFont(traditional));
  setPalette(qt::ThemePalette(qt::Appearance::System));
  setWindowTitle(Said(traditional, "示例进销存", "示例進銷存"));
  title_->setText(Said(traditional, "示例贸易有限公司", "示例貿易有限公司"));
  customers_->setText(Said(traditional, "客户往来帐", "客戶往來帳"));
  accounts_->setText(Said(traditional, "资金帐户", "資金帳戶"));
  fund_customers_->setText(Said(traditional, "资金系统: 客户", "資金系統: 客戶"));
  fund_accounts_->setText(Said(traditional, "资金系统: 帐户", "資金系統: 帳戶"));
  customer_id_->setPrefix(Said(traditional, "客户序号 ", "客戶序號 "));
  customer_name_->setPlaceholderText(Said(traditional, "客户名称 (可不填)", "客戶名稱 (可不填)"));
  open_customer_->setText(Said(traditional, "打开该客户的往来帐", "打開該客戶的往來帳"));
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
