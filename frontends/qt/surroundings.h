#pragma once

#include <QSettings>
#include <memory>

#include "adapters/icu/ansi_codec.h"
#include "adapters/icu/text_order.h"
#include "adapters/system/clock.h"
#include "adapters/system/files.h"
#include "frontends/qt/boxes.h"
#include "frontends/qt/layout_store.h"
#include "frontends/qt/presenter.h"
#include "frontends/qt/services.h"
#include "frontends/qt/translator.h"
#include "platform/surroundings.h"

namespace qvzj::qt {

/// Everything that the module asks of its surroundings and that a window can give: boxes, windows,
/// clipboard, per-user settings, the machine's clock and files, the Chinese code page and orders.
/// A host makes one after its QApplication, installs it, and adds its suite's components
/// (connections, user, task, print) to Around() itself. A plug-in that carries the control into a
/// foreign application does the same when it is loaded.
class QtSurroundings {
 public:
  /// `settings_file` replaces the user's own settings store, for tests; empty: the user's own.
  explicit QtSurroundings(const QString& settings_file = {});
  ~QtSurroundings();

  /// Puts these surroundings in force.
  void Install();

  QtPresenter& Windows() { return presenter_; }

 private:
  std::unique_ptr<QSettings> store_;
  LayoutStore layouts_;
  NativeTranslator translator_;
  QtBoxes boxes_;
  QtSettings settings_;
  QtClipboard clipboard_;
  QtPresenter presenter_;
  SystemClock clock_;
  SystemFiles files_;
  IcuAnsiCodec ansi_;
  IcuTextOrder pinyin_;
  IcuTextOrder stroke_;
};

}  // namespace qvzj::qt
