#include "adapters/dialect/translate.h"

#include <gtest/gtest.h>

#include "platform/basic/errors.h"
#include "tests/adapters/dialect/suite_schema.h"

namespace qvzj::dialect {
namespace {

/// The statement as SQLite gets it, ordered by the collation "zh".
std::string Sqlite(std::string_view statement) {
  return Translate(statement, SqliteTarget("zh"), test::SuiteSchema()).text;
}

TEST(Translation, CountsRowsAsWritten) {
  EXPECT_EQ(Sqlite("select count(*) from tAccountDetail Where 1=2"),
            "select count(*) from tAccountDetail Where 1=2");
}

}  // namespace
}  // namespace qvzj::dialect
