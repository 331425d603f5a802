#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>

#include "frontends/qt/theme.h"
#include "hosts/demo/demo_host.h"
#include "hosts/demo/shots.h"
#include "hosts/demo/suite_window.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("qvzj-demo");
  QApplication::setStyle("Fusion");

  QCommandLineParser parser;
  parser.setApplicationDescription("A small host application that embeds the control qvJxc_Zj.");
  parser.addHelpOption();
  const QCommandLineOption data("data", "Folder of the data file (made by qvdb).", "DIR");
  const QCommandLineOption shots("shots", "Draw the screens into PNG files in DIR and end.", "DIR");
  const QCommandLineOption settings("settings", "Keep settings in FILE instead of the user's own.",
                                    "FILE");
  const QCommandLineOption appearance("appearance", "light or dark; else the system's.", "NAME");
  parser.addOptions({data, shots, settings, appearance});
  parser.process(application);
  if (!parser.isSet(data)) {
    std::fputs("qvzj-demo: --data DIR is needed; see --help\n", stderr);
    return 2;
  }

  if (parser.isSet(appearance)) {
    const bool dark = parser.value(appearance) == "dark";
    QApplication::setPalette(
        qvzj::qt::ThemePalette(dark ? qvzj::qt::Appearance::Dark : qvzj::qt::Appearance::Light));
  }

  qvzj::demo::DemoHost host(parser.value(data), parser.value(settings));
  if (parser.isSet(shots)) {
    if (qvzj::demo::TakeShots(host, parser.value(shots))) return 0;
    std::fputs("qvzj-demo: the screens could not be drawn\n", stderr);
    return 1;
  }
  if (!host.LogIn()) return 0;
  qvzj::demo::SuiteWindow window(host);
  window.show();
  return QApplication::exec();
}
