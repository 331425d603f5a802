#include "suite/print/page_layout.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/ui/form.h"
#include "suite/print/metrics.h"

namespace qvzj::print {
namespace {

using basic::Date;

/// A ledger-like grid of its own form: date, voucher, text, amount, hidden rate.
class PageLayoutTest : public testing::Test {
 protected:
  PageLayoutTest() {
    grid.SetColumnCount(13);
    for (int32_t column = 5; column <= 13; ++column) grid.SetColumnHidden(column, true);
    grid.SetHeader(1, "日期");
    grid.SetHeader(2, "票号");
    grid.SetHeader(3, "摘要");
    grid.SetHeader(4, "金额");
    grid.SetColumnDecimals(4, 2);
    job.kind = 1;
    job.grid = &grid;
    job.title = "往来总帐清单";
    job.company = "总公司";
    job.user = "张三";
    job.totals = {"应收金额:", "100.00", "实收金额:", "30.00"};
    job.facts.local_currency = true;
  }

  void Fill(int32_t rows, const std::string& text = "货款") {
    grid.SetRowCount(rows);
    for (int32_t row = 1; row <= rows; ++row) {
      grid.SetCellText(1, row, "2024-03-01");
      grid.SetCellText(2, row, "PZ" + std::to_string(row));
      grid.SetCellText(3, row, text);
      grid.SetCellNumber(4, row, row);
    }
  }

  PageLayout Layout() { return PageLayout(job, Date::FromYmd(2024, 3, 15), metrics); }

  static std::vector<std::string> Texts(const Page& page) {
    std::vector<std::string> texts;
    for (const PlacedText& text : page.texts) texts.push_back(text.text);
    return texts;
  }
  static bool Has(const Page& page, const std::string& text) {
    const auto texts = Texts(page);
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }
  static bool Overflows(const PageLayout& layout, const Page& page) {
    FixedMetrics metrics;
    return std::any_of(page.texts.begin(), page.texts.end(), [&](const PlacedText& text) {
      return metrics.Width(text.text) * text.size > text.width + 0.01 ||
             text.x + text.width > layout.PageWidth() || text.y > layout.PageHeight();
    });
  }

  /// Top of the page's foot.
  static double FootOf(const Page& page) {
    for (const PlacedText& text : page.texts) {
      if (text.text == "制表人: 张三") return text.y;
    }
    return 0;
  }

