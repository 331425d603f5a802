#include <gtest/gtest.h>

#include "adapters/dialect/translate.h"
#include "tests/adapters/dialect/suite_schema.h"

// The module's statements of the server dialect as PostgreSQL gets them, where they differ.
namespace qvzj::dialect {
namespace {

std::string Postgres(std::string_view statement) {
  return Translate(statement, PostgresTarget("zh"), test::SuiteSchema()).text;
}

TEST(PostgresStatements, NeedNoTranslationWithoutTextsDatesOrOrder) {
  for (const char* statement :
       {"select count(*) from tAccountDetail Where 1=2",
        "select count(*) from tAccountDetail Where fType1=1 and fID2=7 And fChecker<>''",
        "select count(*) from tJXC_CkDj01 Where fKhID=5", "select max(fID) from cards",
        "Update tAccountDetail Set fChecker='Admin' Where fID=12",
        "Delete from tAccountDetail Where fType1=1 and fID2=12",
        "Update cards Set CompCode='A1',compname='Abc\\',fType0=1 Where fID=5",
        "select a.detail from cards a Where a.fID=5"}) {
    EXPECT_EQ(Postgres(statement), statement);
  }
}

TEST(PostgresStatements, UpgradeOfTheLedger) {
  EXPECT_EQ(Postgres("AlTER TABLE tAccountDetail add Column [fID2] long"),
            "ALTER TABLE tAccountDetail ADD COLUMN IF NOT EXISTS fID2 integer");
}

TEST(PostgresStatements, Lists) {
  EXPECT_EQ(Postgres("Select MoneyCode,0 as aa from Moneys Order By MoneyType desc"),
            "Select MoneyCode,0 as aa from Moneys Order By MoneyType desc NULLS LAST");
  EXPECT_EQ(Postgres("select employee from Employees Order By employee"),
            "select employee from Employees Order By employee COLLATE zh NULLS FIRST");
  EXPECT_EQ(Postgres("select * from tJXC_InvSet where fSetNo=51 And fSetNoUse_<>1 Order by fRowID"),
            "select * from tJXC_InvSet where fSetNo=51 And fSetNoUse_<>1 "
            "Order by fRowID NULLS FIRST");
}

TEST(PostgresStatements, TextComparisons) {
  EXPECT_EQ(Postgres("Select MoneyRate from Moneys where MoneyCode='USD'"),
            "Select MoneyRate from Moneys where lower(MoneyCode COLLATE \"C\")='usd'");
  EXPECT_EQ(Postgres("select count(*) from tJXC_CkDj01 Where fInvNo='CK001' And "
                     "(not fInvSHR is null) And fInvSHR<>''"),
            "select count(*) from tJXC_CkDj01 Where lower(fInvNo COLLATE \"C\")='ck001' And "
            "(not fInvSHR is null) And fInvSHR<>''");
}

TEST(PostgresStatements, NextNumber) {
  EXPECT_EQ(
      Postgres("select max(SUBSTRING(fAcntNo,9,5)) as invID from tAccountDetail where "
               "left(fAcntNo,8)='200303PZ' and IsNumeric(SUBSTRING(fAcntNo,9,5))=1"),
      "select (select substr(fAcntNo,9,5) from tAccountDetail where "
      "(lower(fAcntNo COLLATE \"C\")>='200303pz' and lower(fAcntNo COLLATE \"C\")<'200303p{') and "
      "(CASE WHEN substr(fAcntNo,9,5) ~ "
      "'^ *[-+]?([0-9]+[.]?[0-9]*|[.][0-9]+)([eEdD][-+]?[0-9]+)? *$' THEN 1 ELSE 0 END)=1 "
      "order by lower(fAcntNo COLLATE \"C\") desc limit 1) as invID");
}

TEST(PostgresStatements, AConditionThatIsOnlyIsNumericBecomesAComparison) {
  const std::string translated = Postgres("select 1 from cards where IsNumeric(CompCode)");
  EXPECT_EQ(translated.substr(translated.size() - 7), " END)=1");
}

TEST(PostgresStatements, RegisterListIsOrderedOutsideItsDistinctRows) {
  const std::string fields = "select distinct a.CompCode,a.compname,a.fID";
  EXPECT_EQ(Postgres(fields + " from cards a Where 1=1 And a.compname like '%Ab\\%' "
                              "Order By a.CompCode"),
            "select * from (" + fields +
                " from cards a Where 1=1 And a.compname COLLATE \"C\" ILIKE '%Ab\\%' ESCAPE '') "
                "as qv_rows Order By CompCode COLLATE zh NULLS FIRST");
  EXPECT_EQ(Postgres(fields + " from cards a Right Join tAccountDetail b On a.fID=b.fCompID Where "
                              "b.fType1=0 and b.fDate>='03/01/2024' Order By a.compname"),
            "select * from (" + fields +
                " from tAccountDetail b Left Join cards a On a.fID=b.fCompID Where "
                "b.fType1=0 and b.fDate>=DATE '2024-03-01') as qv_rows "
                "Order By compname COLLATE zh NULLS FIRST");
}

TEST(PostgresStatements, EntrySave) {
  EXPECT_EQ(
      Postgres("Insert Into tAccountDetail (fDate,fBrief) Values ('03/15/2003','03/15/2003')"),
      "Insert Into tAccountDetail (fDate,fBrief) Values (DATE '2003-03-15','03/15/2003')");
  EXPECT_EQ(Postgres("Update tAccountDetail Set fDate='03/15/2003',fBrief='Abc' Where fID=12"),
            "Update tAccountDetail Set fDate=DATE '2003-03-15',fBrief='Abc' Where fID=12");
}

TEST(PostgresStatements, Ledger) {
  EXPECT_EQ(
      Postgres("Select b.fDate,a.CompName From cards a Right Join tAccountDetail b "
               "On b.fCompID=a.fID Where b.fType1=0 And fMoneyCode='RMB' and "
               "b.fDate>='03/01/2024' And b.fAcntNo like '2024%' And a.fID=5 "
               "Order By a.CompCode,a.CompName,b.fDate,b.fAcntNo"),
      "Select b.fDate,a.CompName From tAccountDetail b Left Join cards a "
      "On b.fCompID=a.fID Where b.fType1=0 And lower(fMoneyCode COLLATE \"C\")='rmb' and "
      "b.fDate>=DATE '2024-03-01' And b.fAcntNo COLLATE \"C\" ILIKE '2024%' ESCAPE '' And a.fID=5 "
      "Order By a.CompCode COLLATE zh NULLS FIRST,a.CompName COLLATE zh NULLS FIRST,"
      "b.fDate NULLS FIRST,b.fAcntNo COLLATE zh NULLS FIRST");
}

}  // namespace
}  // namespace qvzj::dialect
