#include "suite/import/import.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/basic/errors.h"
#include "tests/suite/store/database.h"

namespace qvzj::imports {
namespace {

using test::One;
using test::Rows;

class ImportTest : public ::testing::Test {
 protected:
  Report Import(const std::string& text) {
    refusals_.clear();
    return ImportCsv(*session_, text, options_,
                     [this](const Refusal& refusal) {
                       refusals_ += std::to_string(refusal.line) + ": " + refusal.reason + "\n";
                     },
                     {});
  }
  /// Why the whole import fails.
  std::string Failure(const std::string& text) {
    try {
      Import(text);
    } catch (const Error& error) {
      return error.what();
    }
    return "it did not fail";
  }
  std::string Rows(const std::string& sql) { return test::Rows(*session_, sql); }
  std::string One(const std::string& sql) { return test::One(*session_, sql); }

  std::unique_ptr<SqliteSession> session_ = test::EmptyDatabase();
  Options options_;
  std::string refusals_;  ///< of the last import, "line: reason" each
};

// --- customers and accounts ---------------------------------------------------------------------

TEST_F(ImportTest, FillsColumnsFromHeadersOfTheirName) {
  const Report report = Import("CompCode,COMPNAME,telphone,detail\nK1,甲公司,123,\"一\n二\"\n");
  EXPECT_EQ(report.rows, 1);
  EXPECT_EQ(report.written, 1);
  EXPECT_EQ(report.encoding, "UTF-8");
  EXPECT_EQ(Rows("select fID,CompCode,compname,name,telphone,fType0,detail from cards"),
            "1|K1|甲公司||123|0|一\n二\n");
}

TEST_F(ImportTest, FillsColumnsFromTheHeadersThatTheScreenShows) {
  Import("编号,名称,联系人\nK1,甲公司,王五\n");
  EXPECT_EQ(Rows("select CompCode,compname,name from cards"), "K1|甲公司|王五\n");
}

TEST_F(ImportTest, FillsColumnsFromMappedHeaders) {
  options_.map = {{"CompCode", "id"}, {"compname", "who"}};
  Import("\xEF\xBB\xBFid,who,compname\nK1,甲,not this\n");
  EXPECT_EQ(Rows("select CompCode,compname from cards"), "K1|甲\n");
}

TEST_F(ImportTest, MakesValuesUpFromTextAndFields) {
  options_.set = {{"fType0", "1"}, {"others", "{a}-{b}!"}};
  Import("CompCode,compname,a,b\nK1,甲, x ,y\n");
  EXPECT_EQ(Rows("select fType0,others from cards"), "1|x-y!\n");
}

TEST_F(ImportTest, TakesADefaultOnlyWhereTheValueIsEmpty) {
  options_.presets = {{"compname", "无名 {CompCode}"}};
  Import("CompCode,compname\nK1,甲\nK2,  \n");
  EXPECT_EQ(Rows("select compname from cards order by fID"), "甲\n无名 K2\n");
}

TEST_F(ImportTest, ReadsTheChineseCodePage) {
  EXPECT_EQ(Import("\xB1\xE0\xBA\xC5,\xC3\xFB\xB3\xC6\nK1,\xB1\xE0\n").encoding, "GB18030");
  EXPECT_EQ(One("select compname from cards"), "编");
}

TEST_F(ImportTest, ContinuesTheIdsOfTheTable) {
  session_->NativeScript("insert into cards (fID,CompCode,compname) values (41,'K41','甲')");
  Import("CompCode,compname\nK1,乙\n");
  EXPECT_EQ(One("select fID from cards where CompCode='K1'"), "42");
}

TEST_F(ImportTest, PutsAccountsIntoTheirOwnTable) {
  options_.kind = Kind::Accounts;
  Import("CompCode,compname,fBank\n0001,现金,现金\n");
  EXPECT_EQ(Rows("select fID,CompCode,compname,fBank from tAccounts"), "1|0001|现金|现金\n");
  EXPECT_EQ(One("select count(*) from cards"), "0");
}

TEST_F(ImportTest, TakesCustomerTypesByDigitAndByName) {
  const Report report =
      Import("CompCode,compname,fType0\n1,a,3\n2,b,供应商\n3,c,\n4,d,4\n5,e,客户\n");
  EXPECT_EQ(Rows("select fType0 from cards order by fID"), "3\n1\n0\n");
  EXPECT_EQ(report.refused, 2);
  EXPECT_EQ(refusals_, "5: fType0 is no customer type: 4\n6: fType0 is no customer type: 客户\n");
}

TEST_F(ImportTest, RefusesARecordWithoutCodeOrName) {
  Import("CompCode,compname\n,甲\nK2,\n");
  EXPECT_EQ(refusals_, "2: CompCode is empty\n3: compname is empty\n");
  EXPECT_EQ(One("select count(*) from cards"), "0");
}

TEST_F(ImportTest, RefusesACodeThatIsThereWhateverItsCase) {
  session_->NativeScript("insert into cards (fID,CompCode,compname) values (1,'k1','甲')");
  Import("CompCode,compname\nK1,乙\nK2,丙\nk2,丁\n");
  EXPECT_EQ(refusals_, "2: the code K1 is there already\n4: the code k2 is there already\n");
  EXPECT_EQ(Rows("select compname from cards order by fID"), "甲\n丙\n");
}

TEST_F(ImportTest, PassesOverACodeThatIsThereWhenAskedTo) {
  options_.once = true;
  const Report report = Import("CompCode,compname\nK1,甲\nK1,乙\n");
  EXPECT_EQ(report.passed_over, 1);
  EXPECT_EQ(report.refused, 0);
  EXPECT_EQ(Rows("select compname from cards"), "甲\n");
}

TEST_F(ImportTest, RefusesATextThatIsLongerThanItsField) {
  Import("CompCode,compname,postcode\nK1,甲,12345678901\nK2,乙,中文中文中\nK3,丙,中文中文中文\n");
  EXPECT_EQ(refusals_,
            "2: postcode has 11 bytes, 10 fit: 12345678901\n"
            "4: postcode has 12 bytes, 10 fit: 中文中文中文\n");
  EXPECT_EQ(Rows("select postcode from cards"), "中文中文中\n");
}

TEST_F(ImportTest, TurnsSingleQuotesIntoApostrophesAndCountsThem) {
  const Report report =
      Import("CompCode,compname,name\nK'1,O'Neil's,'\nK2,plain,\n,it's refused,\n");
  EXPECT_EQ(Rows("select CompCode,compname,name from cards order by fID"),
            "K’1|O’Neil’s|’\nK2|plain|\n");
  EXPECT_EQ(report.quoted_texts, 3);
}

TEST_F(ImportTest, KnowsACodeAgainWhoseQuoteWasReplaced) {
  Import("CompCode,compname\nK'1,甲\n");
  Import("CompCode,compname\nK'1,乙\n");
  EXPECT_EQ(refusals_, "2: the code K'1 is there already\n");
}

TEST_F(ImportTest, TurnsLineBreaksInATextOfOneLineIntoBlanksAndCountsThem) {
  const Report report = Import("CompCode,compname\nK1,\"甲\r\n乙\t丙\"\n");
  EXPECT_EQ(One("select compname from cards"), "甲 乙 丙");
  EXPECT_EQ(report.joined_texts, 1);
}

TEST_F(ImportTest, KeepsTextsThatLookLikeStatements) {
  Import("CompCode,compname\nK1,\"x\"\"; drop table cards; --\"\n");
  EXPECT_EQ(One("select compname from cards"), "x\"; drop table cards; --");
}

TEST_F(ImportTest, RefusesARowOfAnotherNumberOfFields) {
  Import("CompCode,compname\nK1\nK2,乙,x\nK3,丙\n");
  EXPECT_EQ(refusals_,
            "2: it has 1 fields, the header has 2\n3: it has 3 fields, the header has 2\n");
  EXPECT_EQ(Rows("select CompCode from cards"), "K3\n");
}

TEST_F(ImportTest, RefusesARowThatIsNoCsvAndNamesItsLine) {
  Import("CompCode,compname\nK1,\"a\nb\"\nK2,5\" pipe\nK3,丙\n");
  EXPECT_EQ(refusals_, "4: a double quote inside a field that does not begin with one\n");
  EXPECT_EQ(Rows("select CompCode from cards order by fID"), "K1\nK3\n");
}

TEST_F(ImportTest, TriesEverythingAndKeepsNothingInADryRun) {
  options_.dry_run = true;
  EXPECT_EQ(Import("CompCode,compname\nK1,甲\n").written, 1);
  EXPECT_EQ(One("select count(*) from cards"), "0");
}

TEST_F(ImportTest, FailsAsAWholeWhenTheFileCannotBeUnderstood) {
  EXPECT_EQ(Failure(""), "The file is empty; its first row must name the columns");
  EXPECT_EQ(Failure("CompCode,name\nK1,甲\n"),
            "Nothing fills the column compname: the file has no header of that name; map one with "
            "--map compname=HEADER");
  options_.map = {{"compname", "who"}};
  EXPECT_EQ(Failure("CompCode,x\n"), "The file has no header who; its headers are CompCode x");
  options_.map = {{"compnam", "x"}};
  EXPECT_TRUE(Failure("CompCode,x\n").starts_with("There is no column compnam; the columns are"));
  options_.map = {{"compname", "x"}, {"名称", "x"}};
  EXPECT_EQ(Failure("CompCode,x\n"), "The column 名称 is given twice");
  options_.map = {{"compname", "x"}};
  EXPECT_EQ(Failure("CompCode,x,x\n"), "The file has the header x twice");
}

// --- entries ------------------------------------------------------------------------------------

class EntryImportTest : public ImportTest {
 protected:
  EntryImportTest() {
    session_->NativeScript(
        "insert into cards (fID,CompCode,compname) values "
        "(3,'K3','甲'),(4,'K4','乙'),(5,'K5','乙');"
        "insert into tAccounts (fID,CompCode,compname) values (7,'0001','现金');"
        "insert into Moneys values ('USD',7.1,1),('RMB',1,2)");
    options_.kind = Kind::Entries;
  }

