#include "tests/adapters/contract/contract.h"

#include "platform/basic/text.h"
#include "platform/data/errors.h"

namespace qvzj::test {

using basic::Column;

void SessionContract::SetUp() {
  const std::string missing = GetParam().missing();
  if (!missing.empty()) GTEST_SKIP() << missing;
  database = GetParam().make();
  session = database->Open();
}

std::string SessionContract::Column(const std::string& statement) {
  data::Recordset set = Open(statement);
  std::string joined;
  for (bool first = true; !set.Eof(); set.MoveNext(), first = false) {
    if (!first) joined += '|';
    joined += set.IsNull(0) ? "NULL" : set.Text(0);
  }
  return joined;
}

std::string SessionContract::Date(const std::string& month_day_year) const {
  return GetParam().desktop ? "#" + month_day_year + "#" : "'" + month_day_year + "'";
}

void SessionContract::AddEntry(int customer, const std::string& date, const std::string& number) {
  Do("Insert Into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
     "fBrief,fChecker,fMoneyCode,fMoneyRate) Values ('" +
     date + "'," + std::to_string(customer) + ",0,1,'" + number + "',0,100,30.5,'','','RMB',1)");
}

void SessionContract::AddCustomer(int id, const std::string& code, const std::string& name) {
  Do("Insert Into cards (CompCode,compname,fID,fType0) Values ('" + code + "','" + name + "'," +
     std::to_string(id) + ",0)");
}

std::string SessionContract::NextNumber(const std::string& stem, int width) const {
  const std::string length = std::to_string(basic::Len(stem));
  const std::string call = std::string(GetParam().desktop ? "mid" : "SUBSTRING") + "(fAcntNo," +
                           std::to_string(basic::Len(stem) + 1) + "," + std::to_string(width) + ")";
  return "select max(" + call + ") as invID from tAccountDetail where left(fAcntNo," + length +
         ")='" + stem + "' and IsNumeric(" + call + ")" + (GetParam().desktop ? "" : "=1");
}

TEST_P(SessionContract, KeepsADateWrittenMonthFirstAsADate) {
  AddEntry(5, "03/15/2003", "A1");
  data::Recordset set = Open("select fDate from tAccountDetail");
  ASSERT_EQ(set.RecordCount(), 1);
  EXPECT_EQ(set.ColumnAt(0).GetKind(), Column::Kind::Date);
  EXPECT_EQ(set.Text(0), "2003-03-15");
}

TEST_P(SessionContract, ComparesDatesAsDatesAndNotAsTexts) {
  AddEntry(5, "12/31/2002", "old");
  AddEntry(5, "01/01/2003", "first");
  AddEntry(5, "11/30/2003", "last");
  EXPECT_EQ(Column("select fAcntNo from tAccountDetail b Where b.fDate>=" + Date("01/01/2003") +
                   " And b.fDate<=" + Date("11/30/2003") + " Order By b.fDate"),
            "first|last");
}

TEST_P(SessionContract, LeavesATextThatLooksLikeADateAsTyped) {
  AddCustomer(1, "03/15/2003", "甲");
  EXPECT_EQ(Column("select CompCode from cards where CompCode='03/15/2003'"), "03/15/2003");
}

TEST_P(SessionContract, RefusesADateThatIsNone) {
  EXPECT_THROW(AddEntry(5, "02/30/2003", "A1"), DataError);
  EXPECT_EQ(Column("select count(*) from tAccountDetail"), "0");
}

TEST_P(SessionContract, ComparesTextsWithoutRegardToAsciiCase) {
  AddCustomer(1, "Ab", "甲");
  EXPECT_EQ(Column("select fID from cards where CompCode='aB'"), "1");
  EXPECT_EQ(Column("select fID from cards where CompCode<>'aB'"), "");
}

TEST_P(SessionContract, MatchesPatternsWithoutRegardToAsciiCase) {
  AddCustomer(1, "Abc", "甲");
  AddCustomer(2, "xbz", "乙");
  EXPECT_EQ(Column("select fID from cards where CompCode like 'aB%'"), "1");
  EXPECT_EQ(Column("select fID from cards where CompCode like '_B_' Order By fID"), "1|2");
  EXPECT_EQ(Column("select fID from cards where CompCode like 'b'"), "");
}

TEST_P(SessionContract, KnowsNoWildcardsOtherThanPercentAndUnderscore) {
  AddCustomer(1, "a\\%b", "甲");
  AddCustomer(2, "a*b", "乙");
  AddCustomer(3, "a[c]b", "丙");
  EXPECT_EQ(Column("select fID from cards where CompCode like 'a\\%b'"), "1");
  EXPECT_EQ(Column("select fID from cards where CompCode like 'a*b'"), "2");
  EXPECT_EQ(Column("select fID from cards where CompCode like 'a[c]b'"), "3");
}

TEST_P(SessionContract, MatchesTheEmptyPatternOnlyWithTheEmptyText) {
  AddCustomer(1, "", "甲");
  AddCustomer(2, "x", "乙");
  EXPECT_EQ(Column("select fID from cards where CompCode like ''"), "1");
}

TEST_P(SessionContract, ExcludesNullFromEveryPattern) {
  Do("Insert Into cards (compname,fID) Values ('甲',1)");
  EXPECT_EQ(Column("select fID from cards where CompCode like '%'"), "");
}

TEST_P(SessionContract, OrdersChineseByPinyinBetweenDigitsAndLatinLetters) {
  int id = 0;
  for (const char* name : {"张三", "b", "李四", "1", "阿明", "A", "王五"}) {
    AddCustomer(++id, "", name);
  }
  EXPECT_EQ(Column("select compname from cards Order By compname"), "1|阿明|李四|王五|张三|A|b");
}

TEST_P(SessionContract, OrdersNullsBeforeEverythingElse) {
  AddCustomer(1, "a", "甲");
  Do("Insert Into cards (fID,fType0) Values (2,null)");
  EXPECT_EQ(Column("select fID from cards Order By CompCode"), "2|1");
  EXPECT_EQ(Column("select fID from cards Order By CompCode desc"), "1|2");
  EXPECT_EQ(Column("select fID from cards Order By fType0"), "2|1");
}

TEST_P(SessionContract, ListsALedgerEntryWhoseRegisterRecordIsGone) {
  AddCustomer(5, "0001", "甲公司");
  AddEntry(5, "03/15/2003", "A1");
  AddEntry(17, "03/16/2003", "A2");
  data::Recordset set = Open(
      "Select b.fAcntNo,a.CompName,b.fCompID From cards a Right Join tAccountDetail b "
      "On b.fCompID=a.fID Where b.fType1=0 Order By a.CompCode,a.CompName,b.fDate,b.fAcntNo");
  ASSERT_EQ(set.RecordCount(), 2);
  EXPECT_EQ(set.Text("fAcntNo"), "A2");
  EXPECT_TRUE(set.IsNull(set.FieldIndex("COMPNAME")));
  set.MoveNext();
  EXPECT_EQ(set.Text("compname"), "甲公司");
}

TEST_P(SessionContract, ReadsTheLedgerOfOneRecordInDateOrder) {
  AddCustomer(5, "0001", "甲公司");
  AddCustomer(6, "0002", "乙公司");
  AddEntry(5, "12/01/2003", "A3");
  AddEntry(6, "03/15/2003", "B1");
  AddEntry(5, "03/15/2003", "A2");
  AddEntry(5, "03/15/2003", "A1");
  EXPECT_EQ(Column("Select b.fAcntNo From cards a Right Join tAccountDetail b On b.fCompID=a.fID "
                   "Where b.fType1=0 And fMoneyCode='rmb' And a.fID=5 "
                   "Order By a.CompCode,a.CompName,b.fDate,b.fAcntNo"),
            "A1|A2|A3");
}

TEST_P(SessionContract, ListsARegisterRecordOnceHoweverManyEntriesItHas) {
  AddCustomer(5, "0002", "甲公司");
  AddCustomer(6, "0001", "乙公司");
  AddCustomer(7, "0003", "丙公司");
  for (const char* number : {"A1", "A2", "A3"}) AddEntry(5, "03/15/2003", number);
  AddEntry(6, "03/15/2003", "B1");
  EXPECT_EQ(Column("select distinct a.CompCode,a.compname,a.fID from cards a Right Join "
                   "tAccountDetail b On a.fID=b.fCompID Where b.fType1=0 Order By a.CompCode"),
            "0001|0002");
  EXPECT_EQ(Column("select distinct a.compname,a.CompCode,a.fID from cards a Order By a.compname"),
            "丙公司|甲公司|乙公司");
}

TEST_P(SessionContract, FindsTheGreatestCounterUnderAStem) {
  for (const char* number : {"200303PZ00001", "200303PZ00017", "200304PZ00099", "200303PZ0000X",
                             "200303PZ", "200302PZ00044", "200303"}) {
    AddEntry(5, "03/15/2003", number);
  }
  data::Recordset set = Open(NextNumber("200303PZ", 5));
  ASSERT_FALSE(set.Eof());
  EXPECT_EQ(set.Text("InvID"), "00017");
}

TEST_P(SessionContract, TakesAStemWithoutRegardToAsciiCase) {
  AddEntry(5, "03/15/2003", "pz007");
  AddEntry(5, "03/15/2003", "PZ003");
  EXPECT_EQ(Column(NextNumber("Pz", 3)), "007");
}

TEST_P(SessionContract, FindsNoCounterUnderAnUnusedStem) {
  AddEntry(5, "03/15/2003", "PZ003");
  EXPECT_EQ(Column(NextNumber("PX", 3)), "NULL");
}

TEST_P(SessionContract, FindsTheCounterUnderEveryEndingOfAStem) {
  for (const char* stem : {"x@", "x[", "x%", "x_", "x`", "xZ", "xz{", "中", "x\\", "\U0010FFFF"}) {
    AddEntry(5, "03/15/2003", std::string(stem) + "05");
    AddEntry(5, "03/15/2003", std::string(stem) + "04");
    EXPECT_EQ(Column(NextNumber(stem, 2)), "05") << stem;
  }
}

TEST_P(SessionContract, FindsTheCounterOfATemplateThatIsAllCounter) {
  AddEntry(5, "03/15/2003", "0041");
  AddEntry(5, "03/15/2003", "PZ99");
  EXPECT_EQ(Column(NextNumber("", 4)), "0041");
}

TEST_P(SessionContract, FindsADocumentThatHasAChecker) {
  Do("Insert Into tJXC_CkDj01 (fID,fInvNo,fInvSHR) Values (1,'CK1',null)");
  Do("Insert Into tJXC_CkDj01 (fID,fInvNo,fInvSHR) Values (2,'CK2','')");
  Do("Insert Into tJXC_CkDj01 (fID,fInvNo,fInvSHR) Values (3,'CK3','李四')");
  const std::string checked =
      GetParam().desktop ? " And '' & fInvSHR<>''" : " And (not fInvSHR is null) And fInvSHR<>''";
  for (const auto& [number, count] : {std::pair{"CK1", "0"}, {"CK2", "0"}, {"ck3", "1"}}) {
    EXPECT_EQ(Column(std::string("select count(*) from tJXC_CkDj01 Where fInvNo='") + number + "'" +
                     checked),
              count);
  }
}

TEST_P(SessionContract, TakesAnAddedColumnThatIsThereAsDone) {
  Do("AlTER TABLE tAccountDetail add Column [fID2] long");
  Do("AlTER TABLE tAccountDetail add Column [fExtra] long");
  Do("AlTER TABLE tAccountDetail add Column [fExtra] long");
  AddEntry(5, "03/15/2003", "A1");
  Do("Update tAccountDetail Set fExtra=7 Where fID>0");
  EXPECT_EQ(Column("select fExtra from tAccountDetail"), "7");
}

TEST_P(SessionContract, TakesAColumnThatAnotherSessionAddedAsDone) {
  AddEntry(5, "03/15/2003", "A1");
  database->Open()->Execute("AlTER TABLE tAccountDetail add Column [fExtra] long");
  Do("AlTER TABLE tAccountDetail add Column [fExtra] long");
  EXPECT_EQ(Column("select count(*) from tAccountDetail Where fExtra>0"), "0");
}

TEST_P(SessionContract, ReadsNumbersAsNumbersToTheLastBit) {
  for (const char* amount : {"0.1", "-0.07", "123456789012.34", "0", "214044268.12"}) {
    AddEntry(5, "03/15/2003", "A");
    Do(std::string("Update tAccountDetail Set fMoneyA=") + amount +
       " Where fID=(select max(fID) from tAccountDetail)");
  }
  data::Recordset set = Open("select fMoneyA,fID,fType1 from tAccountDetail Order By fID");
  EXPECT_EQ(set.ColumnAt(0).GetKind(), Column::Kind::Real);
  EXPECT_EQ(set.ColumnAt(1).GetKind(), Column::Kind::Integer);
  const double* amounts = set.ColumnAt(0).Reals();
  EXPECT_EQ(amounts[0], 0.1);
  EXPECT_EQ(amounts[1], -0.07);
  EXPECT_EQ(amounts[2], 123456789012.34);
  EXPECT_EQ(amounts[3], 0.0);
  EXPECT_EQ(amounts[4], 214044268.12);
}

TEST_P(SessionContract, TellsTheEmptyTextFromNull) {
  Do("Insert Into cards (fID,CompCode) Values (1,'')");
  Do("Insert Into cards (fID,CompCode) Values (2,null)");
  EXPECT_EQ(Column("select CompCode from cards Order By fID"), "|NULL");
}

TEST_P(SessionContract, KeepsEveryCharacterOfALongText) {
  std::string text;
  for (int i = 0; i < 20000; ++i) text += "帐目😀\"\\%;--\t";
  AddCustomer(1, "1", "甲");
  Do("Update cards set detail='" + text + "' Where fID=1");
  EXPECT_EQ(Open("select a.detail from cards a Where a.fID=1").Text(0), text);
}

TEST_P(SessionContract, CountsTheRowsOfALargeAnswerExactly) {
  AddEntry(5, "03/15/2003", "A");
  int rows = 1;
  while (rows < 3000) {
    Do("Insert Into tAccountDetail (fCompID,fAcntNo) select fCompID,fAcntNo from tAccountDetail");
    rows *= 2;
  }
  data::Recordset set = Open("select fID,fAcntNo from tAccountDetail Order By fID");
  EXPECT_EQ(set.RecordCount(), rows);
  int seen = 0;
  for (; !set.Eof(); set.MoveNext()) ++seen;
  EXPECT_EQ(seen, rows);
}

TEST_P(SessionContract, AnswersNullForTheMaximumOfNothing) {
  EXPECT_EQ(Column("select max(fID) from cards"), "NULL");
}

TEST_P(SessionContract, NeverGivesTheIdOfADeletedEntryAgain) {
  AddEntry(5, "03/15/2003", "A1");
  AddEntry(5, "03/15/2003", "A2");
  const std::string last = Column("select max(fID) from tAccountDetail");
  Do("Delete from tAccountDetail Where fID=" + last);
  AddEntry(5, "03/15/2003", "A3");
  EXPECT_NE(Column("select max(fID) from tAccountDetail"), last);
}

TEST_P(SessionContract, SeesWhatAnotherSessionHasWritten) {
  AddEntry(5, "03/15/2003", "A1");
  auto other = database->Open();
  EXPECT_EQ(other->Query("select fAcntNo from tAccountDetail").Text(0), "A1");
  other->Execute("Delete from tAccountDetail Where fID>0");
  EXPECT_EQ(Column("select count(*) from tAccountDetail"), "0");
}

TEST_P(SessionContract, RunsExactlyOneStatementACall) {
  EXPECT_THROW(Do("Insert Into cards (fID) Values (1); Insert Into cards (fID) Values (2)"),
               DataError);
  EXPECT_EQ(Column("select count(*) from cards"), "0");
}

TEST_P(SessionContract, RefusesAnEmptyStatement) {
  EXPECT_THROW(Do(""), DataError);
  EXPECT_THROW(Do("  "), DataError);
}

TEST_P(SessionContract, SaysWhichTableIsMissingAndGoesOnWorking) {
  try {
    Open("select count(*) from tNoSuchTable");
    FAIL() << "a missing table went unnoticed";
  } catch (const DataError& error) {
    const std::string text = basic::Lower(error.what());
    EXPECT_NE(text.find("tnosuchtable"), std::string::npos) << text;
  }
  EXPECT_EQ(Column("select count(*) from cards"), "0");
}

TEST_P(SessionContract, TellsARowThatIsThereAlreadyFromEveryOtherRefusal) {
  Do("Insert Into tAccountDetail (fID,fAcntNo) Values (7,'A1')");
  try {
    Do("Insert Into tAccountDetail (fID,fAcntNo) Values (7,'A2')");
    FAIL() << "two rows with one id";
  } catch (const data::ConstraintError& error) {
    EXPECT_EQ(error.Broken(), data::Rule::Unique) << error.what();
  }
  try {
    Do("Insert Into tNoSuchTable (fID) Values (7)");
    FAIL() << "a missing table went unnoticed";
  } catch (const data::ConstraintError& error) {
    FAIL() << error.what();
  } catch (const DataError&) {
  }
  EXPECT_EQ(Column("select fAcntNo from tAccountDetail"), "A1");
}

TEST_P(SessionContract, RefusesABrokenStatementAndGoesOnWorking) {
  EXPECT_THROW(Do("Update cards Set compname='O'Neil' Where fID=1"), DataError);
  EXPECT_THROW(Do("Update cards Set fType0= Where fID=1"), DataError);
  EXPECT_THROW(Open("select from"), DataError);
  EXPECT_EQ(Column("select count(*) from cards"), "0");
}

}  // namespace qvzj::test
