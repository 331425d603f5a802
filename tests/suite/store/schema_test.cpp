#include "suite/store/schema.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "platform/data/errors.h"
#include "tests/suite/store/database.h"

namespace qvzj::store {
namespace {

constexpr const char* kHead =
    "-- The tables of the ledger for T-SQL servers (SQL Server and its relatives), for those who "
    "set\n"
    "-- them up by hand. Parsed, but never yet run on a server. Where the suite has its tables "
    "there\n"
    "-- already, only the indexes are of interest.\n"
    "--\n"
    "-- The database needs a collation of the code page 936 that ignores case, such as\n"
    "-- Chinese_PRC_CI_AS: the programs write texts without N before them.\n";

/// The file for T-SQL servers as it should read.
std::string TransactSqlFile() {
  std::string text = kHead;
  for (std::string statement : TransactSqlSchema()) {
    statement.erase(0, statement.find_first_not_of('\n'));
    text += "\n" + statement + ";\n";
  }
  return text;
}

TEST(Schema, ForTransactSqlServersIsTheOneInTheDocuments) {
  const char* const file = QV_SOURCE_DIR "/docs/schema-tsql.sql";
  if (std::getenv("QV_WRITE_GOLDEN")) {
    std::ofstream(file) << TransactSqlFile();
    GTEST_SKIP() << "wrote " << file;
  }
  std::ifstream in(file);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), TransactSqlFile());
}

TEST(Schema, GivesACustomerEntryOneCounterEntryAndLinksToAccountsAsOftenAsWanted) {
  const auto session = test::EmptyDatabase();
  session->NativeScript(
      "insert into tAccountDetail (fType1,fID2) values (0,5),(0,5),(9,5),(1,0),(1,0),(1,null),"
      "(1,null),(1,5)");
  try {
    session->NativeScript("insert into tAccountDetail (fType1,fID2) values (1,5)");
    FAIL() << "a second counter-entry";
  } catch (const data::ConstraintError& error) {
    EXPECT_EQ(error.Broken(), data::Rule::Unique);
  }
}

TEST(Schema, HasTheSameStatementsForEveryServer) {
  // PostgreSQL makes its two orders of Chinese texts besides.
  EXPECT_EQ(TransactSqlSchema().size() + 2, PostgresSchema().size());
  for (const std::string& statement : TransactSqlSchema()) {
    EXPECT_EQ(statement.find(" if not exists "), std::string::npos) << statement;
    EXPECT_EQ(statement.find('{'), std::string::npos) << statement;
  }
}

}  // namespace
}  // namespace qvzj::store
