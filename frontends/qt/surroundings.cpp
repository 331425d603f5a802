#include "frontends/qt/surroundings.h"

#include <QCoreApplication>

#include "services/context.h"

namespace qvzj::qt {

namespace {

int Language() { return Shared().Language; }

std::unique_ptr<QSettings> OpenStore(const QString& file) {
  if (file.isEmpty()) return std::make_unique<QSettings>("qvzj", "qvzj");
  return std::make_unique<QSettings>(file, QSettings::IniFormat);
}

}  // namespace

QtSurroundings::QtSurroundings(const QString& settings_file)
    : store_(OpenStore(settings_file)),
      layouts_(*store_),
      translator_(Language),
      boxes_(Language),
      settings_(*store_),
      presenter_({Language, &layouts_}),
      pinyin_(IcuTextOrder::Pinyin()),
      stroke_(IcuTextOrder::Stroke()) {}

QtSurroundings::~QtSurroundings() {
  // A plug-in is unloaded after the application object has gone.
  if (QCoreApplication::instance()) QCoreApplication::removeTranslator(&translator_);
}

void QtSurroundings::Install() {
  QCoreApplication::installTranslator(&translator_);
  Surroundings& around = Around();
  around.boxes = &boxes_;
  around.settings = &settings_;
  around.clipboard = &clipboard_;
  around.clock = &clock_;
  around.files = &files_;
  around.ansi = &ansi_;
  around.presenter = &presenter_;
  around.text_order[0] = &pinyin_;
  around.text_order[1] = &stroke_;
}

}  // namespace qvzj::qt
