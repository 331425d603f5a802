#include "hosts/demo/suite_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "hosts/demo/demo_host.h"
#include "hosts/demo/suite_texts.h"

namespace qvzj::demo {

namespace {

constexpr int16_t kCustomersRunMode = 0;
constexpr int16_t kAccountsRunMode = 1;
constexpr int16_t kFundCustomersRunMode = 10;
constexpr int16_t kFundAccountsRunMode = 11;

constexpr int kWidth = 460;
constexpr int kMargin = 28;
constexpr int kGap = 12;
constexpr int kTileHeight = 60;
constexpr int kFieldHeight = 30;
constexpr double kCompanySize = 15;  // points

}  // namespace

SuiteWindow::SuiteWindow(DemoHost& host) : host_(host) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kGap / 2);
  AddHead(*column);
  AddTiles(*column);
  AddOtherWays(*column);
  AddTaste(*column);
  setMinimumWidth(kWidth);
  Caption();
}

void SuiteWindow::AddHead(QBoxLayout& column) {
  company_ = new QLabel;
  company_->setTextFormat(Qt::PlainText);
  column.addWidget(company_);
  auto* row = new QHBoxLayout;
  user_ = new QLabel;
  user_->setTextFormat(Qt::PlainText);
  row->addWidget(user_);
  row->addStretch();
  change_user_ = new QPushButton;
  change_user_->setObjectName("change_user");
  if (!host_.HasUsers()) change_user_->hide();
  connect(change_user_, &QPushButton::clicked, this, [this] { ChangeUser(); });
  row->addWidget(change_user_);
  column.addLayout(row);
  column.addSpacing(kGap);
}

QPushButton* SuiteWindow::AddWay(QBoxLayout& row, const QString& name, int run_mode) {
  auto* button = new QPushButton;
  button->setObjectName(name);
  button->setMinimumHeight(kFieldHeight);
  connect(button, &QPushButton::clicked, this,
          [this, run_mode] { host_.Open(static_cast<int16_t>(run_mode)); });
  row.addWidget(button);
  return button;
}

QLabel* SuiteWindow::AddHint(QBoxLayout& column) {
  auto* hint = new QLabel;
  muted_.push_back(hint);
  column.addWidget(hint);
  return hint;
}

void SuiteWindow::AddTiles(QBoxLayout& column) {
  auto* tiles = new QHBoxLayout;
  tiles->setSpacing(kGap);
  const auto add = [&](const QString& name, int run_mode, QLabel*& hint) {
    auto* tile = new QVBoxLayout;
    QPushButton* button = AddWay(*tile, name, run_mode);
    button->setMinimumHeight(kTileHeight);
    hint = AddHint(*tile);
    hint->setAlignment(Qt::AlignHCenter);
    tiles->addLayout(tile, 1);
    return button;
  };
  customers_ = add("customers", kCustomersRunMode, customers_hint_);
  accounts_ = add("accounts", kAccountsRunMode, accounts_hint_);
  column.addLayout(tiles);
  column.addSpacing(kGap);
}

void SuiteWindow::AddOtherWays(QBoxLayout& column) {
  fund_system_ = AddHint(column);
  auto* fund = new QHBoxLayout;
  fund->setSpacing(kGap);
  fund_customers_ = AddWay(*fund, "fund_customers", kFundCustomersRunMode);
  fund_accounts_ = AddWay(*fund, "fund_accounts", kFundAccountsRunMode);
  column.addLayout(fund);
  column.addSpacing(kGap);

  other_screen_ = AddHint(column);
  auto* named = new QHBoxLayout;
  named->setSpacing(kGap);
  customer_id_ = new QSpinBox;
  customer_id_->setRange(1, 999'999'999);
  customer_id_->setFixedWidth(118);
  customer_name_ = new QLineEdit;
  customer_name_->setObjectName("customer_name");
  muted_.push_back(customer_name_);  // what stands in it while it is empty
  open_customer_ = new QPushButton;
  open_customer_->setObjectName("open_customer");
  for (QWidget* part : {static_cast<QWidget*>(customer_id_), static_cast<QWidget*>(customer_name_),
                        static_cast<QWidget*>(open_customer_)}) {
    part->setMinimumHeight(kFieldHeight);
    named->addWidget(part);
  }
  connect(open_customer_, &QPushButton::clicked, this, [this] { OpenCustomer(); });
  connect(customer_name_, &QLineEdit::returnPressed, this, [this] { OpenCustomer(); });
  column.addLayout(named);
  column.addSpacing(kGap);
}

