#include <gtest/gtest.h>

#include "tests/adapters/sqlite/temporary.h"

namespace qvzj {
namespace {

using test::TemporaryDatabase;

TEST(SqliteSession, AnswersTheSingleCustomerLedgerInDateOrder) {
  TemporaryDatabase file;
  auto session = file.Open();
  session->Execute("Insert Into cards (CompCode,compname,fID,fType0) Values ('0001','甲公司',5,0)");
  for (const char* date : {"03/16/2003", "12/31/2002"}) {
    session->Execute(std::string("Insert Into tAccountDetail (fDate,fCompID,fType1,fType2,fMoneyA,"
                                 "fMoneyB,fAcntNo) Values ('") +
                     date + "',5,0,1,100,30.5,'A1')");
  }
  data::Recordset set = session->Query(
      "Select b.fDate,b.fAcntNo,a.CompName,b.fMoneyA,b.fMoneyB,0 as hh From cards a Right Join "
      "tAccountDetail b On b.fCompID=a.fID Where b.fType1=0 and b.fDate>=#03/01/2002# And "
      "a.fID=5 Order By a.CompCode,a.CompName,b.fDate,b.fAcntNo");
  ASSERT_EQ(set.RecordCount(), 2);
  EXPECT_EQ(set.Text(0), "2002-12-31");
  EXPECT_EQ(set.ColumnAt(0).GetKind(), basic::Column::Kind::Date);
  EXPECT_EQ(set.ColumnAt(4).GetKind(), basic::Column::Kind::Real);
  EXPECT_EQ(set.Text(2), "甲公司");
}

TEST(SqliteSession, TakesAnAddedColumnThatIsThereAsDone) {
  TemporaryDatabase file;
  auto session = file.Open();
  session->NativeScript("alter table tAccountDetail rename column fID2 to fOld");
  const char* upgrade = "AlTER TABLE tAccountDetail add Column [fID2] long";
  session->Execute(upgrade);
  session->Execute(upgrade);
  EXPECT_EQ(session->Query("select count(*) from tAccountDetail Where fID2>0").Text(0), "0");
}

}  // namespace
}  // namespace qvzj
