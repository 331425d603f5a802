#pragma once

#include <memory>

#include "platform/components.h"
#include "suite/visits/task_form.h"
#include "suite/visits/visits.h"

namespace qvzj::visits {

/// Stand-in for the suite's task component: a customer's visit records. Errors rise to the caller.
class SuiteTask : public TaskComponent {
 public:
  /// Works by the form frmTask, shown modally.
  void Open(const TaskCall& call) override;

 private:
  std::unique_ptr<frmTask> form_;  // stays open where a program cannot show forms modally
};

/// The same by boxes, for programs without windows. One input box lists the records by number and
/// takes "+text" to add one of today, "number=text" to change one and "-number" to delete one; it
/// comes again until it is cancelled or left empty.
class BoxTask : public TaskComponent {
 public:
  void Open(const TaskCall& call) override;
};

}  // namespace qvzj::visits
