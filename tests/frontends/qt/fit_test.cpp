#include <gtest/gtest.h>

#include <QHeaderView>

#include "forms/frmList.h"
#include "suite/users/login.h"
#include "suite/visits/task_form.h"
#include "tests/frontends/qt/window_world.h"

namespace qvzj::test {
namespace {

struct Case {
  int16_t language;
  int16_t mode;
  int32_t width;
  int32_t height;
};

class Captions : public ::testing::TestWithParam<Case> {
 protected:
  void Open() {
    world_.control.setLanguage(GetParam().language);
    frmZj& form = world_.Show(GetParam().mode, GetParam().width, GetParam().height);
    form.UserClick(form.cmdAction(1));
    form.UserClick(form.cmdKhMemo);
    world_.Settle();
  }

  WindowWorld world_;
};

TEST_P(Captions, StandWholeInTheirControls) {
  Open();
  for (qt::ControlView* view : world_.Window().Views()) {
    const ui::Control& control = view->GetControl();
    if (control.Name() == "lblKhName") continue;  // a name of any length, cut with an ellipsis
    const qt::TextFit fit = view->Fit();
    EXPECT_LE(fit.needed, fit.available) << control.FullName() << " " << control.Caption();
  }
}

TEST_P(Captions, StandWholeInGridHeaders) {
  Open();
  for (ui::Grid* grid : {&world_.Form().Grid1, &world_.Form().Grid2}) {
    QTableView* table = world_.GridOf(*grid).Table();
    const int margin = 2 * table->style()->pixelMetric(QStyle::PM_HeaderMargin);
    for (int column = 1; column <= grid->ColumnCount(); ++column) {
      if (grid->ColumnHidden(column)) continue;
      const QString header = qt::FromUtf8(grid->Header(column));
      const int width = table->horizontalHeader()->fontMetrics().horizontalAdvance(header);
      EXPECT_LE(width + margin, table->columnWidth(column - 1))
          << grid->Name() << " " << grid->Header(column);
    }
  }
}

TEST_P(Captions, AreOfAReadableChineseFont) {
  Open();
  const QFontMetrics metrics(world_.Window().font());
  for (qt::ControlView* view : world_.Window().Views()) {
    for (const QChar sign : qt::FromUtf8(view->GetControl().Caption())) {
      EXPECT_TRUE(metrics.inFont(sign)) << view->GetControl().Caption();
    }
  }
}

TEST_P(Captions, WouldBeSeenToBeCut) {
  Open();
  frmZj& form = world_.Form();
  const std::vector<ui::Control*> captioned{&form.cmdPrint, &form.chkDate(0), &form.OptSelect(0),
                                            &form.lblTotal(0)};
  for (ui::Control* control : captioned) {
    control->SetCaption("一个长得放不下的标题一个长得放不下的标题");
    world_.Settle();
    const qt::TextFit fit = world_.Window().ViewOf(*control)->Fit();
    EXPECT_GT(fit.needed, fit.available) << control->FullName();
  }
}

/// Every dialog of the module and of the suite's stand-ins.
class Dialogs : public ::testing::TestWithParam<int16_t> {
 protected:
  void ExpectWhole(ui::Form& form) {
    qt::FormWindow window(form, {[] { return int{GetParam()}; }, nullptr});
    window.show();
    WindowWorld::Settle();
    for (const auto& view : window.Views()) {
      const qt::TextFit fit = view->Fit();
      EXPECT_LE(fit.needed, fit.available)
          << view->GetControl().FullName() << " " << view->GetControl().Caption();
    }
  }

  World world_;
};

TEST_P(Dialogs, ShowTheirTextsWhole) {
  world_.control.setLanguage(GetParam());
  world_.Sql("insert into Employees values ('001', '张三');");
  world_.Open(kCustomers);
  users::frmLogin login(GetParam(), {});
  ExpectWhole(login);
  frmList list;
  list.Load();
  ExpectWhole(list);
  TaskCall call;
  call.language = GetParam();
  call.access.user_path = Shared().UserPath;
  visits::frmTask visits(call);
  ExpectWhole(visits);
}

INSTANTIATE_TEST_SUITE_P(Languages, Dialogs, ::testing::Values(0, 1), [](const auto& info) {
  return std::string(info.param == 0 ? "Simplified" : "Traditional");
});

INSTANTIATE_TEST_SUITE_P(LanguagesModesAndSizes, Captions,
                         ::testing::Values(Case{0, 0, 12000, 8565}, Case{0, 1, 12000, 8565},
                                           Case{1, 0, 12000, 8565}, Case{1, 1, 12000, 8565},
                                           Case{0, 0, 18000, 11400}, Case{1, 1, 28800, 16200}),
                         [](const auto& info) {
                           return std::string(info.param.language == 0 ? "Simplified"
                                                                       : "Traditional") +
                                  (info.param.mode == 0 ? "Customers" : "Accounts") +
                                  std::to_string(info.param.width);
                         });

}  // namespace
}  // namespace qvzj::test
