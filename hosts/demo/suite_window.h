#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;

namespace qvzj::demo {

class DemoHost;

/// The main window of a pretend suite.
class SuiteWindow : public QWidget {
 public:
  explicit SuiteWindow(DemoHost& host);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Caption();
  void ChooseAppearance(int index);

  DemoHost& host_;
  QLabel* title_;
  QPushButton* customers_;
  QPushButton* accounts_;
  QComboBox* language_;
  QComboBox* appearance_;
};

}  // namespace qvzj::demo
