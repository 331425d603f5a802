#include "suite/print/suite_print.h"

#include <gtest/gtest.h>

#include "platform/ui/form.h"
#include "suite/print/metrics.h"

namespace qvzj::print {
namespace {

/// Takes pages and counts them; the user may cancel.
class CountingOutput : public PageOutput {
 public:
  const TextMetrics& Metrics() const override { return metrics_; }
  bool ShowProgress(int64_t, int64_t) override { return goes_on; }
  void Output(const PageSource& pages, const std::string& title) override {
    page_counts.push_back(pages.PageCount());
    last_title = title;
  }

  bool goes_on = true;
  std::vector<int> page_counts;
  std::string last_title;

 private:
  FixedMetrics metrics_;
};

class FirstOfMarch : public Clock {
 public:
  basic::Date Today() const override { return basic::Date::FromYmd(2024, 3, 1); }
};

class SuitePrintTest : public testing::Test {
 protected:
  SuitePrintTest() {
    grid_.SetColumnCount(1);
    grid_.SetHeader(1, "摘要");
    grid_.SetRowCount(5000);
    for (int32_t row = 1; row <= 5000; ++row) grid_.SetCellText(1, row, "货款");
    job_.grid = &grid_;
    job_.title = "客户列表清单";
  }

  ui::Form form_{"form"};
  ui::Grid grid_{form_, "Grid1"};
  PrintJob job_;
  CountingOutput output_;
  const FirstOfMarch clock_;
};

TEST_F(SuitePrintTest, HandsThePagesToTheOutput) {
  SuitePrint(output_, clock_).Print(job_);
  ASSERT_EQ(output_.page_counts.size(), 1u);
  EXPECT_GT(output_.page_counts[0], 50);
  EXPECT_EQ(output_.last_title, "客户列表清单");
}

TEST_F(SuitePrintTest, HandsOverNothingWhenTheUserCancels) {
  output_.goes_on = false;
  SuitePrint(output_, clock_).Print(job_);
  EXPECT_TRUE(output_.page_counts.empty());
}

}  // namespace
}  // namespace qvzj::print
