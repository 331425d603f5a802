#include "ledger/print.h"

#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

class LedgerPrint : public LedgerTest {};

TEST_F(LedgerPrint, HandsTheLedgerAndItsTotalsToThePrintComponent) {
  Add({.a = "100", .b = "30"});
  Shared().CompName = "总公司";
  frmZj& form = Open();
  form.UserClick(form.cmdPrint);
  ASSERT_EQ(world.headless.print.jobs.size(), 1u);
  const PrintJob& job = world.headless.print.jobs[0];
  EXPECT_EQ(job.kind, 1);
  EXPECT_EQ(job.language, 0);
  EXPECT_EQ(job.totals, (Texts{"应收金额:", "100.00", "实收金额:", "30.00", "应收余额:", "70.00",
                               "应付金额:", "0.00", "实付金额:", "0.00", "应付余额:", "0.00"}));
  EXPECT_EQ(job.grid, &form.Grid2);
  EXPECT_EQ(job.value5, 0);
  EXPECT_EQ(job.access.user_path, Shared().UserPath);
  EXPECT_EQ(job.access.password, "0");
  EXPECT_EQ(job.access.sql_data, 0);
  EXPECT_EQ(job.company, "总公司");
  EXPECT_EQ(job.user, "admin");
  EXPECT_EQ(job.value13, "");
  EXPECT_EQ(job.title, "往来总帐清单");
  EXPECT_EQ(job.report, "qvzj_0");
  EXPECT_EQ(job.value16, 1);
  EXPECT_EQ(job.value17, 1);
  EXPECT_EQ(job.value18, 0);
  EXPECT_EQ(job.value19, 0);
  EXPECT_EQ(job.extra, "");
}

TEST_F(LedgerPrint, OmitsTheHiddenTotalsOfMoneyAccounts) {
  Add({.type1 = 1, .b = "30"});
  frmZj& form = Open(kAccounts);
  form.UserClick(form.cmdPrint);
  ASSERT_EQ(world.headless.print.jobs.size(), 1u);
  const PrintJob& job = world.headless.print.jobs[0];
  EXPECT_EQ(job.totals, (Texts{"期初金额:", "0.00", "进帐金额:", "30.00", "出帐金额:", "0.00",
                               "帐户余额:", "30.00"}));
  EXPECT_EQ(job.title, "进出总帐清单");
  EXPECT_EQ(job.report, "qvzj_1");
}

TEST_F(LedgerPrint, PrintsTheRegisterWithoutAReportName) {
  Add({.a = "100"});
  frmZj& form = Open();
  form.UserClick(form.cmdPrint);  // leaves a kind and a report name that the register must not take
  ASSERT_TRUE(form.UserClick(form.cmdKhPrint));
  ASSERT_EQ(world.headless.print.jobs.size(), 2u);
  const PrintJob& job = world.headless.print.jobs[1];
  EXPECT_EQ(job.kind, 0);
  EXPECT_EQ(job.grid, &form.Grid1);
  EXPECT_EQ(job.title, "客户列表清单");
  EXPECT_EQ(job.report, "");
  EXPECT_EQ(job.totals.size(), 12u);
}

TEST_F(LedgerPrint, PrintsNothingAndSaysNothingForAnEmptyLedger) {
  frmZj& form = Open();
  form.UserClick(form.cmdPrint);
  EXPECT_TRUE(world.headless.print.jobs.empty());
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(LedgerPrint, SaysThatThereIsNoPrintComponent) {
  Add({});
  frmZj& form = Open();
  Around().print = nullptr;
  EXPECT_FALSE(form.UserClick(form.cmdPrint));
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
}

}  // namespace
}  // namespace qvzj::test
