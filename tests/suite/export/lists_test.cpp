#include <gtest/gtest.h>

#include <algorithm>

#include "adapters/icu/chinese_text.h"
#include "suite/export/suite_exporter.h"
#include "suite/import/csv.h"
#include "tests/suite/export/read_back.h"
#include "tests/support/world.h"

namespace qvzj::test {
namespace {

using Records = std::vector<std::vector<std::string>>;

struct Case {
  int16_t mode;
  int16_t language;
};

/// Both lists of the module as files, in each mode and language.
class Lists : public testing::TestWithParam<Case> {
 protected:
  Lists() {
    world_.control.setLanguage(GetParam().language);
    world_.Sql(
        "insert into cards (fID,CompCode,compname,fType0) values (1,'=K1','甲, \"公司\"',0);"
        "insert into cards (fID,CompCode,compname,fType0,telphone) values (2,'K2','乙𠀀',0,'😀');"
        "insert into tAccounts (fID,CompCode,compname,telphone) values (1,'Z1','现金','-5折');"
        "insert into Moneys values ('RMB',1,2);");
    for (const std::string kind : {"0", "1"}) {
      world_.Sql(
          "insert into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
          "fBrief,fInvID,fChecker,fID2,fMoneyCode,fMoneyRate) values"
          "('2024-01-02',1," +
          kind +
          ",1,'0012',0,-1234.5,30,'=SUM(A1)',null,'',0,'RMB',1),"
          "('2024-03-01',1," +
          kind + ",2,'+13',1,7,0.126,'@货款','XS1','张三',0,'RMB',1);");
    }
    form_ = &world_.Open(GetParam().mode);
    form_->UserClick(form_->OptSelect(0));
  }

  std::vector<const ui::Grid*> Grids() const { return {&form_->Grid1, &form_->Grid2}; }
  std::filesystem::path Place(const ui::Grid& grid, const std::string& ending) const {
    return world_.folder.Path() / (grid.Name() + ending);
  }

  void Export(const ui::Grid& grid, ExportFormat format, const std::filesystem::path& place) {
    ExportRequest request;
    request.grid = &grid;
    request.title = grid.offers.title();
    if (grid.offers.totals) request.totals = grid.offers.totals();
    request.path = place.string();
    const ExportResult result = exports::SuiteExporter().Export(request, format);
    EXPECT_EQ(result.rows, grid.RowCount());
    EXPECT_EQ(result.lost_characters, 0);
  }

  /// What the file shall hold; `guard` stands before texts that a spreadsheet would run.
  static Records Expected(const ui::Grid& grid, const std::string& guard) {
    Records records;
    for (int32_t row = 0; row <= grid.RowCount(); ++row) {
      std::vector<std::string>& record = records.emplace_back();
      for (int32_t column = 1; column <= grid.ColumnCount(); ++column) {
        if (grid.ColumnHidden(column)) continue;
        std::string text = row == 0 ? grid.PlainHeader(column) : grid.CellText(column, row);
        const bool runs = !text.empty() && std::string("=+-@").find(text[0]) != std::string::npos;
        if (runs && grid.ColumnDecimals(column) < 0) text = guard + text;
        record.push_back(text);
      }
    }
    return records;
  }

  static Records Read(const std::string& text) {
    Records records;
    imports::CsvReader reader(text);
    for (imports::CsvRecord record; reader.Next(record);) {
      EXPECT_EQ(record.fault, "");
      records.push_back(record.fields);
    }
    return records;
  }

  /// The totals behind the list, as they stand in the form.
  static Records Totals(const ui::Grid& grid) {
    Records records;
    if (!grid.offers.totals) return records;
    const std::vector<std::string> totals = grid.offers.totals();
    for (size_t i = 0; i + 1 < totals.size(); i += 2) records.push_back({totals[i], totals[i + 1]});
    return records;
  }

  /// `read` is the list and then its totals.
  static void Compare(const ui::Grid& grid, const std::string& guard, Records read) {
    const Records list = Expected(grid, guard);
    const Records totals = Totals(grid);
    for (auto& record : read) {
      while (record.size() > 2 && record.back().empty() && record.size() > list[0].size()) {
        record.pop_back();
      }
    }
    ASSERT_EQ(read.size(), list.size() + totals.size());
    for (size_t i = 0; i < list.size(); ++i) EXPECT_EQ(read[i], list[i]) << grid.Name();
    for (size_t i = 0; i < totals.size(); ++i) {
      auto record = read[list.size() + i];
      record.resize(2);
      EXPECT_EQ(record, totals[i]) << grid.Name();
    }
  }

  World world_;
  frmZj* form_ = nullptr;
};

TEST_P(Lists, AreWholeAsCommaSeparatedUtf8) {
  for (const ui::Grid* grid : Grids()) {
    ASSERT_GT(grid->RowCount(), 0);
    Export(*grid, ExportFormat::CsvUtf8, Place(*grid, ".csv"));
    const std::string bytes = BytesOf(Place(*grid, ".csv"));
    ASSERT_EQ(bytes.substr(0, 3), "\xEF\xBB\xBF");
    Compare(*grid, "'", Read(bytes.substr(3)));
  }
}

TEST_P(Lists, AreWholeInTheChineseCodePage) {
  for (const ui::Grid* grid : Grids()) {
    Export(*grid, ExportFormat::CsvUtf8, Place(*grid, ".csv"));
    Export(*grid, ExportFormat::CsvGb18030, Place(*grid, ".gb"));
    const std::string gb18030 = BytesOf(Place(*grid, ".gb"));
    const std::string utf8 = BytesOf(Place(*grid, ".csv")).substr(3);
    EXPECT_NE(gb18030, utf8);
    EXPECT_EQ(ReadChineseText(gb18030).utf8, utf8);
  }
}

TEST_P(Lists, AreReadTheSameByAnIndependentSpreadsheet) {
  if (!HasSpreadsheet()) GTEST_SKIP() << kNoSpreadsheet;
  for (const ui::Grid* grid : Grids()) {
    Export(*grid, ExportFormat::Xlsx, Place(*grid, ".xlsx"));
  }
  ReadBackWorkbooks(world_.folder.Path());
  for (const ui::Grid* grid : Grids()) {
    Records read = Read(BytesOf(Place(*grid, ".csv")));
    // An empty row parts the list from its totals.
    std::erase_if(read, [](const auto& record) {
      return std::all_of(record.begin(), record.end(), [](const auto& f) { return f.empty(); });
    });
    Compare(*grid, "", read);
  }
}

INSTANTIATE_TEST_SUITE_P(ModesAndLanguages, Lists,
                         testing::Values(Case{0, 0}, Case{1, 0}, Case{0, 1}, Case{1, 1}),
                         [](const auto& info) {
                           return std::string(info.param.mode == 0 ? "Customers" : "Accounts") +
                                  (info.param.language == 0 ? "Simplified" : "Traditional");
                         });

}  // namespace
}  // namespace qvzj::test
