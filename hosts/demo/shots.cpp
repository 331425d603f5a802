#include "hosts/demo/shots.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <cstdio>
#include <optional>
#include <string>
#include <utility>

#include "hosts/demo/demo_host.h"
#include "platform/surroundings.h"

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

/// Nobody is there to answer while the screens are drawn: what a box has to say goes to standard
/// error, and every question is answered by giving up.
class SayingBoxes : public Boxes {
 public:
  SayingBoxes() : before_(std::exchange(Around().boxes, this)) {}
  ~SayingBoxes() override { Around().boxes = before_; }
  SayingBoxes(const SayingBoxes&) = delete;
  SayingBoxes& operator=(const SayingBoxes&) = delete;

  /// True once a box was to be shown.
  bool Said() const { return said_; }

  Answer Show(const std::string& text, int style, const std::string& title) override {
    Say(text, title);
    switch (style & box::kButtonsMask) {
      case 0:
        return Answer::Ok;
      case 4:
        return Answer::No;
      default:
        return Answer::Cancel;
    }
  }
  std::optional<std::string> Input(const std::string& prompt, const std::string& title,
                                   const std::string&) override {
    Say(prompt, title);
    return std::nullopt;
  }
  void Error(const std::string& text, const std::string& title) override { Say(text, title); }

 private:
  void Say(const std::string& text, const std::string& title) {
    said_ = true;
    std::fprintf(stderr, "qvzj-demo: %s: %s\n", title.c_str(), text.c_str());
  }

  Boxes* before_;
  bool said_ = false;
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
  SayingBoxes boxes;
  Camera camera(host, folder);
  for (int16_t language : kLanguages) {
    host.SetLanguage(language);
    for (int16_t mode : kModes) {
      const QString name = QString(mode == 0 ? "customers" : "accounts") +
                           (language == 0 ? "-simplified" : "-traditional");
      if (!ShootScreens(host, camera, mode, name) || boxes.Said()) return false;
    }
  }
  return true;
}

}  // namespace qvzj::demo
