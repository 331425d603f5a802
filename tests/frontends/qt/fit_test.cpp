#include <gtest/gtest.h>

#include <QHeaderView>

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
