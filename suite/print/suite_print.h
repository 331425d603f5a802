#pragma once

#include "platform/components.h"
#include "platform/pages.h"
#include "platform/services.h"

namespace qvzj::print {

/// The suite's print component: lays a job out and hands the pages to the front end's output.
class SuitePrint : public PrintComponent {
 public:
  SuitePrint(PageOutput& output, const Clock& clock) : output_(output), clock_(clock) {}
  void Print(const PrintJob& job) override;

 private:
  PageOutput& output_;
  const Clock& clock_;
};

}  // namespace qvzj::print
