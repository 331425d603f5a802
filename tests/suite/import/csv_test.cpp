#include "suite/import/csv.h"

#include <gtest/gtest.h>

namespace qvzj::imports {
namespace {

using Fields = std::vector<std::string>;

CsvRecord First(std::string_view text, char separator = ',') {
  CsvReader reader(text, separator);
  CsvRecord record;
  EXPECT_TRUE(reader.Next(record));
  return record;
}

TEST(Csv, ReadsFieldsPartedByCommas) {
  EXPECT_EQ(First("a,b,,d\n").fields, (Fields{"a", "b", "", "d"}));
}

TEST(Csv, ReadsALastLineWithoutItsEnd) {
  EXPECT_EQ(First("a,b").fields, (Fields{"a", "b"}));
  EXPECT_EQ(First("a,").fields, (Fields{"a", ""}));
}

TEST(Csv, TakesSeparatorsAndLineEndsBetweenQuotes) {
  EXPECT_EQ(First("\"a,b\",\"c\r\nd\"\r\n").fields, (Fields{"a,b", "c\r\nd"}));
}

TEST(Csv, TakesADoubledQuoteForOne) {
  EXPECT_EQ(First("\"他说\"\"好\"\"\",b\n").fields, (Fields{"他说\"好\"", "b"}));
}

TEST(Csv, KeepsBlanksAroundAField) { EXPECT_EQ(First(" a , b \n").fields, (Fields{" a ", " b "})); }

TEST(Csv, EndsLinesAtLfAndAtCrLf) {
  CsvReader reader("a\r\nb\nc\r\n");
  CsvRecord record;
  std::string all;
  while (reader.Next(record)) all += record.fields.at(0) + ";";
  EXPECT_EQ(all, "a;b;c;");
}

TEST(Csv, PassesOverEmptyLinesAndCountsThem) {
  CsvReader reader("\n\na\n\r\n\nb");
  CsvRecord record;
  ASSERT_TRUE(reader.Next(record));
  EXPECT_EQ(record.line, 3);
  ASSERT_TRUE(reader.Next(record));
  EXPECT_EQ(record.line, 6);
  EXPECT_FALSE(reader.Next(record));
}

TEST(Csv, NamesTheLineOnWhichARecordOfSeveralLinesBegins) {
  CsvReader reader("\"a\nb\nc\",d\ne,f\n");
  CsvRecord record;
  ASSERT_TRUE(reader.Next(record));
  EXPECT_EQ(record.line, 1);
  ASSERT_TRUE(reader.Next(record));
  EXPECT_EQ(record.line, 4);
}

TEST(Csv, TakesAnotherSeparator) { EXPECT_EQ(First("a,b;c\n", ';').fields, (Fields{"a,b", "c"})); }

TEST(Csv, RefusesAQuoteInsideAPlainFieldAndReadsOnAfterTheLine) {
  CsvReader reader("a,5\" pipe,b\nc,d\n");
  CsvRecord record;
  ASSERT_TRUE(reader.Next(record));
  EXPECT_EQ(record.fault, "a double quote inside a field that does not begin with one");
  ASSERT_TRUE(reader.Next(record));
  EXPECT_EQ(record.fault, "");
  EXPECT_EQ(record.line, 2);
  EXPECT_EQ(record.fields, (Fields{"c", "d"}));
}

TEST(Csv, RefusesTextAfterAClosingQuote) {
  EXPECT_EQ(First("\"a\"b,c\n").fault, "text after a closing double quote");
}

TEST(Csv, AQuoteThatIsNeverClosedCostsOnlyItsOwnLine) {
  CsvReader reader("a,\"b\nc,d\n");
  CsvRecord record;
  ASSERT_TRUE(reader.Next(record));
  EXPECT_EQ(record.fault, "a double quote is opened and never closed");
  EXPECT_EQ(record.line, 1);
  ASSERT_TRUE(reader.Next(record));
  EXPECT_EQ(record.fields, (Fields{"c", "d"}));
  EXPECT_FALSE(reader.Next(record));
}

TEST(Csv, AnEmptyTextHasNoRecord) {
  CsvReader reader("");
  CsvRecord record;
  EXPECT_FALSE(reader.Next(record));
}

}  // namespace
}  // namespace qvzj::imports
