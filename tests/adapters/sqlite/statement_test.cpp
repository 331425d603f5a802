#include "adapters/sqlite/sqlite_statement.h"

#include <gtest/gtest.h>

#include "adapters/sqlite/sqlite_session.h"

namespace qvzj {
namespace {

TEST(SqliteStatement, BindsAnEmptyTextAsAnEmptyTextAndNotAsNull) {
  SqliteOptions options;
  options.create = true;
  const auto session = OpenSqlite(":memory:", options);
  SqliteStatement statement = session->Prepare("select typeof(?1), typeof(?2)");
  statement.Bind(1, std::string_view{});
  statement.Bind(2, std::string_view(""));
  ASSERT_TRUE(statement.Step());
  EXPECT_EQ(statement.Text(0), "text");
  EXPECT_EQ(statement.Text(1), "text");
}

}  // namespace
}  // namespace qvzj
