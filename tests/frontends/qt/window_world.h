#pragma once

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QtTest/QTest>
#include <memory>

#include "frontends/qt/form_window.h"
#include "frontends/qt/grid_view.h"
#include "frontends/qt/text.h"
#include "services/context.h"
#include "tests/support/world.h"

namespace qvzj::test {

/// A world whose main form is shown in a native window. Boxes are answered from the world's queue.
class WindowWorld : public World {
 public:
  WindowWorld() {
    Sql("insert into cards (fID, CompCode, compname, fType0) values (1, 'K1', '甲公司', 0);"
        "insert into cards (fID, CompCode, compname, fType0) values (2, 'K2', '乙公司', 0);"
        "insert into tAccounts (fID, CompCode, compname) values (1, 'Z1', '现金');"
        "insert into Moneys values ('RMB', 1, 2); insert into Moneys values ('USD', 7.1, 1);"
        "insert into Employees values ('001', '张三');");
  }
  ~WindowWorld() { window_.reset(); }

  /// A ledger entry of customer 1 (amounts receivable and received).
  void AddEntry(const std::string& date, const std::string& number, double due, double received,
                const std::string& checker = "") {
    Sql("insert into tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA,"
        " fMoneyB, fChecker, fID2, fMoneyCode, fMoneyRate) values ('" +
        date + "', 1, 0, 1, '" + number + "', 0, " + std::to_string(due) + ", " +
        std::to_string(received) + ", '" + checker + "', 0, 'RMB', 1);");
  }

  frmZj& Show(int16_t run_mode = kCustomers, int32_t width = 18000, int32_t height = 11400) {
    frmZj& form = Open(run_mode);
    window_ = std::make_unique<qt::FormWindow>(
        form, qt::WindowOptions{[] { return int{Shared().Language}; }, nullptr});
    window_->showNormal();
    window_->resize(width / 15, height / 15);
    window_->activateWindow();
    Settle();
    return form;
  }
  static void Settle() { QApplication::processEvents(); }

  qt::FormWindow& Window() { return *window_; }
  void CloseWindow() { window_.reset(); }

  /// The native editor of a text box.
  QLineEdit& Line(ui::Control& box) { return Native<QLineEdit>(box); }
  qt::GridView& GridOf(ui::Grid& grid) {
    return static_cast<qt::GridView&>(*window_->ViewOf(grid));
  }
  template <class Widget>
  Widget& Native(ui::Control& control) {
    return dynamic_cast<Widget&>(*window_->ViewOf(control)->Widget());
  }
  static std::string Text(const QLineEdit& line) { return qt::ToUtf8(line.text()); }

 private:
  std::unique_ptr<qt::FormWindow> window_;
};

}  // namespace qvzj::test
