#include "hosts/demo/shots.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <cstdio>

#include "hosts/demo/demo_host.h"

namespace qvzj::demo {

namespace {

constexpr int16_t kModes[] = {0, 1};
constexpr int16_t kLanguages[] = {0, 1};

constexpr QSize kShotSize(1200, 760);

class Camera {
 public:
  Camera(DemoHost& host, const QString& folder) : host_(host), folder_(folder) {}

  bool Shoot(const QString& name) {
    QApplication::processEvents();
    frmZj* form = host_.Control().Form();
    qt::FormWindow* window = form == nullptr ? nullptr : host_.Windows().WindowOf(*form);
    if (window == nullptr) return false;
    window->resize(kShotSize);
    QApplication::processEvents();
    const QString file = QDir(folder_).absoluteFilePath(name + ".png");
    // Few colours make a small file, and flat drawing loses nothing by it.
    const bool written = window->grab().toImage().save(file, "PNG", 10);
    std::printf("%s\n", qPrintable(file));
    return written;
  }

 private:
  DemoHost& host_;
  QString folder_;
};

bool ShootScreens(DemoHost& host, Camera& camera, int16_t mode, const QString& name) {
  host.Open(mode);
  frmZj* form = host.Control().Form();
  if (form == nullptr) return false;
  bool good = camera.Shoot(name);
  form->UserClick(form->cmdAction(1));
  good = camera.Shoot(name + "-entry") && good;
  form->UserClick(form->cmdAcntCancel);
  form->UserTab(form->SSTab1, 1);
  form->UserClick(form->cmdKhMemo);
  good = camera.Shoot(name + "-record") && good;
  form->UserClick(form->cmdKhMemo);
  form->UserTab(form->SSTab1, 2);
  good = camera.Shoot(name + "-search") && good;
  form->UserClick(form->OptSelect(0));
  form->UserClick(form->cmdAcntRefresh);
  good = camera.Shoot(name + "-all") && good;
  host.Close();
  return good;
}

}  // namespace

bool TakeShots(DemoHost& host, const QString& folder) {
  if (!QDir().mkpath(folder)) return false;
  Camera camera(host, folder);
  bool good = true;
  for (int16_t language : kLanguages) {
    host.SetLanguage(language);
    for (int16_t mode : kModes) {
      const QString name = QString(mode == 0 ? "customers" : "accounts") +
                           (language == 0 ? "-simplified" : "-traditional");
      good = ShootScreens(host, camera, mode, name) && good;
    }
  }
  return good;
}

}  // namespace qvzj::demo
