#include "ledger/print.h"

#include "screen/indexes.h"
#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

class LedgerPrint : public LedgerTest {
 protected:
  PrintFacts FactsOf(frmZj& form) {
    form.UserClick(form.cmdPrint);
    if (world.headless.print.jobs.empty()) return {"nothing was printed"};
    return world.headless.print.jobs.back().facts;
  }
};

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

TEST_F(LedgerPrint, TellsWhoseLedgerItPrints) {
  Add({});
  EXPECT_EQ(FactsOf(Open()).subject, "客户单位: 甲公司");
}

TEST_F(LedgerPrint, TellsThePeriodAndTheFilters) {
  Add({.brief = "'货款'", .user = "'admin'"});
  frmZj& form = Open();
  form.UserClick(form.OptSelect(Selection::All));
  form.UserClick(form.chkDate(FilterBox::From));
  form.UserDate(form.dtpDate(FilterBox::From), basic::Date::FromYmd(2024, 1, 1));
  form.UserClick(form.chkDate(FilterBox::To));
  form.UserDate(form.dtpDate(FilterBox::To), basic::Date::FromYmd(2024, 3, 31));
  form.UserClick(form.chkVerify(FilterBox::Checked));
  form.UserClick(form.chkBrief);
  world.Type(form.txtBrief, "货");
  form.UserChoose(form.cboHb2, 0);
  form.UserClick(form.cmdAcntRefresh);
  EXPECT_EQ(FactsOf(form).subject,
            "起始日期: 2024-01-01   终止日期: 2024-03-31   币种: RMB   未审核   摘要: 货");
}

TEST_F(LedgerPrint, TellsNothingOfTheWholeLedger) {
  Add({});
  frmZj& form = Open();
  form.UserClick(form.OptSelect(Selection::All));
  EXPECT_EQ(FactsOf(form).subject, "");
}

TEST_F(LedgerPrint, TellsWhatWasLoadedAndNotWhatIsTickedSince) {
  Add({});
  frmZj& form = Open();
  form.UserClick(form.chkBrief);
  world.Type(form.txtBrief, "货");
  EXPECT_EQ(FactsOf(form).subject, "客户单位: 甲公司");
}

TEST_F(LedgerPrint, TellsNothingOfTheLedgerWithTheRegister) {
  Add({});
  frmZj& form = Open();
  form.UserClick(form.cmdKhPrint);
  const PrintFacts& facts = world.headless.print.jobs.at(0).facts;
  EXPECT_EQ(facts.subject, "");
  EXPECT_FALSE(facts.local_currency);
}

TEST_F(LedgerPrint, KnowsALedgerOfTheLocalCurrencyAlone) {
  Add({.code = "'RMB'"});
  Add({.comp = 2, .code = "'USD'", .rate = "1"});
  EXPECT_TRUE(FactsOf(Open()).local_currency);
}

TEST_F(LedgerPrint, KnowsAForeignCurrencyByItsCodeWhateverItsRate) {
  Add({.code = "'RMB'"});
  Add({.code = "'USD'", .rate = "1"});
  EXPECT_FALSE(FactsOf(Open()).local_currency);
}

TEST_F(LedgerPrint, TakesAnEntryWithoutACurrencyForNoneOfTheLocalOne) {
  for (const char* code : {"null", "''"}) Add({.code = code});
  EXPECT_FALSE(FactsOf(Open()).local_currency);
}

TEST_F(LedgerPrint, TakesTheLocalCurrencyWhateverItsRateIs) {
  Add({.code = "'RMB'", .rate = "0"});
  EXPECT_TRUE(FactsOf(Open()).local_currency);
}

TEST_F(LedgerPrint, KnowsNoRenminbiWhereTheFirstCurrencyIsAnother) {
  world.Sql("update Moneys set MoneyType=10 where MoneyCode='USD';");
  Add({.code = "'USD'", .rate = "1"});
  EXPECT_FALSE(FactsOf(Open()).local_currency);
}

TEST_F(LedgerPrint, PrintsWithoutKnowingTheCurrencyWhenTheDatabaseIsGone) {
  Add({});
  frmZj& form = Open();
  world.Sql("alter table tAccountDetail rename to elsewhere;");
  EXPECT_FALSE(FactsOf(form).local_currency);
  EXPECT_TRUE(world.headless.boxes.TakeErrors().empty());
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
