#include "hosts/demo/shots.h"

#include <QApplication>
#include <QDir>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMenu>
#include <QPixmap>
#include <QTableView>
#include <QTimer>
#include <cstdio>
#include <functional>
#include <limits>
#include <utility>

#include "forms/frmList.h"
#include "frontends/qt/grid_tools.h"
#include "frontends/qt/grid_view.h"
#include "frontends/qt/print/page_desk.h"
#include "frontends/qt/print/preview_window.h"
#include "frontends/qt/theme.h"
#include "hosts/demo/demo_host.h"
#include "hosts/demo/saying_boxes.h"
#include "hosts/demo/small_png.h"
#include "hosts/demo/suite_window.h"
#include "suite/users/login.h"

namespace qvzj::demo {

namespace {

constexpr QSize kShotSize(1200, 760);
constexpr QSize kEnlargedShotSize(900, 600);  // where the screen enlarges, smaller files matter
constexpr int16_t kModes[] = {0, 1};
constexpr int16_t kLanguages[] = {0, 1};

/// True where everything is drawn larger than life (QT_SCALE_FACTOR).
bool Enlarged() { return qApp->devicePixelRatio() > 1; }

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

  /// Does what opens a modal window, prepares that, draws it and closes it.
  void ShootModal(const QString& name, const std::function<void()>& open,
                  const std::function<void(QWidget&)>& prepare = {}) {
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [&] {
      QWidget* modal = QApplication::activeModalWidget();
      if (modal != nullptr && prepare) prepare(*modal);
      Shoot(modal, name);
      if (modal != nullptr) modal->close();
    });
    timer.start(100);
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
    window_.showNormal();  // a small screen would have it maximised
    QApplication::processEvents();
    window_.resize(Enlarged() ? kEnlargedShotSize : kShotSize);
    QApplication::processEvents();
  }

  void Main() {
    Shoot("");
    form_.UserClick(form_.cmdAction(1));
    Shoot("-entry");
    form_.UserClick(form_.cmdAcntCancel);
  }

  void Register() {
    form_.UserTab(form_.SSTab1, 1);
    form_.UserClick(form_.cmdKhMemo);
    Shoot("-record");
    form_.UserClick(form_.cmdKhMemo);
    form_.UserTab(form_.SSTab1, 2);
    Shoot("-search");
    form_.UserTab(form_.SSTab1, 0);
  }

  /// Both printed lists: the ledger's first page in the preview, both lists' last pages with what
  /// closes them.
  void Prints() {
    ShootPreview("-print", form_.cmdPrint, false);
    form_.UserClick(form_.OptSelect(0));
    ShootPreview("-print-end", form_.cmdPrint, true);
    form_.UserClick(form_.OptSelect(2));
    ShootPreview("-print-register", form_.cmdKhPrint, true);
  }

  void Dialogs() {
    form_.UserPress(form_.cmdManage, 0, 0);
    ShootMenu("-menu");
    camera_.ShootModal(name_ + "-visits", [&] { form_.UserClick(form_.mnuKhContact); });
    form_.UserClick(form_.cmdAction(4));
    camera_.ShootModal(name_ + "-question", [&] {
      Boxes* const silent = std::exchange(Around().boxes, &boxes_.Before());
      form_.UserClick(form_.cmdAcntSave);
      Around().boxes = silent;
    });
    form_.UserClick(form_.cmdAcntCancel);
    frmList list;
    list.Load();
    camera_.ShootModal(name_ + "-staff", [&] { Around().presenter->Show(list, true); });
  }

