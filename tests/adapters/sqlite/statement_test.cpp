#include "adapters/sqlite/sqlite_statement.h"

#include <gtest/gtest.h>

#include "adapters/sqlite/sqlite_session.h"
#include "platform/data/errors.h"

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

TEST(SqliteStatement, SaysWhichRuleOfATableARowWouldBreak) {
  SqliteOptions options;
  options.create = true;
  const auto session = OpenSqlite(":memory:", options);
  session->NativeScript(
      "pragma foreign_keys=on; create table p(id integer primary key);"
      "create table t(u text unique, n text not null, c int check(c>0), f int references p(id))");
  session->NativeScript("insert into t(u,n) values('a','b')");
  const auto broken = [&session](const char* values) {
    try {
      session->NativeScript("insert into t(u,n,c,f) values" + std::string(values));
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

}  // namespace
}  // namespace qvzj
