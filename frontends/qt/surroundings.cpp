#include "frontends/qt/surroundings.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <filesystem>

#include "adapters/system/private_files.h"
#include "services/context.h"

namespace qvzj::qt {

namespace {

int Language() { return Shared().Language; }

/// The data path of the settings may be the details of a server, its password among them.
void KeepPrivate(const QString& file) {
  const QFileInfo place(file);
  try {
    MakePrivateFolder(QFile::encodeName(place.absolutePath()).toStdString());
    MakePrivateFile(QFile::encodeName(place.absoluteFilePath()).toStdString());
  } catch (const std::filesystem::filesystem_error&) {
    // Where nothing can be written nothing is kept, and the control works without.
  }
}

std::unique_ptr<QSettings> OpenStore(const QString& file) {
  auto store = file.isEmpty() ? std::make_unique<QSettings>("qvzj", "qvzj")
                              : std::make_unique<QSettings>(file, QSettings::IniFormat);
  KeepPrivate(store->fileName());
  return store;
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
