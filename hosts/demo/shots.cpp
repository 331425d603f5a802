#include "hosts/demo/shots.h"

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QPixmap>
#include <QTimer>
#include <cstdio>
#include <functional>
#include <utility>

#include "forms/frmList.h"
#include "hosts/demo/demo_host.h"
#include "hosts/demo/saying_boxes.h"
#include "hosts/demo/small_png.h"
#include "suite/login.h"

namespace qvzj::demo {

namespace {

constexpr QSize kShotSize(1200, 760);
constexpr int16_t kModes[] = {0, 1};
constexpr int16_t kLanguages[] = {0, 1};

/// Draws widgets into files of one folder.
class Camera {
 public:
  explicit Camera(const QString& folder) : folder_(folder) {}

  bool Good() const { return good_; }

  void Shoot(QWidget* widget, const QString& name) {
    if (widget == nullptr) {
      good_ = false;
      std::fprintf(stderr, "%s: there is no such window\n", qPrintable(name));
      return;
    }
    const QString file = QDir(folder_).absoluteFilePath(name + ".png");
    good_ = SaveSmallPng(widget->grab().toImage(), file) && good_;
    std::printf("%s\n", qPrintable(file));
  }

  /// Does what opens a modal window, draws that and closes it.
  void ShootModal(const QString& name, const std::function<void()>& open) {
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [&] {
      QWidget* modal = QApplication::activeModalWidget();
      Shoot(modal, name);
      if (modal != nullptr) modal->close();
    });
    timer.start(400);
    open();
    if (timer.isActive()) Shoot(nullptr, name);  // nothing was opened
    QApplication::processEvents();
  }

 private:
  QString folder_;
  bool good_ = true;
};

/// The screens of one mode in one language, as a user goes through them.
class Walk {
 public:
  Walk(DemoHost& host, SayingBoxes& boxes, Camera& camera, const QString& name)
      : form_(*host.Control().Form()),
        window_(*host.Windows().WindowOf(form_)),
        boxes_(boxes),
        camera_(camera),
        name_(name) {
    window_.showNormal();
    window_.resize(kShotSize);
  }

  void Screens() {
    Shoot("");
    form_.UserClick(form_.cmdAction(1));
    Shoot("-entry");
    form_.UserClick(form_.cmdAcntCancel);
    form_.UserTab(form_.SSTab1, 1);
    form_.UserClick(form_.cmdKhMemo);
    Shoot("-record");
    form_.UserClick(form_.cmdKhMemo);
    form_.UserTab(form_.SSTab1, 2);
    Shoot("-search");
  }

  void Dialogs() {
    form_.UserTab(form_.SSTab1, 0);
    form_.UserPress(form_.cmdManage, 0, 0);
    QApplication::processEvents();
    camera_.Shoot(QApplication::activePopupWidget(), name_ + "-menu");
    if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    camera_.ShootModal(name_ + "-visits", [&] { form_.UserClick(form_.mnuKhContact); });
    camera_.ShootModal(name_ + "-print", [&] { form_.UserClick(form_.cmdPrint); });
    form_.UserClick(form_.cmdAction(4));
    camera_.ShootModal(name_ + "-question", [&] {
      Boxes* const silent = std::exchange(Around().boxes, &boxes_.Before());
      form_.UserClick(form_.cmdAcntSave);
      Around().boxes = silent;
    });
    frmList list;
    list.Load();
    camera_.ShootModal(name_ + "-staff", [&] { Around().presenter->Show(list, true); });
  }

 private:
  void Shoot(const QString& screen) {
    QApplication::processEvents();
    camera_.Shoot(&window_, name_ + screen);
  }

  frmZj& form_;
  qt::FormWindow& window_;
  SayingBoxes& boxes_;
  Camera& camera_;
  QString name_;
};

}  // namespace

bool TakeShots(DemoHost& host, const QString& folder) {
  if (!QDir().mkpath(folder)) return false;
  SayingBoxes boxes;
  Camera camera(folder);
  for (int16_t language : kLanguages) {
    const QString suffix = language == 0 ? "-simplified" : "-traditional";
    host.SetLanguage(language);
    camera.ShootModal("login" + suffix, [&] {
      FormLogin().Ask(language, [](const std::string&, const std::string&) { return false; });
    });
    for (int16_t mode : kModes) {
      host.Open(mode);
      if (host.Control().Form() == nullptr) return false;
      Walk walk(host, boxes, camera, (mode == 0 ? "customers" : "accounts") + suffix);
      walk.Screens();
      if (mode == 0) walk.Dialogs();
      host.Close();
      if (boxes.Said()) return false;
    }
  }
  return camera.Good();
}

}  // namespace qvzj::demo
