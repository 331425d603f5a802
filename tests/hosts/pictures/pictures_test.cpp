#include <gtest/gtest.h>

#include <QImage>

#include "hosts/pictures/qt_pictures.h"
#include "tests/support/world.h"

namespace qvzj::test {
namespace {

TEST(Screenshot, ShowsTheFormInItsSizeAndLeavesItSo) {
  World world;
  QtPictures pictures;
  world.Sql("insert into cards (fID,CompCode,compname,fType0) values (1,'K1','甲公司',0);");
  frmZj& form = world.Open(kCustomers);
  form.UserResize(24003, 12004, ui::WindowState::Normal);
  const int32_t grid = form.Grid2.GetBounds().width;
  const std::string file = (world.folder.Path() / "screen.png").string();
  pictures.Screenshot(form, file);
  EXPECT_EQ(QImage(QString::fromStdString(file)).size(), QSize(1600, 800));
  EXPECT_EQ(form.Width(), 24003);
  EXPECT_EQ(form.Height(), 12004);
  EXPECT_EQ(form.Grid2.GetBounds().width, grid);
}

TEST(Screenshot, ShowsADialogInItsSize) {
  World world;
  QtPictures pictures;
  ui::Form dialog("frmDialog");
  dialog.SetSize(3600, 1500);
  dialog.SetLoaded(true);
  const std::string file = (world.folder.Path() / "dialog.png").string();
  pictures.Screenshot(dialog, file);
  EXPECT_EQ(QImage(QString::fromStdString(file)).size(), QSize(240, 100));
}

}  // namespace
}  // namespace qvzj::test
