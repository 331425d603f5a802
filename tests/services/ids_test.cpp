#include "services/ids.h"

#include <gtest/gtest.h>

#include "platform/basic/errors.h"

namespace qvzj {
namespace {

basic::Column Texts(const std::vector<const char*>& values) {
  basic::Column column;
  for (const char* value : values) {
    value ? column.AppendText(value) : column.AppendNull();
  }
  return column;
}

std::string Complaint(const basic::Column& column) {
  try {
    RequireIds(column, "cards.fID");
  } catch (const Error& error) {
    return error.what();
  }
  return {};
}

TEST(Ids, MayBeWholeNumbersHoweverTheyAreStoredAndNulls) {
  EXPECT_EQ(Complaint(Texts({"1", nullptr, "-2", "2147483647"})), "");
  EXPECT_EQ(Complaint(basic::Column()), "");
}

TEST(Ids, AreRefusedWhereAStatementWouldMeanSomethingElse) {
  for (const char* crafted : {"2 or 1=1", "", " 2", "2;", "2.5", "1e9", "2147483648", "x"}) {
    EXPECT_NE(Complaint(Texts({"1", crafted})), "") << crafted;
  }
  EXPECT_EQ(Complaint(Texts({"1", "2 or 1=1"})),
            "数据有误：cards.fID 应为数字，现为“2 or 1=1”。未执行任何操作，请检查数据！");
}

}  // namespace
}  // namespace qvzj
