#pragma once

#include <QWidget>
#include <vector>

class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace qvzj::demo {

class DemoHost;
struct SuiteTexts;

/// The main window of a pretend suite: who works, the ways into the control in each of its run
/// modes, language and appearance.
class SuiteWindow : public QWidget {
 public:
  explicit SuiteWindow(DemoHost& host);

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;
  /// Enter presses the button that has the focus, as Space does.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddHead(QBoxLayout& column);
  void AddTiles(QBoxLayout& column);
  void AddOtherWays(QBoxLayout& column);
  void AddTaste(QBoxLayout& column);
  QPushButton* AddWay(QBoxLayout& row, const QString& name, int run_mode);
  QLabel* AddHint(QBoxLayout& column);
  void Colour();
  void Caption();
  void CaptionWays(const SuiteTexts& texts);
  void ChangeUser();
  void OpenCustomer();
  void ChooseAppearance(int index);

  DemoHost& host_;
  QLabel* company_;
  QLabel* user_;
  QPushButton* change_user_;
  QPushButton* customers_;
  QPushButton* accounts_;
  QLabel* customers_hint_;
  QLabel* accounts_hint_;
  QLabel* fund_system_;
  QPushButton* fund_customers_;  // the same registers under the fund system's title
  QPushButton* fund_accounts_;
  QLabel* other_screen_;
  QSpinBox* customer_id_;  // a customer that another screen of the suite names
  QLineEdit* customer_name_;
  QPushButton* open_customer_;
  QLabel* language_label_;
  QComboBox* language_;
  QLabel* appearance_label_;
  QComboBox* appearance_;
  std::vector<QWidget*> muted_;  // texts that step back
};

}  // namespace qvzj::demo
