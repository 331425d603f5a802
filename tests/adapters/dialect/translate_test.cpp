#include "adapters/dialect/translate.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "platform/basic/errors.h"
#include "tests/adapters/dialect/suite_schema.h"

// Rules of the translation that no single statement of the module shows in full.
namespace qvzj::dialect {
namespace {

/// The statement as SQLite gets it, ordered by the collation "zh".
std::string Sqlite(std::string_view statement) {
  return Translate(statement, SqliteTarget("zh"), test::SuiteSchema()).text;
}

std::string TransactSql(std::string_view statement) {
  return Translate(statement, TransactSqlTarget(), test::SuiteSchema()).text;
}

TEST(Translation, NeverLooksIntoATextLiteral) {
  const std::string statement =
      "Update cards Set detail='mid( left(a,1)=#1/2/2003# & [x] Right Join -- ; ''q''' Where fID=1";
  EXPECT_EQ(Sqlite(statement), statement);
}

/// A ledger of old: the link is not there yet.
struct OldLedger : test::SuiteSchema {
  ColumnType TypeOf(std::string_view table, std::string_view column) const override {
    if (column == "fID2") return ColumnType::Unknown;
    return test::SuiteSchema::TypeOf(table, column);
  }
};

std::string OnOldLedger(std::string_view statement) {
  return Translate(statement, SqliteTarget(""), OldLedger()).text;
}

TEST(Translation, ReadsALinkThatIsNotThereYetAsNull) {
  EXPECT_EQ(OnOldLedger("Select b.fID,b.fID2 From tAccountDetail b"),
            "Select b.fID,cast(null as integer) as fID2 From tAccountDetail b");
  EXPECT_EQ(OnOldLedger("Select fID2,fID From tAccountDetail where fID=5"),
            "Select cast(null as integer) as fID2,fID From tAccountDetail where fID=5");
}

TEST(Translation, LeavesOutALinkThatIsNotThereYetWhereNoneIsWritten) {
  EXPECT_EQ(
      OnOldLedger("Insert Into tAccountDetail (fBrief,fID2,fMoneyA) Values (mid('a,b',1,3),0,-5)"),
      "Insert Into tAccountDetail (fBrief,fMoneyA) Values (substr('a,b',1,3),-5)");
  EXPECT_EQ(OnOldLedger("Insert Into tAccountDetail (fID2,fMoneyA) Values (Null,5)"),
            "Insert Into tAccountDetail (fMoneyA) Values (5)");
  EXPECT_EQ(
      OnOldLedger("Update tAccountDetail Set fBrief='fID2=0',fID2=0,fMoneyRate=1 Where fID=5"),
      "Update tAccountDetail Set fBrief='fID2=0',fMoneyRate=1 Where fID=5");
}

TEST(Translation, KeepsWhatALedgerWithoutTheLinkMustRefuse) {
  for (const char* statement : {"select count(*) from tAccountDetail Where fID2>0",
                                "Update tAccountDetail Set fID2=3 Where fID=5",
                                "Insert Into tAccountDetail (fID2,fMoneyA) Values (3,5)",
                                "Delete from tAccountDetail Where fType1=1 and fID2=5"}) {
    EXPECT_EQ(OnOldLedger(statement), statement);
  }
  EXPECT_EQ(Sqlite("Select b.fID2 From tAccountDetail b"), "Select b.fID2 From tAccountDetail b");
}

TEST(Translation, KeepsATextColumnThatHoldsADateAsTyped) {
  EXPECT_EQ(Sqlite("Update tAccountDetail Set fBrief='03/15/2003',fDate='03/15/2003' Where fID=1"),
            "Update tAccountDetail Set fBrief='03/15/2003',fDate='2003-03-15' Where fID=1");
  EXPECT_EQ(Sqlite("Insert Into tAccountDetail (fBrief,fDate) Values ('03/15/2003','03/15/2003')"),
            "Insert Into tAccountDetail (fBrief,fDate) Values ('03/15/2003','2003-03-15')");
  EXPECT_EQ(Sqlite("select 1 from tAccountDetail where fBrief='03/15/2003'"),
            "select 1 from tAccountDetail where fBrief='03/15/2003'");
}

TEST(Translation, ReadsTheSameDateInEveryLiteralForm) {
  for (const char* written : {"#03/15/2003#", "'03/15/2003'", "#3/15/2003#", "'2003-03-15'"}) {
    EXPECT_EQ(Sqlite(std::string("select 1 from tAccountDetail b where b.fDate<=") + written),
              "select 1 from tAccountDetail b where b.fDate<='2003-03-15'");
  }
}

TEST(Translation, ReadsADateOnEitherSideOfAComparisonAndInRangesAndLists) {
  EXPECT_EQ(Sqlite("select 1 from tAccountDetail where '03/15/2003'<=fDate"),
            "select 1 from tAccountDetail where '2003-03-15'<=fDate");
  EXPECT_EQ(Sqlite("select 1 from tAccountDetail where fDate between '1/2/2003' and '2/3/2003'"),
            "select 1 from tAccountDetail where fDate between '2003-01-02' and '2003-02-03'");
  EXPECT_EQ(Sqlite("select 1 from tAccountDetail where fDate not in ('1/2/2003','2/3/2003')"),
            "select 1 from tAccountDetail where fDate not in ('2003-01-02','2003-02-03')");
}

TEST(Translation, PairsInsertedValuesWithTheirColumnsPastCallsAndSigns) {
  EXPECT_EQ(Sqlite("Insert Into tAccountDetail (fMoneyA,fBrief,fDate) "
                   "Values (-1.5,mid('a,b',1,3),'01/31/2024')"),
            "Insert Into tAccountDetail (fMoneyA,fBrief,fDate) "
            "Values (-1.5,substr('a,b',1,3),'2024-01-31')");
}

TEST(Translation, RefusesADateThatIsNone) {
  EXPECT_THROW(Sqlite("select 1 from tAccountDetail where fDate=#13/45/2003#"), DataError);
  EXPECT_THROW(Sqlite("Update tAccountDetail Set fDate='soon' Where fID=1"), DataError);
  EXPECT_THROW(Sqlite("Update tAccountDetail Set fDate='' Where fID=1"), DataError);
}

TEST(Translation, FindsTheDateColumnThroughAnAliasOfEitherSpelling) {
  EXPECT_EQ(Sqlite("select 1 from taccountdetail as B where b.FDATE='3/1/2003'"),
            "select 1 from taccountdetail as B where b.FDATE='2003-03-01'");
  EXPECT_EQ(Sqlite("select 1 from [tAccountDetail] where [tAccountDetail].[fDate]='3/1/2003'"),
            "select 1 from [tAccountDetail] where [tAccountDetail].[fDate]='2003-03-01'");
}

TEST(Translation, RefusesTextAfterTheStatementsEnd) {
  EXPECT_THROW(Sqlite("select 1; delete from cards"), DataError);
  EXPECT_THROW(TransactSql("select 1; delete from cards"), DataError);
  EXPECT_EQ(Sqlite("select 1 ; "), "select 1");
}

TEST(Translation, RefusesALiteralWithoutAnEnd) {
  EXPECT_THROW(Sqlite("Update cards Set name='O'Neil' Where fID=1"), DataError);
  EXPECT_THROW(Sqlite("select [fID from cards"), DataError);
  EXPECT_THROW(Sqlite("select 1 where fDate>#03/15"), DataError);
}

TEST(Translation, KnowsNoComments) {
  EXPECT_EQ(Sqlite("Update cards Set fType0=1--2 Where fID=5"),
            "Update cards Set fType0=1- -2 Where fID=5");
}

TEST(Translation, ComparesTextsWithoutAsciiCase) {
  EXPECT_EQ(Sqlite("select 1 from cards where compname='Abc' and CompCode<>'x1'"),
            "select 1 from cards where compname='Abc' COLLATE NOCASE and "
            "CompCode<>'x1' COLLATE NOCASE");
  EXPECT_EQ(Sqlite("select 1 from cards where 'Abc'=compname"),
            "select 1 from cards where 'Abc' COLLATE NOCASE=compname");
  EXPECT_EQ(Sqlite("select 1 from cards where mid(compname,2,1)='b'"),
            "select 1 from cards where substr(compname,2,1)='b' COLLATE NOCASE");
  EXPECT_EQ(Sqlite("select 1 from cards where CompCode>='5'"),
            "select 1 from cards where CompCode>='5' COLLATE NOCASE");
}

TEST(Translation, LeavesComparisonsAloneThatNoCaseCanChange) {
  for (const char* statement :
       {"select 1 from cards where compname='招商银行'", "select 1 from cards where CompCode=''",
        "select 1 from cards where fType0='5'", "select 1 from cards where fID=5"}) {
    EXPECT_EQ(Sqlite(statement), statement);
  }
}

TEST(Translation, NeverTakesAnAssignmentForAComparison) {
  EXPECT_EQ(Sqlite("Update cards Set compname='Abc' Where compname='Abd'"),
            "Update cards Set compname='Abc' Where compname='Abd' COLLATE NOCASE");
}

TEST(Translation, TurnsAStemIntoARangeThatIgnoresCase) {
  EXPECT_EQ(Sqlite("select 1 from tAccountDetail where left(fAcntNo,3)='ABZ'"),
            "select 1 from tAccountDetail where (fAcntNo>='abz' COLLATE NOCASE and "
            "fAcntNo<'ab{' COLLATE NOCASE)");
}

TEST(Translation, StepsOverTheCapitalsBehindAStemThatEndsInAnAtSign) {
  // "@" is followed by "A" to "Z", which compare as "a" to "z", beyond "[" to "`".
  EXPECT_EQ(Sqlite("select 1 from cards where left(CompCode,2)='x@'"),
            "select 1 from cards where (CompCode>='x@' COLLATE NOCASE and "
            "CompCode<'x[' COLLATE NOCASE)");
}

TEST(Translation, EndsTheRangeOfAChineseStemAtTheNextCharacter) {
  EXPECT_EQ(Sqlite("select 1 from cards where left(compname,2)='中文'"),
            "select 1 from cards where (compname>='中文' COLLATE NOCASE and "
            "compname<'中斈' COLLATE NOCASE)");
}

TEST(Translation, KeepsAStemRangeOpenWhenNoTextCanFollow) {
  EXPECT_EQ(Sqlite("select 1 from cards where left(compname,1)='\U0010FFFF'"),
            "select 1 from cards where (compname>='\U0010FFFF' COLLATE NOCASE)");
  EXPECT_EQ(Sqlite("select 1 from cards where left(compname,0)=''"),
            "select 1 from cards where (compname>='' COLLATE NOCASE)");
}

TEST(Translation, ComparesTheBeginningWhereTheStemHasAnotherLength) {
  EXPECT_EQ(Sqlite("select 1 from cards where left(compname,3)='ab'"),
            "select 1 from cards where substr(compname,1,3)='ab' COLLATE NOCASE");
  EXPECT_EQ(Sqlite("select left(compname,3) from cards"), "select substr(compname,1,3) from cards");
}

TEST(Translation, JoinsNullAsTheEmptyText) {
  EXPECT_EQ(Sqlite("select a.name & '-' & mid(a.others,1,2) from cards a"),
            "select coalesce(a.name,'') || '-' || coalesce(substr(a.others,1,2),'') from cards a");
}

TEST(Translation, SwapsARightJoinOnlyBetweenTwoTables) {
  EXPECT_EQ(Sqlite("Select a.fID From cards a Right Join tAccountDetail b On b.fCompID=a.fID"),
            "Select a.fID From tAccountDetail b Left Join cards a On b.fCompID=a.fID");
  EXPECT_EQ(Sqlite("Select 1 From cards Right Outer Join tAccountDetail On fCompID=cards.fID"),
            "Select 1 From tAccountDetail Left Join cards On fCompID=cards.fID");
  const char* three = "Select 1 From a, b Right Join c On b.x=c.x";
  EXPECT_EQ(Sqlite(three), three);
}

TEST(Translation, OrdersTextsByTheReadersLanguageAndLeavesOtherKeys) {
  EXPECT_EQ(Sqlite("select * from cards order by compname desc, fID asc,[CompCode]"),
            "select * from cards order by compname COLLATE zh desc, fID asc,[CompCode] COLLATE zh");
}

TEST(Translation, SurvivesEveryBrokenStatement) {
  const std::vector<std::string> pieces = {"select",    "max",     "(",
                                           ")",         "mid",     "left",
                                           "IsNumeric", "fAcntNo", "tAccountDetail",
                                           "from",      "where",   "and",
                                           "=",         "<>",      "&",
                                           "'ab'",      "''",      "#1/2/2003#",
                                           "#x#",       "1",       ",",
                                           ".",         "b",       "[fDate]",
                                           "like",      "not",     "order",
                                           "by",        "desc",    "distinct",
                                           "Right",     "Join",    "On",
                                           "update",    "set",     "insert",
                                           "into",      "values",  "fDate",
                                           "between",   "in",      "alter",
                                           "table",     "add",     "Column",
                                           "long",      "-",       ";",
                                           "'",         "[",       "a.CompCode"};
  std::mt19937 random(7);
  std::uniform_int_distribution<size_t> piece(0, pieces.size() - 1);
  std::uniform_int_distribution<int> length(0, 25);
  int translated = 0;
  for (int round = 0; round < 30000; ++round) {
    std::string statement;
    for (int i = length(random); i > 0; --i) statement += pieces[piece(random)] + " ";
    for (const Target& target : {SqliteTarget("zh"), PostgresTarget("zh"), TransactSqlTarget()}) {
      try {
        Translate(statement, target, test::SuiteSchema());
        ++translated;
      } catch (const DataError&) {
        // Refused in words, as it should be.
      }
    }
  }
  EXPECT_GT(translated, 0);
}

TEST(Translation, LeavesTheServersOwnDialectToTheServer) {
  const char* statement =
      "select max(SUBSTRING(fAcntNo,9,5)) as invID from tAccountDetail where "
      "left(fAcntNo,8)='200303PZ' and IsNumeric(SUBSTRING(fAcntNo,9,5))=1";
  EXPECT_EQ(TransactSql(statement), statement);
}

TEST(Translation, AddsAColumnOnAServerOnlyWhereItIsMissing) {
  EXPECT_EQ(TransactSql("AlTER TABLE tAccountDetail add Column [fID2] long"),
            "IF COL_LENGTH('tAccountDetail','fID2') IS NULL ALTER TABLE tAccountDetail "
            "ADD fID2 int");
}

}  // namespace
}  // namespace qvzj::dialect