void SuiteWindow::AddTaste(QBoxLayout& column) {
  column.addStretch();
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap / 2);
  const auto add = [&](QLabel*& label, const QStringList& items) {
    label = AddHint(*row);
    auto* box = new QComboBox;
    box->addItems(items);
    box->setMinimumHeight(kFieldHeight);
    row->addWidget(box, 1);
    return box;
  };
  language_ = add(language_label_, {"简体中文", "繁體中文"});
  language_->setObjectName("language");
  row->addSpacing(kGap);
  appearance_ = add(appearance_label_, {"", "", ""});
  appearance_->setObjectName("appearance");
  connect(language_, &QComboBox::activated, this, [this](int index) {
    const bool turned = host_.SetLanguage(static_cast<int16_t>(index));
    if (!turned) language_->setCurrentIndex(1 - index);
    Caption();
  });
  connect(appearance_, &QComboBox::activated, this, [this](int index) { ChooseAppearance(index); });
  column.addLayout(row);
}

void SuiteWindow::Colour() {
  setPalette(qt::ThemePalette(qt::Appearance::System));
  QPalette stepping_back;
  for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::PlaceholderText}) {
    stepping_back.setColor(role, qt::ColorsFor(palette()).muted);
  }
  for (QWidget* part : muted_) part->setPalette(stepping_back);
}

void SuiteWindow::Caption() {
  const bool traditional = host_.Language() == 1;
  const SuiteTexts& texts = SuiteTextsOf(traditional);
  qt::Dress(*this, traditional);
  Colour();
  QFont large = qt::ThemeFont(traditional);
  large.setPointSizeF(kCompanySize);
  company_->setFont(large);
  setWindowTitle(texts.title);
  company_->setText(qt::FromUtf8(host_.Company()));
  user_->setText(texts.user + qt::FromUtf8(host_.User()));
  change_user_->setText(texts.change_user);
  CaptionWays(texts);
  language_label_->setText(texts.language);
  language_->setAccessibleName(texts.language);
  language_->setCurrentIndex(traditional ? 1 : 0);  // the host may have changed it meanwhile
  appearance_label_->setText(texts.appearance);
  appearance_->setAccessibleName(texts.appearance);
  for (int i = 0; i < 3; ++i) appearance_->setItemText(i, texts.appearances[i]);
}

void SuiteWindow::CaptionWays(const SuiteTexts& texts) {
  customers_->setText(texts.customers);
  customers_hint_->setText(texts.customers_hint);
  accounts_->setText(texts.accounts);
  accounts_hint_->setText(texts.accounts_hint);
  fund_system_->setText(texts.fund_system);
  fund_customers_->setText(texts.fund_customers);
  fund_accounts_->setText(texts.fund_accounts);
  other_screen_->setText(texts.other_screen);
  customer_id_->setPrefix(texts.customer_id);
  customer_id_->setAccessibleName(QString(texts.customer_id).trimmed());
  customer_name_->setPlaceholderText(texts.customer_name);
  customer_name_->setAccessibleName(texts.customer_name);
  open_customer_->setText(texts.open_customer);
}

void SuiteWindow::ChangeUser() {
  if (host_.LogIn()) Caption();
}

void SuiteWindow::OpenCustomer() {
  host_.OpenCustomer(customer_id_->value(), customer_name_->text());
}

void SuiteWindow::ChooseAppearance(int index) {
  if (index == 0) {
    QApplication::setPalette(QPalette());
  } else {
    QApplication::setPalette(
        qt::ThemePalette(index == 1 ? qt::Appearance::Light : qt::Appearance::Dark));
  }
}

bool SuiteWindow::event(QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) {
    Colour();
  }
  return QWidget::event(event);
}

void SuiteWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  auto* button = qobject_cast<QPushButton*>(focusWidget());
  if (enter && button != nullptr) {
    button->click();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void SuiteWindow::closeEvent(QCloseEvent* event) {
  // The last window ends the program, unless the user goes on with what he is keying.
  event->setAccepted(host_.Close());
}

}  // namespace qvzj::demo