  /// What the ledger offers besides: the sums of selected rows, the find line, the menu, a file.
  void Tools() {
    auto& view = static_cast<qt::GridView&>(*window_.ViewOf(form_.Grid2));
    QTableView& table = *view.Table();
    form_.UserFocus(form_.Grid2);
    const QItemSelection rows(table.model()->index(2, 0), table.model()->index(8, 0));
    table.selectionModel()->select(rows,
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    const auto key = [&](Qt::Key which) {
      QKeyEvent event(QEvent::KeyPress, which, Qt::ControlModifier);
      QApplication::sendEvent(&table, &event);
      QApplication::processEvents();
    };
    key(Qt::Key_F);
    Shoot("-find");
    emit table.customContextMenuRequested({260, 120});
    ShootMenu("-grid-menu");
    camera_.ShootModal(name_ + "-export", [&] { view.Tools().Export(); });
  }

 private:
  void Shoot(const QString& screen) {
    QApplication::processEvents();
    camera_.Shoot(&window_, name_ + screen);
  }

  void ShootMenu(const QString& screen) {
    QApplication::processEvents();
    QWidget* menu = QApplication::activePopupWidget();
    camera_.Shoot(menu, name_ + screen);
    if (menu != nullptr) menu->close();
  }

  void ShootPreview(const QString& screen, ui::Button& button, bool last_page) {
    const auto leaf = [last_page](QWidget& window) {
      auto& preview = dynamic_cast<qt::PreviewWindow&>(window);
      if (Enlarged()) preview.resize(kEnlargedShotSize);
      QApplication::processEvents();
      if (last_page) preview.Desk().SetCurrent(std::numeric_limits<int>::max());
    };
    camera_.ShootModal(
        name_ + screen, [&] { form_.UserClick(button); }, leaf);
  }

  frmZj& form_;
  qt::FormWindow& window_;
  SayingBoxes& boxes_;
  Camera& camera_;
  QString name_;
};

/// A home folder with nothing in it, for the questions for a file.
class EmptyHome {
 public:
  EmptyHome() {
    folder_.mkpath(".");
    qputenv("HOME", folder_.path().toLocal8Bit());
  }
  ~EmptyHome() {
    qputenv("HOME", before_);
    folder_.removeRecursively();
  }
  EmptyHome(const EmptyHome&) = delete;
  EmptyHome& operator=(const EmptyHome&) = delete;

 private:
  QDir folder_{QDir::temp().filePath("示例")};
  QByteArray before_ = qgetenv("HOME");
};

void UseAppearance(qt::Appearance appearance) {
  QApplication::setPalette(qt::ThemePalette(appearance));
}

void ShootSuite(DemoHost& host, Camera& camera, const QString& name) {
  SuiteWindow suite(host);
  suite.show();
  QApplication::processEvents();
  camera.Shoot(&suite, name);
}

/// Opens the control in a run mode and walks through it. False when it did not open or a box came.
bool WalkThrough(DemoHost& host, SayingBoxes& boxes, Camera& camera, int16_t mode,
                 const QString& suffix, const std::function<void(Walk&)>& screens) {
  host.Open(mode);
  if (host.Control().Form() == nullptr) return false;
  Walk walk(host, boxes, camera, (mode == 0 ? "customers" : "accounts") + suffix);
  screens(walk);
  host.Close();
  return !boxes.Said();
}

/// Every screen in one language.
bool ShootLanguage(DemoHost& host, SayingBoxes& boxes, Camera& camera, int16_t language) {
  const QString suffix = language == 0 ? "-simplified" : "-traditional";
  host.SetLanguage(language);
  ShootSuite(host, camera, "suite" + suffix);
  camera.ShootModal("login" + suffix, [&] {
    users::FormLogin().Ask(language, [](const std::string&, const std::string&) { return false; });
  });
  for (int16_t mode : kModes) {
    const bool done = WalkThrough(host, boxes, camera, mode, suffix, [&](Walk& walk) {
      walk.Main();
      walk.Register();
      walk.Prints();
      if (mode != 0) return;
      walk.Dialogs();
      walk.Tools();
    });
    if (!done) return false;
  }
  return true;
}

/// The main screens as they look in the dark.
bool ShootDark(DemoHost& host, SayingBoxes& boxes, Camera& camera) {
  UseAppearance(qt::Appearance::Dark);
  host.SetLanguage(0);
  ShootSuite(host, camera, "suite-dark");
  for (int16_t mode : kModes) {
    const bool done = WalkThrough(host, boxes, camera, mode, "-dark", [&](Walk& walk) {
      walk.Main();
      if (mode == 0) walk.Prints();
      if (mode == 0) walk.Tools();
    });
    if (!done) return false;
  }
  return true;
}

}  // namespace

bool TakeShots(DemoHost& host, const QString& folder) {
  if (!QDir().mkpath(folder)) return false;
  const EmptyHome home;
  SayingBoxes boxes;
  Camera camera(folder);
  UseAppearance(qt::Appearance::Light);
  for (int16_t language : kLanguages) {
    if (!ShootLanguage(host, boxes, camera, language)) return false;
  }
  if (!Enlarged() && !ShootDark(host, boxes, camera)) return false;
  return camera.Good();
}

}  // namespace qvzj::demo
