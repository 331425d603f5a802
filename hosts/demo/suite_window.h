#pragma once

#include <QWidget>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace qvzj::demo {

class DemoHost;

/// The main window of a pretend suite.
class SuiteWindow : public QWidget {
 public:
  explicit SuiteWindow(DemoHost& host);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void AddOtherWays(QGridLayout& grid);
  void Caption();
  void ChooseAppearance(int index);

  DemoHost& host_;
  QLabel* title_;
  QPushButton* customers_;
  QPushButton* accounts_;
  QPushButton* fund_customers_;  // the same registers under the fund system's title
  QPushButton* fund_accounts_;
  QSpinBox* customer_id_;  // a customer that another screen of the suite names
  QLineEdit* customer_name_;
  QPushButton* open_customer_;
  QComboBox* language_;
  QComboBox* appearance_;
};

}  // namespace qvzj::demo
