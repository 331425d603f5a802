#pragma once

#include <QString>

#include "frontends/qt/print/page_output.h"
#include "frontends/qt/surroundings.h"
#include "suite/export/suite_exporter.h"
#include "suite/print/suite_print.h"
#include "suite/store/connections.h"
#include "suite/users/user.h"
#include "suite/visits/task.h"

namespace qvzj {

/// The component as a Qt program loads it: the window's surroundings and the suite's stand-ins,
/// wired together and in force. A program makes one after its QApplication; a host with components
/// of its own puts them into Around() afterwards.
class Component {
 public:
  /// `settings_file` replaces the user's own settings store, for tests; empty: the user's own.
  explicit Component(const QString& settings_file = {});

  qt::QtPresenter& Windows() { return surroundings_.Windows(); }
  qt::QtPageOutput& Pages() { return pages_; }

 private:
  qt::QtSurroundings surroundings_;
  store::SuiteConnections connections_;
  qt::QtPageOutput pages_;
  SystemClock clock_;
  print::SuitePrint print_{pages_, clock_};
  exports::SuiteExporter exporter_;
  users::FormLogin login_;
  users::SystemTryClock try_clock_;
  users::SuiteUser user_{login_, try_clock_};
  visits::SuiteTask task_;
};

}  // namespace qvzj
