#include <gtest/gtest.h>

#include "adapters/dialect/translate.h"
#include "tests/adapters/dialect/suite_schema.h"

// Every statement the module builds, as SQLite gets it.
namespace qvzj::dialect {
namespace {

std::string Sqlite(std::string_view statement) {
  return Translate(statement, SqliteTarget("zh"), test::SuiteSchema()).text;
}

/// The statement needs no translation.
void ExpectSame(std::string_view statement) { EXPECT_EQ(Sqlite(statement), statement); }

TEST(ModuleStatements, PresenceAndCounts) {
  ExpectSame("select count(*) from tAccountDetail Where 1=2");
  ExpectSame("select count(*) from tAccountDetail Where fID2>0");
  ExpectSame("select count(*) from tAccountDetail Where fID=12 And fType1=0");
  ExpectSame("select count(*) from tAccountDetail Where fCompID=5 And fType1=0");
  ExpectSame("select count(*) from tAccountDetail Where fType1=1 and fID2=7 And fChecker<>''");
  ExpectSame("select count(*) from tTaskList Where taskID=5 And fType=1");
  ExpectSame("select count(*) from tJXC_CkDj01 Where fKhID=5");
  ExpectSame("select count(*) from tJXC_CkHt01 Where fKhID=5");
  ExpectSame("select count(*) from tJXC_InvSet Where fSetNo=51");
  ExpectSame("select max(fID) from cards");
}

TEST(ModuleStatements, UpgradeOfTheLedger) {
  const Translation upgrade = Translate("AlTER TABLE tAccountDetail add Column [fID2] long",
                                        SqliteTarget("zh"), test::SuiteSchema());
  EXPECT_EQ(upgrade.text, "ALTER TABLE tAccountDetail ADD COLUMN fID2 INTEGER");
  ASSERT_TRUE(upgrade.added);
  EXPECT_EQ(upgrade.added->table, "tAccountDetail");
  EXPECT_EQ(upgrade.added->column, "fID2");
}

TEST(ModuleStatements, Lists) {
  ExpectSame("Select MoneyCode,0 as aa from Moneys Order By MoneyType desc");
  EXPECT_EQ(Sqlite("select employee from Employees Order By employee"),
            "select employee from Employees Order By employee COLLATE zh");
  EXPECT_EQ(Sqlite("select * from employees order by employcode"),
            "select * from employees order by employcode COLLATE zh");
  EXPECT_EQ(Sqlite("select fName from tRsBasic Order By fName"),
            "select fName from tRsBasic Order By fName COLLATE zh");
  EXPECT_EQ(Sqlite("select compname,fID from tAccounts Order By CompCode"),
            "select compname,fID from tAccounts Order By CompCode COLLATE zh");
  EXPECT_EQ(Sqlite("select compname,fID from tAccounts Order By compname"),
            "select compname,fID from tAccounts Order By compname COLLATE zh");
}

TEST(ModuleStatements, CurrencyRate) {
  EXPECT_EQ(Sqlite("Select MoneyRate from Moneys where MoneyCode='USD'"),
            "Select MoneyRate from Moneys where MoneyCode='USD' COLLATE NOCASE");
}

TEST(ModuleStatements, NumberTemplate) {
  ExpectSame("select * from tJXC_InvSet where fSetNo=51 And fSetNoUse_<>1 Order by fRowID");
}

constexpr const char* kNextNumber =
    "select (select substr(fAcntNo,9,5) from tAccountDetail where "
    "(fAcntNo>='200303pz' COLLATE NOCASE and fAcntNo<'200303p{' COLLATE NOCASE) and "
    "isnumeric(substr(fAcntNo,9,5)) order by fAcntNo COLLATE NOCASE desc limit 1) as invID";

TEST(ModuleStatements, NextNumberOfTheDesktopDialect) {
  EXPECT_EQ(Sqlite("select max(mid(fAcntNo,9,5)) as invID from tAccountDetail where "
                   "left(fAcntNo,8)='200303PZ' and IsNumeric(Mid(fAcntNo,9,5))"),
            kNextNumber);
}

TEST(ModuleStatements, NextNumberOfTheServerDialect) {
  EXPECT_EQ(Sqlite("select max(SUBSTRING(fAcntNo,9,5)) as invID from tAccountDetail where "
                   "left(fAcntNo,8)='200303PZ' and IsNumeric(SUBSTRING(fAcntNo,9,5))=1"),
            std::string(kNextNumber).replace(std::string(kNextNumber).find(" order by"), 0, "=1"));
}

TEST(ModuleStatements, FunctionGate) {
  ExpectSame("Select count(*) from tSysFunc Where 1=1");
  EXPECT_EQ(Sqlite("Select count(*) from tSysFunc Where model_name='mnuCardAdd'"),
            "Select count(*) from tSysFunc Where model_name='mnuCardAdd' COLLATE NOCASE");
  EXPECT_EQ(Sqlite("select SerialNo,model_Name,Model_Name_0,SecondPass,password from tSysFunc "
                   "Where NoUse_=0 And Model_Name = 'mnuCard' or Model_Name_0 = 'mnuCard'"),
            "select SerialNo,model_Name,Model_Name_0,SecondPass,password from tSysFunc "
            "Where NoUse_=0 And Model_Name = 'mnuCard' COLLATE NOCASE or "
            "Model_Name_0 = 'mnuCard' COLLATE NOCASE");
}

TEST(ModuleStatements, RegisterList) {
  const std::string fields =
      "select distinct a.CompCode,a.compname,a.name,a.fBank,a.fAcntID,a.others"
      ",a.province,a.cityname,a.postcode,a.telphone,a.fax,a.fType0,a.fID";
  EXPECT_EQ(Sqlite(fields + " from cards a Order By a.CompCode"),
            fields + " from cards a Order By a.CompCode COLLATE zh");
  EXPECT_EQ(Sqlite(fields + " from tAccounts a Where 1=1 And a.compname like '%银行%' "
                            "Order By a.compname"),
            fields +
                " from tAccounts a Where 1=1 And a.compname like '%银行%' "
                "Order By a.compname COLLATE zh");
  EXPECT_EQ(Sqlite(fields + " from cards a Right Join tAccountDetail b On a.fID=b.fCompID Where "
                            "b.fType1=0 and b.fDate>=#03/01/2024# And b.fChecker='' And 1=1 And "
                            "(a.fType0=0 Or a.fType0=2) Order By a.CompCode"),
            fields +
                " from tAccountDetail b Left Join cards a On a.fID=b.fCompID Where "
                "b.fType1=0 and b.fDate>='2024-03-01' And b.fChecker='' And 1=1 And "
                "(a.fType0=0 Or a.fType0=2) Order By a.CompCode COLLATE zh");
}

TEST(ModuleStatements, RegisterChanges) {
  ExpectSame(
      "Insert Into tAccounts (CompCode,name,compname,fBank,fAcntID,fID) "
      "Values ('0002','总经理','招商银行','招商银行深圳分行','075500000001',2)");
  ExpectSame("Update cards Set CompCode='A1',compname='甲公司',fType0=1 Where fID=5");
  ExpectSame("Delete from cards Where fID=5");
  ExpectSame("select a.detail from tAccounts a Where a.fID=5");
  ExpectSame("Update cards set detail='详情 03/15/2003' Where fID=5");
}

constexpr const char* kEntryColumns =
    "(fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,fBrief,fInvID,fOrderID,fUser,"
    "fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate)";

TEST(ModuleStatements, EntrySave) {
  const std::string insert =
      std::string("Insert Into tAccountDetail ") + kEntryColumns + " Values ";
  const std::string values =
      ",5,0,1,'200303PZ00001',0,100,0,'货款','','DD1','admin','张三','',0,"
      "'RMB',1.0000)";
  EXPECT_EQ(Sqlite(insert + "('03/15/2003'" + values), insert + "('2003-03-15'" + values);
  EXPECT_EQ(Sqlite("Update tAccountDetail Set fDate='03/15/2003',fCompID=5,fType1=0,fType2=1,"
                   "fAcntNo='A',fInit=0,fMoneyA=1,fMoneyB=-2,fBrief='03/15/2003',fInvID='',"
                   "fOrderID='',fUser='admin',fDoneman='',fChecker='',fID2=0,fMoneyCode='RMB',"
                   "fMoneyRate=1.0000 Where fID=12"),
            "Update tAccountDetail Set fDate='2003-03-15',fCompID=5,fType1=0,fType2=1,"
            "fAcntNo='A',fInit=0,fMoneyA=1,fMoneyB=-2,fBrief='03/15/2003',fInvID='',"
            "fOrderID='',fUser='admin',fDoneman='',fChecker='',fID2=0,fMoneyCode='RMB',"
            "fMoneyRate=1.0000 Where fID=12");
}

TEST(ModuleStatements, EntryActions) {
  EXPECT_EQ(Sqlite("select count(*) from tJXC_CkDj01 Where fInvNo='CK001' And '' & fInvSHR<>''"),
            "select count(*) from tJXC_CkDj01 Where fInvNo='CK001' COLLATE NOCASE And "
            "'' || coalesce(fInvSHR,'')<>''");
  EXPECT_EQ(Sqlite("select count(*) from tJXC_CkDj_Bak01 Where fInvNo='001' And "
                   "(not fInvSHR is null) And fInvSHR<>''"),
            "select count(*) from tJXC_CkDj_Bak01 Where fInvNo='001' And "
            "(not fInvSHR is null) And fInvSHR<>''");
  ExpectSame("Delete from tAccountDetail Where fID=12");
  ExpectSame("Update tAccountDetail Set fChecker='admin' Where fID=12");
  ExpectSame("Update tAccountDetail Set fChecker='' Where fID=12");
  ExpectSame("Delete from tAccountDetail Where fType1=1 and fID2=12");
  const std::string insert =
      std::string("Insert Into tAccountDetail ") + kEntryColumns + " Values ";
  const std::string values =
      ",2,1,1,'200303PZ00001',0,0,30,'挂入-甲公司','','','admin','','',12,'RMB',1.0000)";
  EXPECT_EQ(Sqlite(insert + "('03/15/2003'" + values), insert + "('2003-03-15'" + values);
}

constexpr const char* kLedgerFields =
    "Select b.fDate,b.fAcntNo,a.CompName,b.fMoneyA,b.fMoneyB,0 as hh,b.fBrief,b.fInvID,b.fOrderID,"
    "b.fUser,b.fDoneman,b.fChecker,b.fMoneyRate,b.fType2,b.fInit,b.fCompID,b.fID,b.fID2";

TEST(ModuleStatements, LedgerOfOneCustomer) {
  EXPECT_EQ(Sqlite(std::string(kLedgerFields) +
                   " From cards a Right Join tAccountDetail b On b.fCompID=a.fID Where b.fType1=0 "
                   "And fMoneyCode='RMB' and b.fDate>=#03/01/2024# And b.fDate<=#03/31/2024# And "
                   "b.fAcntNo like '2024%' And a.fID=5 "
                   "Order By a.CompCode,a.CompName,b.fDate,b.fAcntNo"),
            std::string(kLedgerFields) +
                " From tAccountDetail b Left Join cards a On b.fCompID=a.fID Where b.fType1=0 "
                "And fMoneyCode='RMB' COLLATE NOCASE and b.fDate>='2024-03-01' And "
                "b.fDate<='2024-03-31' And b.fAcntNo like '2024%' And a.fID=5 "
                "Order By a.CompCode COLLATE zh,a.CompName COLLATE zh,b.fDate,"
                "b.fAcntNo COLLATE zh");
}

TEST(ModuleStatements, LedgerOfEveryone) {
  EXPECT_EQ(Sqlite(std::string(kLedgerFields) +
                   " From tAccounts a Right Join tAccountDetail b On b.fCompID=a.fID "
                   "Order By a.CompName,b.fDate,b.fAcntNo"),
            std::string(kLedgerFields) +
                " From tAccountDetail b Left Join tAccounts a On b.fCompID=a.fID "
                "Order By a.CompName COLLATE zh,b.fDate,b.fAcntNo COLLATE zh");
}

TEST(ModuleStatements, LedgerOfTheServerDialect) {
  EXPECT_EQ(Sqlite(std::string(kLedgerFields) +
                   " From cards a Right Join tAccountDetail b On b.fCompID=a.fID Where b.fType1=0 "
                   "and b.fDate>='03/01/2024' And b.fChecker<>'' And b.fBrief like '03/01/2024' "
                   "Order By a.CompName,b.fDate,b.fAcntNo"),
            std::string(kLedgerFields) +
                " From tAccountDetail b Left Join cards a On b.fCompID=a.fID Where b.fType1=0 "
                "and b.fDate>='2024-03-01' And b.fChecker<>'' And b.fBrief like '03/01/2024' "
                "Order By a.CompName COLLATE zh,b.fDate,b.fAcntNo COLLATE zh");
}

}  // namespace
}  // namespace qvzj::dialect