  ui::Form form{"form"};
  ui::Grid grid{form, "Grid2"};
  FixedMetrics metrics;
  PrintJob job;
};

TEST_F(PageLayoutTest, PutsTitleCompanyDateUserAndPageNumberOnEveryPage) {
  Fill(100);
  const PageLayout layout = Layout();
  ASSERT_GT(layout.PageCount(), 1);
  for (int number = 0; number < layout.PageCount(); ++number) {
    const Page page = layout.MakePage(number);
    EXPECT_TRUE(Has(page, "往来总帐清单"));
    EXPECT_TRUE(Has(page, "总公司"));
    EXPECT_TRUE(Has(page, "打印日期: 2024-03-15"));
    EXPECT_TRUE(Has(page, "制表人: 张三"));
    EXPECT_TRUE(Has(page, "第 " + std::to_string(number + 1) + " 页 共 " +
                              std::to_string(layout.PageCount()) + " 页"));
    EXPECT_TRUE(Has(page, "票号")) << "the header row is repeated";
  }
}

TEST_F(PageLayoutTest, PrintsEveryRowExactlyOnceInOrder) {
  Fill(137);
  const PageLayout layout = Layout();
  std::vector<std::string> vouchers;
  for (int number = 0; number < layout.PageCount(); ++number) {
    for (const std::string& text : Texts(layout.MakePage(number))) {
      if (text.rfind("PZ", 0) == 0) vouchers.push_back(text);
    }
  }
  ASSERT_EQ(vouchers.size(), 137u);
  for (size_t i = 0; i < vouchers.size(); ++i) {
    EXPECT_EQ(vouchers[i], "PZ" + std::to_string(i + 1));
  }
}

TEST_F(PageLayoutTest, StaysInPortraitWhileTheColumnsFit) {
  Fill(3);
  EXPECT_FALSE(Layout().Landscape());
}

TEST_F(PageLayoutTest, TurnsThePaperWhenTheColumnsNeedTheWidth) {
  Fill(3, std::string(100, 'x'));
  const PageLayout layout = Layout();
  EXPECT_TRUE(layout.Landscape());
  EXPECT_FALSE(Overflows(layout, layout.MakePage(0)));
}

TEST_F(PageLayoutTest, WrapsWhatNoPaperHoldsWithoutLosingACharacter) {
  std::string text;
  for (int i = 0; i < 120; ++i) text += "货";
  Fill(2, text);
  const PageLayout layout = Layout();
  const Page page = layout.MakePage(0);
  EXPECT_FALSE(Overflows(layout, page));
  size_t characters = 0;
  for (const std::string& line : Texts(page)) {
    if (line.rfind("货", 0) == 0) characters += line.size() / 3;
  }
  EXPECT_EQ(characters, 240u);
}

TEST_F(PageLayoutTest, ContinuesARowThatNoPageHoldsOnTheNextPages) {
  std::string text;
  for (int i = 0; i < 6000; ++i) text += "货";
  Fill(3, "款");
  grid.SetCellText(3, 2, text);
  const PageLayout layout = Layout();
  EXPECT_GT(layout.PageCount(), 2);
  size_t characters = 0;
  std::vector<std::string> vouchers;
  for (int number = 0; number < layout.PageCount(); ++number) {
    const Page page = layout.MakePage(number);
    EXPECT_FALSE(Overflows(layout, page));
    const double foot = FootOf(page);
    for (const PlacedText& text_of_page : page.texts) {
      if (text_of_page.text.rfind("货", 0) == 0) {
        characters += text_of_page.text.size() / 3;
        EXPECT_LE(text_of_page.y + text_of_page.size * 1.35, foot) << "page " << number + 1;
      }
      if (text_of_page.text.rfind("PZ", 0) == 0) vouchers.push_back(text_of_page.text);
    }
  }
  EXPECT_EQ(characters, 6000u);
  EXPECT_EQ(vouchers, (std::vector<std::string>{"PZ1", "PZ2", "PZ3"}));
  EXPECT_TRUE(Has(layout.MakePage(layout.PageCount() - 1), "应收金额: 100.00"));
}

TEST_F(PageLayoutTest, KeepsEveryColumnOfAWideRegister) {
  grid.SetColumnCount(14);
  for (int32_t column = 1; column <= 14; ++column) {
    grid.SetColumnHidden(column, false);
    grid.SetHeader(column, "列" + std::to_string(column));
  }
  grid.SetRowCount(1);
  for (int32_t column = 5; column <= 13; ++column) {
    grid.SetCellText(column, 1, std::to_string(column) + std::string(60, 'w'));
  }
  job.kind = 0;
  const PageLayout layout = Layout();
  const Page page = layout.MakePage(0);
  EXPECT_TRUE(layout.Landscape());
  EXPECT_FALSE(Overflows(layout, page));
  for (int32_t column = 1; column <= 14; ++column) {
    EXPECT_TRUE(Has(page, "列" + std::to_string(column)));
  }
  size_t letters = 0;
  for (const std::string& text : Texts(page)) {
    letters += static_cast<size_t>(std::count(text.begin(), text.end(), 'w'));
  }
  EXPECT_EQ(letters, 9 * 60u);
}

TEST_F(PageLayoutTest, LeavesOutTheArrowOfTheSortedColumn) {
  Fill(1);
  grid.SetHeader(2, "票号↓");
  EXPECT_TRUE(Has(Layout().MakePage(0), "票号"));
}

TEST_F(PageLayoutTest, AlignsAmountsToTheRight) {
  Fill(1);
  const Page page = Layout().MakePage(0);
  const auto amount = std::find_if(page.texts.begin(), page.texts.end(),
                                   [](const PlacedText& text) { return text.text == "1.00"; });
  ASSERT_NE(amount, page.texts.end());
  EXPECT_EQ(amount->align, PrintAlign::Right);
}

TEST_F(PageLayoutTest, LeavesHiddenColumnsOut) {
  Fill(1);
  grid.SetCellText(6, 1, "secret");
  EXPECT_FALSE(Has(Layout().MakePage(0), "secret"));
}

TEST_F(PageLayoutTest, ShadesTheRowsThatTheGridColours) {
  Fill(2);
  grid.SetRowColor(2, 0xE0E0E0);
  const Page page = Layout().MakePage(0);
  ASSERT_EQ(page.fills.size(), 1u);
  EXPECT_EQ(page.fills[0].color, 0xE0E0E0u);
}

TEST_F(PageLayoutTest, ClosesTheLedgerWithItsTotalsAndTheLastOneInWords) {
  Fill(60);
  const PageLayout layout = Layout();
  const Page last = layout.MakePage(layout.PageCount() - 1);
  EXPECT_TRUE(Has(last, "应收金额: 100.00"));
  EXPECT_TRUE(Has(last, "实收金额: 30.00"));
  EXPECT_TRUE(Has(last, "人民币大写（实收金额）: 叁拾元整"));
  EXPECT_FALSE(Has(layout.MakePage(0), "应收金额: 100.00"));
}

TEST_F(PageLayoutTest, SetsTheTotalsInTwoLinesAsOnTheScreen) {
  Fill(1);
  const auto lines_of_totals = [this] {
    const Page page = Layout().MakePage(0);
    std::vector<std::pair<double, int>> lines;
    for (const PlacedText& text : page.texts) {
      if (!text.bold || text.text.find("金额: ") == std::string::npos) continue;
      if (lines.empty() || lines.back().first != text.y) lines.emplace_back(text.y, 0);
      ++lines.back().second;
    }
    std::vector<int> counts;
    for (const auto& line : lines) counts.push_back(line.second);
    return counts;
  };
  job.totals = {"一金额:", "1", "二金额:", "2", "三金额:", "3",
                "四金额:", "4", "五金额:", "5", "六金额:", "6"};
  EXPECT_EQ(lines_of_totals(), (std::vector<int>{3, 3}));
  job.totals.resize(8);
  EXPECT_EQ(lines_of_totals(), (std::vector<int>{2, 2}));
}

TEST_F(PageLayoutTest, GivesNoAmountInWordsWhenAForeignCurrencyIsAmongTheEntries) {
  Fill(3);
  job.facts.local_currency = false;
  const Page page = Layout().MakePage(0);
  for (const std::string& text : Texts(page)) EXPECT_NE(text.rfind("人民币大写", 0), 0u) << text;
  EXPECT_TRUE(Has(page, "实收金额: 30.00"));
}

TEST_F(PageLayoutTest, SaysWhatTheListIsAboutUnderTheTitleOfEveryPage) {
  Fill(100);
  job.facts.subject = "客户: 甲公司   起始日期: 2024-03-01";
  const PageLayout layout = Layout();
  for (int number = 0; number < layout.PageCount(); ++number) {
    const Page page = layout.MakePage(number);
    ASSERT_GT(page.texts.size(), 2u);
    EXPECT_EQ(page.texts[0].text, job.title);
    EXPECT_EQ(page.texts[1].text, job.facts.subject);
    EXPECT_EQ(page.texts[2].text, job.company);
    EXPECT_GE(page.texts[1].y, page.texts[0].y + page.texts[0].size);
    EXPECT_GE(page.texts[2].y, page.texts[1].y + page.texts[1].size);
  }
}

TEST_F(PageLayoutTest, BreaksALongSubjectIntoLinesAboveTheTable) {
  Fill(100);
  for (int i = 0; i < 40; ++i) job.facts.subject += "摘要: 货款   ";
  const PageLayout layout = Layout();
  const Page page = layout.MakePage(0);
  EXPECT_FALSE(Overflows(layout, page));
  double head_bottom = 0;
  for (const PlacedText& text : page.texts) {
    if (text.text == job.company) head_bottom = text.y + text.size;
  }
  EXPECT_GT(head_bottom, 36 + 16 + 3 * 9);
  EXPECT_GE(page.lines.front().y1, head_bottom);
}

TEST_F(PageLayoutTest, KeepsItsPlacesWhereThereIsNothingToSayOfTheList) {
  Fill(1);
  const double without = Layout().MakePage(0).lines.front().y1;
  job.facts.subject = "客户: 甲公司";
  EXPECT_GT(Layout().MakePage(0).lines.front().y1, without);
}

TEST_F(PageLayoutTest, PrintsATotalTooLargeForWordsInFiguresAlone) {
  Fill(1);
  job.totals = {"实收金额:", "1000000000000000.00"};
  const Page page = Layout().MakePage(0);
  EXPECT_TRUE(Has(page, "实收金额: 1000000000000000.00"));
  for (const std::string& text : Texts(page)) EXPECT_NE(text.rfind("人民币大写", 0), 0u) << text;
}

TEST_F(PageLayoutTest, ClosesTheRegisterWithItsCountAlone) {
  Fill(3);
  job.kind = 0;
  const Page page = Layout().MakePage(0);
  EXPECT_TRUE(Has(page, "共 3 条"));
  EXPECT_FALSE(Has(page, "应收金额: 100.00"));
}

TEST_F(PageLayoutTest, NeverPutsTheTotalsOverTheFoot) {
  for (int32_t rows = 30; rows < 60; ++rows) {
    Fill(rows);
    const PageLayout layout = Layout();
    const Page last = layout.MakePage(layout.PageCount() - 1);
    double totals_bottom = 0;
    const double foot = FootOf(last);
    for (const PlacedText& text : last.texts) {
      if (text.text == "人民币大写（实收金额）: 叁拾元整")
        totals_bottom = text.y + text.size * 1.35;
    }
    ASSERT_GT(totals_bottom, 0) << rows;
    EXPECT_LE(totals_bottom, foot) << rows;
  }
}

TEST_F(PageLayoutTest, StopsWhenTheUserCancelsWhileTheColumnsAreMeasured) {
  Fill(5000);
  const PageLayout layout(job, Date::FromYmd(2024, 3, 15), metrics, {},
                          [](int64_t, int64_t) { return false; });
  EXPECT_TRUE(layout.Cancelled());
  EXPECT_EQ(layout.PageCount(), 0);
}

TEST_F(PageLayoutTest, StopsWhenTheUserCancelsWhileThePagesAreBroken) {
  Fill(5000);
  int64_t last = 0;
  const PageLayout layout(job, Date::FromYmd(2024, 3, 15), metrics, {},
                          [&](int64_t done, int64_t total) {
                            EXPECT_GT(done, last) << "the work goes on, not back";
                            EXPECT_EQ(total, 10000);
                            last = done;
                            return done <= 5000;
                          });
  EXPECT_TRUE(layout.Cancelled());
  EXPECT_EQ(layout.PageCount(), 0);
}

TEST_F(PageLayoutTest, SpeaksTraditionalChinese) {
  Fill(1);
  job.language = 1;
  const Page page = Layout().MakePage(0);
  EXPECT_TRUE(Has(page, "製表人: 张三"));
  EXPECT_TRUE(Has(page, "第 1 頁 共 1 頁"));
  EXPECT_TRUE(Has(page, "人民幣大寫（实收金额）: 參拾元整"));
}

}  // namespace
}  // namespace qvzj::print
