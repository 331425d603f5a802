#include "platform/data/store.h"

#include "adapters/odbc/odbc_handle.h"
#include "platform/data/errors.h"
#include "tests/adapters/odbc/server.h"

namespace qvzj {
namespace {

using test::LoginTo;
using test::Server;

/// Bulk work on a server of its own; the data file's is tested where the tools use it.
class OdbcStore : public ::testing::Test {
 protected:
  void SetUp() override {
    QV_NEEDS_SERVER();
    database_ = Server().MakeDatabase();
    store_ = store::OpenServer(LoginTo(database_), {});
  }
  std::string One(const std::string& sql) { return store_->Native(sql).Text(0); }

  std::string database_;
  std::unique_ptr<data::Store> store_;
};

const basic::Date kDay = basic::Date::FromYmd(2024, 2, 29);

TEST_F(OdbcStore, StoresRowsOfEveryKindOfValue) {
  data::Transaction transaction(*store_);
  data::RowWriter& rows =
      transaction.Into("tAccountDetail", {"fID", "fDate", "fMoneyA", "fBrief", "fChecker"});
  rows.Add({int64_t{7}, kDay, 0.1, "引'号\\?{}%s\U0001F600", std::monostate{}});
  rows.Add({int64_t{8}, "2024-03-01", int64_t{3}, "", ""});
  transaction.Commit();
  EXPECT_EQ(One("select fDate || ' ' || fMoneyA || ' ' || fBrief from tAccountDetail where fID=7 "
                "and fChecker is null"),
            "2024-02-29 0.1 引'号\\?{}%s\U0001F600");
  EXPECT_EQ(One("select fDate || ' ' || fMoneyA || fBrief || fChecker from tAccountDetail where "
                "fID=8"),
            "2024-03-01 3");
}

TEST_F(OdbcStore, StoresMoreRowsThanABatchHolds) {
  data::Transaction transaction(*store_);
  data::RowWriter& rows = transaction.Into("Employees", {"employCode", "employee"});
  for (int64_t i = 0; i < 1234; ++i) {
    const std::string code = std::to_string(i);
    rows.Add({code, "name " + code});
  }
  transaction.Commit();
  EXPECT_EQ(One("select count(*) from Employees where employee='name ' || employCode"), "1234");
}

TEST_F(OdbcStore, StoresATextOfManyPages) {
  std::string page;
  for (int i = 0; i < 40000; ++i) page += "甲";
  data::Transaction transaction(*store_);
  transaction.Into("cards", {"fID", "detail"}).Add({int64_t{1}, page});
  transaction.Commit();
  EXPECT_EQ(One("select detail from cards"), page);
}

TEST_F(OdbcStore, RefusesAValueThatItsColumnCannotHoldAndKeepsTheOtherRows) {
  data::Transaction transaction(*store_);
  data::RowWriter& rows = transaction.Into("tAccountDetail", {"fID", "fDate", "fMoneyA", "fBrief"});
  rows.Add({int64_t{1}, kDay, 1.0, "a"});
  EXPECT_THROW(rows.Add({int64_t{2}, "03/15/2003", 1.0, "b"}), data::CellError);
  EXPECT_THROW(rows.Add({int64_t{2}, kDay, "1,5", "b"}), data::CellError);
  EXPECT_THROW(rows.Add({2.5, kDay, 1.0, "b"}), data::CellError);
  EXPECT_THROW(rows.Add({int64_t{2}, kDay, kDay, "b"}), data::CellError);
  EXPECT_THROW(rows.Add({int64_t{2}, kDay, 1.0, std::string_view("b\0c", 3)}), data::CellError);
  rows.Add({int64_t{3}, kDay, "2.5", "c"});
  transaction.Commit();
  EXPECT_EQ(One("select string_agg(fID || fBrief,',' order by fID) from tAccountDetail"), "1a,3c");
}

TEST_F(OdbcStore, LeavesNothingBehindWithoutACommit) {
  {
    data::Transaction transaction(*store_);
    transaction.Into("cards", {"fID"}).Add({int64_t{1}});
    transaction.Flush();
    EXPECT_EQ(One("select count(*) from cards"), "1");
  }
  EXPECT_EQ(One("select count(*) from cards"), "0");
}

TEST_F(OdbcStore, LeavesNothingBehindWhenTheServerRefusesOneOfManyRows) {
  try {
    data::Transaction transaction(*store_);
    data::RowWriter& rows = transaction.Into("cards", {"fID"});
    for (int64_t id = 1; id <= 800; ++id) rows.Add({id});
    rows.Add({int64_t{5}});
    transaction.Commit();
    FAIL() << "an id was taken twice";
  } catch (const data::ConstraintError& error) {
    EXPECT_EQ(error.Broken(), data::Rule::Unique);
    EXPECT_NE(std::string(error.what()).find("23505"), std::string::npos) << error.what();
  }
  EXPECT_EQ(One("select count(*) from cards"), "0");
}

TEST_F(OdbcStore, SaysWhichRuleOfATableARowWouldBreak) {
  Server().RunAll(database_, {"create table p(id int primary key)",
                              "create table t(u text unique, n text not null, c int check(c>0), "
                              "f int references p(id))",
                              "insert into t(u,n) values('a','b')"});
  const auto broken = [this](const char* values) {
    try {
      store_->Native("insert into t(u,n,c,f) values" + std::string(values));
    } catch (const data::ConstraintError& error) {
      return error.Broken();
    }
    throw std::logic_error("nothing was broken");
  };
  EXPECT_EQ(broken("('a','b',1,null)"), data::Rule::Unique);
  EXPECT_EQ(broken("('c',null,1,null)"), data::Rule::NotNull);
  EXPECT_EQ(broken("('c','b',0,null)"), data::Rule::Other);
  EXPECT_EQ(broken("('c','b',1,9)"), data::Rule::Reference);
}

TEST(OdbcErrors, TellTheRulesOfEveryServer) {
  const auto broken = [](const char* state, int native) {
    return OdbcError(state, native, "").BrokenRule();
  };
  EXPECT_EQ(broken("23505", 1), data::Rule::Unique);
  EXPECT_EQ(broken("23000", 2601), data::Rule::Unique);
  EXPECT_EQ(broken("23000", 2627), data::Rule::Unique);
  EXPECT_EQ(broken("23000", 547), data::Rule::Reference);
  EXPECT_EQ(broken("23000", 515), data::Rule::NotNull);
  EXPECT_EQ(broken("23P01", 1), data::Rule::Other);
  EXPECT_EQ(broken("42P01", 2627), std::nullopt);
}

TEST_F(OdbcStore, WorksOnAfterALostTransaction) {
  const std::string own = One("select pg_backend_pid()");
  EXPECT_THROW(
      {
        data::Transaction transaction(*store_);
        transaction.Into("cards", {"fID"}).Add({int64_t{1}});
        Server().Run(database_, "select pg_terminate_backend(" + own + ")");
        transaction.Commit();
      },
      DataError);
  EXPECT_EQ(One("select count(*) from cards"), "0");
  data::Transaction transaction(*store_);
  transaction.Into("cards", {"fID"}).Add({int64_t{1}});
  transaction.Commit();
  EXPECT_EQ(One("select count(*) from cards"), "1");
}

TEST_F(OdbcStore, NamesAMissingTableOrColumn) {
  data::Transaction transaction(*store_);
  EXPECT_THROW(transaction.Into("cards", {"fID", "colour"}), DataError);
}

TEST_F(OdbcStore, GivesIdsAboveTheOnesThatWereTakenIn) {
  EXPECT_EQ(store_->LastGivenId("tAccountDetail"), 0);
  store_->GiveIdsAbove("tAccountDetail", 40);
  store_->GiveIdsAbove("tAccountDetail", 30);
  EXPECT_EQ(store_->LastGivenId("tAccountDetail"), 40);
  store_->Native("insert into tAccountDetail (fBrief) values ('a')");
  EXPECT_EQ(One("select fID from tAccountDetail"), "41");
  store_->GiveIdsAbove("cards", 5);  // whose ids the programs choose
  EXPECT_EQ(store_->LastGivenId("cards"), 0);
}

}  // namespace
}  // namespace qvzj
