#include "suite/export/suite_exporter.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "platform/basic/errors.h"
#include "platform/ui/form.h"
#include "tests/suite/export/read_back.h"
#include "tests/support/small_files.h"

namespace qvzj::exports {
namespace {

namespace fs = std::filesystem;

class SuiteExporterTest : public testing::Test {
 protected:
  SuiteExporterTest() {
    fs::create_directories(folder);
    grid.SetColumnCount(4);
    grid.SetRowCount(2);
    grid.SetHeader(1, "日期");
    grid.SetHeader(2, "摘要");
    grid.SetHeader(3, "金额");
    grid.SetColumnDecimals(3, 2);
    grid.SetColumnHidden(4, true);
    basic::Column dates;
    dates.AppendDate(basic::Date::FromYmd(2024, 3, 1));
    dates.AppendDate(basic::Date::FromYmd(2024, 3, 2));
    grid.TakeColumn(1, std::move(dates));
    grid.SetCellText(2, 1, "货款, \"首付\"");
    grid.SetCellText(2, 2, "=1+1");
    grid.SetCellNumber(3, 1, -1234.5);
    grid.SetCellText(4, 1, "hidden");
    request.grid = &grid;
    request.title = "往来总帐清单";
    request.totals = {"应收金额:", "100.00"};
    request.path = (folder / "out").string();
  }
  ~SuiteExporterTest() override { fs::remove_all(folder); }

  std::string Written() const { return test::BytesOf(request.path); }

  fs::path folder =
      fs::temp_directory_path() /
      ("qvzj-export-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "-" +
       ::testing::UnitTest::GetInstance()->current_test_info()->name());
  ui::Form form{"form"};
  ui::Grid grid{form, "Grid2"};
  ExportRequest request;
};

TEST_F(SuiteExporterTest, WritesTheVisibleColumnsAsCommaSeparatedUtf8WithAMark) {
  const ExportResult result = ExportCsv(request, false);
  EXPECT_EQ(result.rows, 2);
  EXPECT_EQ(Written(),
            "\xEF\xBB\xBF日期,摘要,金额\r\n"
            "2024-03-01,\"货款, \"\"首付\"\"\",-1234.50\r\n"
            "2024-03-02,'=1+1,\r\n"
            "应收金额:,100.00\r\n");
}

TEST_F(SuiteExporterTest, GivesAListTheRightsOfEveryDocument) {
  const mode_t before = umask(0022);
  ExportCsv(request, false);
  umask(before);
  EXPECT_EQ(fs::status(request.path).permissions(), fs::perms{0644});
}

TEST_F(SuiteExporterTest, WritesTheChineseCodePageOnRequest) {
  ExportCsv(request, true);
  EXPECT_EQ(Written().substr(0, 4), "\xC8\xD5\xC6\xDA");  // 日期
}

TEST_F(SuiteExporterTest, CountsWhatTheCodePageCannotHold) {
  grid.SetCellText(2, 1, "bad \xFF byte");
  EXPECT_EQ(ExportCsv(request, true).lost_characters, 1);
  EXPECT_NE(Written().find("bad ? byte"), std::string::npos);
}

TEST_F(SuiteExporterTest, KeepsRareCharactersInTheChineseCodePage) {
  grid.SetCellText(2, 1, "𠀀");
  EXPECT_EQ(ExportCsv(request, true).lost_characters, 0);
}

TEST_F(SuiteExporterTest, LeavesTheOldFileWhenTheUserCancels) {
  std::ofstream(request.path) << "old";
  grid.SetRowCount(5000);
  request.progress = [](int64_t, int64_t) { return false; };
  EXPECT_TRUE(ExportCsv(request, false).cancelled);
  EXPECT_TRUE(ExportXlsx(request).cancelled);
  EXPECT_EQ(Written(), "old");
  EXPECT_FALSE(fs::exists(request.path + ".part"));
}

TEST_F(SuiteExporterTest, SaysWhenTheFileCannotBeWritten) {
  request.path = (folder / "missing" / "out").string();
  EXPECT_THROW(ExportCsv(request, false), Error);
  EXPECT_THROW(ExportXlsx(request), Error);
}

TEST_F(SuiteExporterTest, LeavesTheOldFileWhenTheDiskIsFull) {
  std::ofstream(request.path) << "old";
  grid.SetRowCount(3000);
  {
    const test::SmallFiles full(1000);
    EXPECT_THROW(ExportCsv(request, false), Error);
    EXPECT_THROW(ExportCsv(request, true), Error);
    EXPECT_THROW(ExportXlsx(request), Error);
  }
  EXPECT_EQ(Written(), "old");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

TEST_F(SuiteExporterTest, RefusesAWorkbookWithoutRoomForItsTemporaryFiles) {
  std::ofstream(request.path) << "old";
  XlsxBounds bounds;
  bounds.free_space = UINT64_MAX;
  try {
    ExportXlsx(request, bounds);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Error& error) {
    EXPECT_NE(std::string(error.what()).find("No space left on device"), std::string::npos);
  }
  EXPECT_EQ(Written(), "old");
}

TEST_F(SuiteExporterTest, WritesTheColumnsThatAreAskedForInTheirOrder) {
  request.columns = {3, 1};
  ExportCsv(request, false);
  EXPECT_EQ(Written().substr(3, 15), "金额,日期\r\n");
}

TEST_F(SuiteExporterTest, LeavesOutTheArrowOfTheSortedColumn) {
  grid.SetHeader(1, "日期↑");
  ExportCsv(request, false);
  EXPECT_EQ(Written().substr(3, 14), "日期,摘要,");
}

TEST_F(SuiteExporterTest, WritesEveryTextThatASpreadsheetWouldRunAsATextInCsv) {
  for (const std::string text : {"=1+1", "+1", "-1", "@a", "\ta", "\ra"}) {
    grid.SetCellText(2, 1, text);
    ExportCsv(request, false);
    EXPECT_NE(Written().find("'" + text), std::string::npos) << text;
  }
}

TEST_F(SuiteExporterTest, SaysOnHowManySheetsTheRowsAre) {
  grid.SetRowCount(25);
  XlsxBounds bounds;
  bounds.rows_of_a_sheet = 10;
  const ExportResult result = ExportXlsx(request, bounds);
  EXPECT_EQ(result.rows, 25);
  EXPECT_EQ(result.sheets, 3);
  EXPECT_EQ(ExportXlsx(request).sheets, 1);
}

TEST_F(SuiteExporterTest, WritesAWorkbookThatAnIndependentSpreadsheetReadsTheSame) {
  if (!test::HasSpreadsheet()) GTEST_SKIP() << test::kNoSpreadsheet;
  request.path = (folder / "out.xlsx").string();
  ExportXlsx(request);
  test::ReadBackWorkbooks(folder);
  EXPECT_EQ(test::BytesOf(folder / "out.csv"),
            "\"日期\",\"摘要\",\"金额\"\n"
            "2024-03-01,\"货款, \"\"首付\"\"\",-1234.50\n"
            "2024-03-02,\"=1+1\",\n"
            ",,\n"
            "\"应收金额:\",100.00,\n")
      << "texts stand in quotes, numbers and dates without";
}

TEST_F(SuiteExporterTest, WritesAWorkbook) {
  const ExportResult result = ExportXlsx(request);
  EXPECT_EQ(result.rows, 2);
  EXPECT_EQ(Written().substr(0, 2), "PK");
}

}  // namespace
}  // namespace qvzj::exports
