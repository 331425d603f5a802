#include "suite/export/suite_exporter.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

#include "platform/basic/errors.h"
#include "platform/ui/form.h"

namespace qvzj {
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

  std::string Written() const {
    std::ifstream in(request.path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
  }

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

/// What an independent spreadsheet reads in a workbook, as comma-separated values; empty when
/// there is none on this machine.
std::optional<std::string> ReadBack(const fs::path& workbook) {
  if (std::system("command -v soffice >/dev/null 2>&1") != 0) return std::nullopt;
  const std::string folder = workbook.parent_path().string();
  const std::string command = "HOME='" + folder +
                              "' timeout 120 soffice --headless --convert-to "
                              "'csv:Text - txt - csv (StarCalc):44,34,76,1' --outdir '" +
                              folder + "' '" + workbook.string() + "' >/dev/null 2>&1";
  EXPECT_EQ(std::system(command.c_str()), 0);
  std::ifstream in(fs::path(workbook).replace_extension("csv"), std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

TEST_F(SuiteExporterTest, WritesAWorkbookThatAnIndependentSpreadsheetReadsTheSame) {
  request.path = (folder / "out.xlsx").string();
  ExportXlsx(request);
  const auto read = ReadBack(request.path);
  if (!read) GTEST_SKIP() << "no LibreOffice on this machine (package libreoffice-calc-nogui)";
  EXPECT_EQ(*read,
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
}  // namespace qvzj
