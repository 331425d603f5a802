#include "suite/print/suite_print.h"

#include "suite/print/page_layout.h"

namespace qvzj::print {

void SuitePrint::Print(const PrintJob& job) {
  const auto progress = [this](int64_t done, int64_t total) {
    return output_.ShowProgress(done, total);
  };
  const PageLayout pages(job, clock_.Today(), output_.Metrics(), {}, progress);
  if (!pages.Cancelled()) output_.Output(pages, job.title);
}

}  // namespace qvzj::print
