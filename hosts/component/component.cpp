#include "hosts/component/component.h"

#include "services/context.h"

namespace qvzj {

Component::Component(const QString& settings_file)
    : surroundings_(settings_file),
      connections_(
          store::WithLimitsOfEnvironment({.language = [] { return int{Shared().Language}; }})),
      pages_([] { return Shared().Language == 1; }) {
  surroundings_.Install();
  Surroundings& around = Around();
  around.connections = &connections_;
  around.print = &print_;
  around.exporter = &exporter_;
  around.user = &user_;
  around.task = &task_;
}

}  // namespace qvzj
