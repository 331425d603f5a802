#include "platform/basic/column.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>

#include "platform/basic/errors.h"

namespace qvzj::basic {
namespace {

using Kind = Column::Kind;

std::string Joined(const Column& column) {
  std::string texts;
  for (size_t row = 0; row < column.Size(); ++row) texts += column.Text(row) + "|";
  return texts;
}

TEST(Column, TakesTheKindOfItsFirstValue) {
  Column column;
  column.AppendNull();
  EXPECT_EQ(column.GetKind(), Kind::Empty);
  column.AppendInteger(7);
  EXPECT_EQ(column.GetKind(), Kind::Integer);
  EXPECT_TRUE(column.IsNull(0));
  EXPECT_EQ(Joined(column), "|7|");
}

TEST(Column, WidensIntegersToReals) {
  Column column;
  column.AppendInteger(7);
  column.AppendNull();
  column.AppendReal(2.5);
  EXPECT_EQ(column.GetKind(), Kind::Real);
  EXPECT_EQ(Joined(column), "7||2.5|");
}

TEST(Column, WidensAMixtureToTheTextsThatItShowed) {
  Column column;
  column.AppendReal(2.5);
  column.AppendNull();
  column.AppendText("张三");
  column.AppendInteger(7);
  column.AppendDate(Date::FromYmd(2024, 2, 29));
  EXPECT_EQ(column.GetKind(), Kind::Text);
  EXPECT_EQ(Joined(column), "2.5||张三|7|2024-02-29|");
  EXPECT_EQ(column.Number(0), 2.5);
}

TEST(Column, WidensADateBesideANumberToText) {
  Column column;
  column.AppendDate(Date::FromYmd(2024, 2, 29));
  column.AppendReal(1.5);
  EXPECT_EQ(Joined(column), "2024-02-29|1.5|");
}

TEST(Column, KeepsBigIntegersExactly) {
  Column column;
  column.AppendInteger(int64_t{INT32_MAX} + 1);
  EXPECT_EQ(column.GetKind(), Kind::Real);
  EXPECT_EQ(column.Text(0), "2147483648");
  column.AppendInteger(INT64_MAX);
  EXPECT_EQ(column.GetKind(), Kind::Text);
  EXPECT_EQ(Joined(column), "2147483648|9223372036854775807|");
}

TEST(Column, KeepsTheLeastIntegerApartFromNull) {
  Column column;
  column.AppendInteger(INT32_MIN);
  EXPECT_FALSE(column.IsNull(0));
  EXPECT_EQ(column.Text(0), "-2147483648");
}

TEST(Column, KeepsWhatIsNotANumberAsNull) {
  Column column;
  column.AppendText("a");
  column.AppendReal(std::numeric_limits<double>::quiet_NaN());
  EXPECT_TRUE(column.IsNull(1));
  column.SetReal(0, std::numeric_limits<double>::quiet_NaN());
  EXPECT_TRUE(column.IsNull(0));
}

TEST(Column, TellsAnEmptyTextFromNull) {
  Column column;
  column.AppendText("");
  column.AppendNull();
  EXPECT_FALSE(column.IsNull(0));
  EXPECT_TRUE(column.IsNull(1));
  EXPECT_EQ(column.TextView(1), "");
  EXPECT_FALSE(column.SameValue(0, 1));
}

TEST(Column, StoresATextOnceThatFollowsItself) {
  Column column;
  column.AppendText("上海第一百货");
  column.Fit();
  const size_t bytes = column.MemoryBytes();
  for (int i = 0; i < 3; ++i) column.AppendText("上海第一百货");
  column.Fit();
  EXPECT_EQ(column.MemoryBytes(), bytes + 3 * sizeof(uint32_t));
  EXPECT_TRUE(column.SameValue(0, 3));
}

TEST(Column, HoldsLongTexts) {
  const std::string text(300000, 'x');
  Column column;
  column.AppendText(text);
  column.AppendText("y");
  EXPECT_EQ(column.TextView(0), text);
  EXPECT_EQ(column.TextView(1), "y");
}

TEST(Column, ReplacesValues) {
  Column column;
  for (int value : {1, 2, 3}) column.AppendInteger(value);
  column.SetNull(0);
  column.SetReal(1, 2.5);
  EXPECT_EQ(column.GetKind(), Kind::Real);
  column.SetText(2, "三");
  EXPECT_EQ(Joined(column), "|2.5|三|");
}

TEST(Column, GrowsWithNullsAndShrinks) {
  Column column;
  column.Resize(2);
  column.AppendText("a");
  column.Resize(5);
  EXPECT_EQ(Joined(column), "||a|||");
  column.Resize(3);
  EXPECT_EQ(column.Size(), 3u);
  EXPECT_EQ(Joined(column), "||a|");
}

TEST(Column, ReadsNumbersOutOfEveryKind) {
  Column texts;
  texts.AppendText("12.5 kg");
  texts.AppendNull();
  EXPECT_EQ(texts.Number(0), 12.5);
  EXPECT_EQ(texts.Number(1), 0);
  EXPECT_EQ(texts.Integer(0), 12);
  Column dates;
  dates.AppendDate(Date{45292});
  EXPECT_EQ(dates.Number(0), 45292);
  Column reals;
  reals.AppendReal(1e10);
  EXPECT_THROW(reals.Integer(0), OverflowError);
}

TEST(Buffer, GrowsKeepsAndGivesBack) {
  Buffer<int> buffer;
  for (int i = 0; i < 1000; ++i) buffer.Append(i);
  EXPECT_EQ(std::accumulate(buffer.Data(), buffer.Data() + buffer.Size(), 0), 499500);
  buffer.Resize(1002, 7);
  EXPECT_EQ(buffer[1001], 7);
  buffer.Resize(1);
  buffer.Fit();
  EXPECT_EQ(buffer.MemoryBytes(), sizeof(int));
  Buffer<int> moved = std::move(buffer);
  EXPECT_EQ(moved.Size(), 1u);
  moved = {};
  EXPECT_TRUE(moved.Empty());
  EXPECT_EQ(moved.MemoryBytes(), 0u);
}

}  // namespace
}  // namespace qvzj::basic