  /// Imports one entry whose fields are overwritten: "column=value" each. "" = imported.
  std::string Take(const std::vector<std::pair<std::string, std::string>>& changed) {
    std::vector<std::pair<std::string, std::string>> row = {
        {"CompCode", "K3"}, {"fDate", "2024-03-05"}, {"fType2", "1"},
        {"fAcntNo", "N1"},  {"fMoneyA", "10"},       {"fMoneyB", "4"}};
    for (const auto& change : changed) {
      const auto same = [&](const auto& field) { return field.first == change.first; };
      const auto found = std::find_if(row.begin(), row.end(), same);
      if (found == row.end()) {
        row.push_back(change);
      } else {
        found->second = change.second;
      }
    }
    std::string header, fields;
    for (const auto& [name, value] : row) {
      header += (header.empty() ? "" : ",") + name;
      fields += (fields.empty() ? "\"" : ",\"") + value + "\"";
    }
    Import(header + "\n" + fields + "\n");
    return refusals_.empty() ? "" : refusals_.substr(3, refusals_.size() - 4);
  }
};

TEST_F(EntryImportTest, WritesEveryColumnOfAnEntry) {
  Import(
      "编号,日期,收付,票号,期初,应收应付金额,实收实付金额,摘要,相关单号,订单号,登录人,经办人,"
      "审核人,"
      "货币,汇率\n"
      "K3,2024-3-5,应付,N1,1,\"1,000.50\",-4,摘要文字,D1,O1,王五,赵六,钱七,usd,7.25\n");
  EXPECT_EQ(refusals_, "");
  EXPECT_EQ(Rows("select * from tAccountDetail"),
            "1|2024-03-05|3|0|2|N1|1|1000.5|-4|摘要文字|D1|O1|王五|赵六|钱七|0|USD|7.25\n");
}

TEST_F(EntryImportTest, FillsWhatIsMissingAsANewEntryHasIt) {
  Import("CompCode,fDate,fType2,fAcntNo,fMoneyB\nK3,2024-03-05,1,N1,4\n");
  EXPECT_EQ(Rows("select * from tAccountDetail"), "1|2024-03-05|3|0|1|N1|0|0|4|||||||0|RMB|1\n");
  EXPECT_EQ(One("select count(*) from tAccountDetail where fChecker='' and fBrief=''"), "1");
}

TEST_F(EntryImportTest, WritesAccountEntriesIntoTheLedgerOfTheAccounts) {
  options_.ledger = 1;
  EXPECT_EQ(Take({{"CompCode", "0001"}, {"fMoneyA", "0"}}), "");
  EXPECT_EQ(Rows("select fCompID,fType1,fMoneyA,fMoneyB from tAccountDetail"), "7|1|0|4\n");
}

TEST_F(EntryImportTest, KeepsTheFirstAmountOfAnAccountForOpeningBalances) {
  options_.ledger = 1;
  EXPECT_EQ(Take({{"CompCode", "0001"}}),
            "fMoneyA of a money account belongs to opening balances alone");
  EXPECT_EQ(Take({{"CompCode", "0001"}, {"fInit", "1"}}), "");
}

TEST_F(EntryImportTest, FindsTheRecordByIdByCodeAndByName) {
  EXPECT_EQ(Take({{"fCompID", "4"}, {"CompCode", "K3"}}), "");
  EXPECT_EQ(Take({{"CompCode", "k4"}}), "");
  EXPECT_EQ(Take({{"CompCode", ""}, {"compname", "甲"}}), "");
  EXPECT_EQ(Rows("select fCompID from tAccountDetail order by fID"), "4\n4\n3\n");
}

TEST_F(EntryImportTest, RefusesARecordThatIsNotThereOrNotTheOnlyOne) {
  EXPECT_EQ(Take({{"fCompID", "9"}}), "no record has the id 9");
  EXPECT_EQ(Take({{"fCompID", "x"}}), "fCompID is no whole number: x");
  EXPECT_EQ(Take({{"CompCode", "K9"}}), "no record has the code K9");
  EXPECT_EQ(Take({{"CompCode", ""}, {"compname", "丙"}}), "no record has the name 丙");
  EXPECT_EQ(Take({{"CompCode", ""}, {"compname", "乙"}}), "several records have the name 乙");
  EXPECT_EQ(Take({{"CompCode", ""}}), "nothing says whose entry it is");
  EXPECT_EQ(One("select count(*) from tAccountDetail"), "0");
}

TEST_F(EntryImportTest, RefusesWhatCannotBeRead) {
  EXPECT_EQ(Take({{"fDate", "2024-02-30"}}),
            "fDate is refused, it is no day of the calendar: 2024-02-30");
  EXPECT_EQ(Take({{"fDate", "3/4/2024"}}),
            "fDate is refused, it could be month/day or day/month: 3/4/2024");
  EXPECT_EQ(Take({{"fDate", ""}}), "fDate is empty");
  EXPECT_EQ(Take({{"fType2", "3"}}), "fType2 is neither 1 nor 2: 3");
  EXPECT_EQ(Take({{"fAcntNo", ""}}), "fAcntNo is empty");
  EXPECT_EQ(Take({{"fInit", "2"}}), "fInit is neither 0 nor 1: 2");
  EXPECT_EQ(Take({{"fMoneyA", "1234,50"}}), "fMoneyA is no amount: 1234,50");
  EXPECT_EQ(Take({{"fMoneyB", "4元"}}), "fMoneyB is no amount: 4元");
  EXPECT_EQ(Take({{"fMoneyA", ""}, {"fMoneyB", ""}}), "it has no amount");
  EXPECT_EQ(Take({{"fMoneyRate", "0"}}), "fMoneyRate must be above zero: 0");
  EXPECT_EQ(Take({{"fAcntNo", "123456789012345678901"}}),
            "fAcntNo has 21 bytes, 20 fit: 123456789012345678901");
  EXPECT_EQ(One("select count(*) from tAccountDetail"), "0");
}

TEST_F(EntryImportTest, TakesAnAmountOfZeroThatIsWritten) {
  EXPECT_EQ(Take({{"fMoneyA", "0.00"}, {"fMoneyB", "0.00"}}), "");
}

TEST_F(EntryImportTest, ReadsAmbiguousDatesInTheOrderGiven) {
  options_.dates = DateOrder::DayFirst;
  EXPECT_EQ(Take({{"fDate", "3/4/2024"}}), "");
  EXPECT_EQ(One("select fDate from tAccountDetail"), "2024-04-03");
}

TEST_F(EntryImportTest, TakesTheRateOfTheCurrencyTableUnlessTheRowHasItsOwn) {
  EXPECT_EQ(Take({{"fMoneyCode", "USD"}}), "");
  EXPECT_EQ(Take({{"fMoneyCode", "USD"}, {"fMoneyRate", "7.3"}}), "");
  EXPECT_EQ(Rows("select fMoneyRate from tAccountDetail"), "7.1\n7.3\n");
}

TEST_F(EntryImportTest, RefusesACurrencyThatTheTableLacks) {
  EXPECT_EQ(Take({{"fMoneyCode", "GBP"}}), "fMoneyCode is not in the currency table: GBP");
}

TEST_F(EntryImportTest, AddsACurrencyBehindTheOthersWhenAskedTo) {
  options_.add_currencies = true;
  EXPECT_EQ(Take({{"fMoneyCode", "GBP"}, {"fMoneyRate", "9.1"}}), "");
  EXPECT_EQ(Take({{"fMoneyCode", "gbp"}}), "");
  EXPECT_EQ(Rows("select MoneyCode,MoneyRate from Moneys order by MoneyType desc"),
            "RMB|1\nUSD|7.1\nGBP|9.1\n");
  EXPECT_EQ(Rows("select fMoneyCode,fMoneyRate from tAccountDetail"), "GBP|9.1\nGBP|9.1\n");
}

TEST_F(EntryImportTest, AsksForACurrencyWhereThereIsNone) {
  session_->NativeScript("delete from Moneys");
  EXPECT_EQ(Take({}), "fMoneyCode is empty, and there is no currency to fall back on");
}

TEST_F(EntryImportTest, FindsARecordWhoseNameHasAReplacedQuote) {
  session_->NativeScript("insert into cards (fID,CompCode,compname) values (9,'K9','O’Neil')");
  EXPECT_EQ(Take({{"CompCode", ""}, {"compname", "O'Neil"}}), "");
}

TEST_F(EntryImportTest, FailsAsAWholeWhenNothingSaysWhoseEntriesTheyAre) {
  EXPECT_TRUE(Failure("fDate,fType2,fAcntNo,fMoneyA\n").starts_with("Nothing says whose entries"));
}

TEST_F(EntryImportTest, TellsHowFarItIs) {
  std::string text = "CompCode,fDate,fType2,fAcntNo,fMoneyB\n";
  for (int i = 0; i < 2500; ++i) text += "K3,2024-03-05,1,N1,4\n";
  std::vector<int64_t> told;
  ImportCsv(
      *session_, text, options_, [](const Refusal&) {},
      [&](int64_t done, int64_t all) {
        EXPECT_EQ(all, static_cast<int64_t>(text.size()));
        told.push_back(done);
      });
  EXPECT_EQ(told.size(), 2u);
}

}  // namespace
}  // namespace qvzj::imports
