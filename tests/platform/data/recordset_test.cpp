#include "platform/data/recordset.h"

#include <gtest/gtest.h>

#include "platform/basic/errors.h"

namespace qvzj::data {
namespace {

Recordset TwoCustomers() {
  basic::Column ids;
  basic::Column names;
  ids.AppendInteger(1);
  ids.AppendNull();
  names.AppendText("上海");
  names.AppendText("北京");
  std::vector<basic::Column> columns;
  columns.push_back(std::move(ids));
  columns.push_back(std::move(names));
  return Recordset({"fID", "CompName"}, std::move(columns));
}

TEST(Recordset, StandsOnItsFirstRowAndWalksToItsEnd) {
  Recordset rows = TwoCustomers();
  EXPECT_EQ(rows.RecordCount(), 2);
  EXPECT_EQ(rows.FieldCount(), 2);
  std::string names;
  for (; !rows.Eof(); rows.MoveNext()) names += rows.Text(1);
  EXPECT_EQ(names, "上海北京");
}

TEST(Recordset, FindsAFieldByNameWhateverItsCase) {
  Recordset rows = TwoCustomers();
  EXPECT_EQ(rows.Text("compname"), "上海");
  EXPECT_EQ(rows.FieldIndex("FID"), 0);
  EXPECT_EQ(rows.FieldName(0), "fID");
  EXPECT_THROW(rows.Text("name"), DataError);
}

TEST(Recordset, ShowsNullAsTheEmptyTextButRefusesToCalculateWithIt) {
  Recordset rows = TwoCustomers();
  rows.MoveNext();
  EXPECT_TRUE(rows.IsNull(0));
  EXPECT_EQ(rows.Text(0), "");
  EXPECT_THROW(rows.Number(0), TypeMismatchError);
}

TEST(Recordset, HasNoCurrentRowPastItsEnd) {
  Recordset rows = TwoCustomers();
  rows.MoveNext();
  rows.MoveNext();
  EXPECT_TRUE(rows.Eof());
  EXPECT_THROW(rows.Text(0), DataError);
  EXPECT_THROW(rows.Number(0), DataError);
  EXPECT_THROW(rows.IsNull(0), DataError);
}

TEST(Recordset, MayHaveNoRowsOrNoFields) {
  EXPECT_TRUE(Recordset({}, {}).Eof());
  std::vector<basic::Column> columns(1);
  EXPECT_EQ(Recordset({"a"}, std::move(columns)).RecordCount(), 0);
}

TEST(Recordset, HandsAWholeColumnOver) {
  Recordset rows = TwoCustomers();
  const basic::Column names = rows.TakeColumn(1);
  EXPECT_EQ(names.Text(1), "北京");
  EXPECT_EQ(rows.RecordCount(), 2);
}

}  // namespace
}  // namespace qvzj::data
