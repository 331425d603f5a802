#include <gtest/gtest.h>

#include <QLabel>
#include <QPdfWriter>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QWheelEvent>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "frontends/qt/print/page_desk.h"
#include "frontends/qt/print/page_output.h"
#include "frontends/qt/print/paint_page.h"
#include "frontends/qt/print/preview_window.h"
#include "frontends/qt/theme.h"
#include "platform/basic/errors.h"
#include "tests/frontends/qt/window_world.h"
#include "tests/support/small_files.h"

namespace qvzj::test {
namespace {

namespace fs = std::filesystem;

/// Pages that say their number.
class Numbered : public PageSource {
 public:
  explicit Numbered(int count, std::string said = "page") : count_(count), said_(std::move(said)) {}
  int PageCount() const override { return count_; }
  double PageWidth() const override { return 595; }
  double PageHeight() const override { return 842; }
  Page MakePage(int page) const override {
    Page made;
    PlacedText text;
    text.x = text.y = 40;
    text.width = 400;
    text.text = count_ == 1 ? said_ : said_ + std::to_string(page + 1);
    made.texts.push_back(text);
    return made;
  }

 private:
  int count_;
  std::string said_;
};

class Preview : public testing::Test {
 protected:
  explicit Preview(bool traditional = false)
      : window_(pages_, "往来总帐清单", qt::ThemeFont(false), traditional) {
    window_.show();
    window_.activateWindow();
    QApplication::processEvents();
  }

  int Shown() { return window_.Desk().Current() + 1; }
  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    QApplication::processEvents();
  }
  /// Turns the mouse wheel over the desk; below 0 is towards the user.
  void Wheel(int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* desk = window_.Desk().viewport();
    const QPointF at(100, 100);
    QWheelEvent event(at, desk->mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(desk, &event);
    QApplication::processEvents();
  }
  QPushButton* Button(const QString& text) {
    for (QPushButton* button : window_.findChildren<QPushButton*>()) {
      if (button->text() == text || button->accessibleName() == text) return button;
    }
    return nullptr;
  }

  Numbered pages_{5};
  qt::PreviewWindow window_;
};

TEST_F(Preview, LeafsByPageKeysAndStopsAtTheEnds) {
  Key(Qt::Key_PageDown);
  Key(Qt::Key_PageDown);
  EXPECT_EQ(Shown(), 3);
  Key(Qt::Key_PageUp);
  EXPECT_EQ(Shown(), 2);
  Key(Qt::Key_End);
  Key(Qt::Key_PageDown);
  EXPECT_EQ(Shown(), 5);
  Key(Qt::Key_Home);
  Key(Qt::Key_PageUp);
  EXPECT_EQ(Shown(), 1);
}

TEST_F(Preview, OffersOnlyTheWaysThatThereAre) {
  EXPECT_FALSE(Button("上一页")->isEnabled());
  EXPECT_TRUE(Button("末页")->isEnabled());
  Button("末页")->click();
  EXPECT_TRUE(Button("首页")->isEnabled());
  EXPECT_FALSE(Button("下一页")->isEnabled());
}

TEST_F(Preview, GoesToATypedPageWithEnterAndPressesNoButtonByIt) {
  auto* number = window_.findChild<QSpinBox*>();
  number->setFocus();
  number->selectAll();
  QTest::keyClicks(number, "4");
  EXPECT_EQ(Shown(), 1) << "a number half typed is none";
  Key(Qt::Key_Return);
  EXPECT_EQ(Shown(), 4);
  EXPECT_TRUE(window_.isVisible());
  Key(Qt::Key_PageDown);
  EXPECT_EQ(Shown(), 5) << "the page keys leaf from the number too";
}

TEST_F(Preview, LeafsOnWithTheWheelAtTheEndOfAPage) {
  QScrollBar& bar = *window_.Desk().verticalScrollBar();
  ASSERT_GT(bar.maximum(), 0) << "a portrait page fitted to the width is higher than the desk";
  Wheel(-1);
  EXPECT_EQ(Shown(), 1);
  EXPECT_GT(bar.value(), 0);
  bar.setValue(bar.maximum());
  Wheel(-1);
  EXPECT_EQ(Shown(), 2);
  EXPECT_EQ(bar.value(), 0);
  Wheel(1);
  EXPECT_EQ(Shown(), 1);
  EXPECT_EQ(bar.value(), bar.maximum()) << "back to where reading stopped";
}

TEST_F(Preview, SizesByKeysAndWheel) {
  Key(Qt::Key_0, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(window_.Desk().Zoom(), 1);
  Key(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(window_.Desk().Zoom(), 1.25);
  Key(Qt::Key_Minus, Qt::ControlModifier);
  Wheel(-1, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(window_.Desk().Zoom(), 0.8);
  EXPECT_EQ(Shown(), 1);
  EXPECT_NE(Button("80%"), nullptr);
}

TEST_F(Preview, FollowsTheWindowInTheChosenFit) {
  EXPECT_EQ(window_.Desk().Fit(), view::PageFit::Width);
  const double wide = window_.Desk().Zoom();
  window_.resize(window_.width() - 200, window_.height());
  QApplication::processEvents();
  EXPECT_LT(window_.Desk().Zoom(), wide);
  Button("整页(&F)")->click();
  EXPECT_EQ(window_.Desk().verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(window_.Desk().horizontalScrollBar()->maximum(), 0);
  Button("适合宽度(&W)")->click();
  EXPECT_EQ(window_.Desk().horizontalScrollBar()->maximum(), 0);
  EXPECT_GT(window_.Desk().verticalScrollBar()->maximum(), 0);
}

TEST_F(Preview, LaysThePageInTheMiddle) {
  Button("整页(&F)")->click();
  QApplication::processEvents();
  const QWidget* sheet = window_.Desk().widget();
  const int left = sheet->x();
  const int right = window_.Desk().viewport()->width() - sheet->geometry().right() - 1;
  EXPECT_NEAR(left, right, 1);
}

TEST_F(Preview, ClosesWithEscape) {
  Key(Qt::Key_Escape);
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(Preview, NamesEverythingForAssistiveTechnology) {
  for (const QPushButton* button : window_.findChildren<QPushButton*>()) {
    EXPECT_FALSE(button->accessibleName().isEmpty() && button->text().size() < 2)
        << qPrintable(button->text());
  }
  EXPECT_EQ(window_.findChild<QSpinBox*>()->accessibleName(), "页码");
  EXPECT_EQ(window_.Desk().accessibleName(), "往来总帐清单");
}

class TraditionalPreview : public Preview {
 protected:
  TraditionalPreview() : Preview(true) {}
};

TEST_F(TraditionalPreview, SpeaksTheModulesLanguage) {
  EXPECT_NE(Button("上一頁"), nullptr);
  EXPECT_NE(Button("適合寬度(&W)"), nullptr);
  EXPECT_EQ(Button("上一页"), nullptr);
}

void ExpectWhole(const qt::PreviewWindow& window) {
  for (const QPushButton* button : window.findChildren<QPushButton*>()) {
    QString text = button->text();
    text.remove('&');
    EXPECT_LE(button->fontMetrics().horizontalAdvance(text) + 8, button->width())
        << qPrintable(text);
  }
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    if (label->text().isEmpty()) continue;
    EXPECT_LE(label->sizeHint().width(), label->width()) << qPrintable(label->text());
  }
}

TEST_F(Preview, ShowsItsTextsWhole) { ExpectWhole(window_); }
TEST_F(TraditionalPreview, ShowsItsTextsWhole) { ExpectWhole(window_); }

TEST_F(Preview, SaysWhereThePdfWent) {
  const TemporaryFolder folder;
  const fs::path file = folder.Path() / "ledger.pdf";
  window_.WritePdfTo(QString::fromStdString(file.string()));
  EXPECT_TRUE(fs::exists(file));
  const auto labels = window_.findChildren<QLabel*>();
  EXPECT_TRUE(std::any_of(labels.begin(), labels.end(),
                          [](QLabel* label) { return label->text() == "已存为 ledger.pdf"; }));
}

TEST_F(Preview, SaysWhenThePdfCannotBeWritten) {
  World world;
  window_.WritePdfTo("/nowhere/ledger.pdf");
  const auto errors = world.headless.boxes.TakeErrors();
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_NE(errors[0].find("没有写成，原有的文件没有改动。"), std::string::npos) << errors[0];
  EXPECT_NE(errors[0].find("/nowhere/ledger.pdf"), std::string::npos) << errors[0];
}

/// The old file of that name and what else lies in its folder.
class PdfFile : public testing::Test {
 protected:
  PdfFile() { std::ofstream(file_) << "old"; }

  bool Write(const Progress& progress) {
    return qt::WritePdf(Numbered(4), QString::fromStdString(file_.string()), "t",
                        qt::ThemeFont(false), progress);
  }
  static std::string Text(const fs::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
  }
  std::string Bytes() const { return Text(file_); }
  int64_t Files() const {
    return std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator());
  }

  const TemporaryFolder folder_;
  const fs::path file_ = folder_.Path() / "out.pdf";
};

TEST_F(PdfFile, ReplacesAnOlderOne) {
  std::vector<int64_t> steps;
  EXPECT_TRUE(Write([&](int64_t done, int64_t total) {
    EXPECT_EQ(total, 4);
    steps.push_back(done);
    return true;
  }));
  EXPECT_EQ(steps, (std::vector<int64_t>{0, 1, 2, 3}));
  EXPECT_EQ(Bytes().substr(0, 5), "%PDF-");
  EXPECT_EQ(Files(), 1);
}

TEST_F(PdfFile, LeavesTheOlderOneWholeWhenThePaintingIsCancelled) {
  EXPECT_FALSE(Write([](int64_t done, int64_t) { return done < 2; }));
  EXPECT_EQ(Bytes(), "old");
  EXPECT_EQ(Files(), 1) << "half a file stayed behind";
}

TEST_F(PdfFile, LeavesTheOlderOneWholeWhenTheDiskIsFull) {
  {
    const SmallFiles full(1000);
    EXPECT_THROW(Write({}), Error);
  }
  EXPECT_EQ(Bytes(), "old");
  EXPECT_EQ(Files(), 1) << "half a file stayed behind";
}

TEST_F(PdfFile, CanBeSearchedForItsTexts) {
  if (std::system("command -v pdftotext >/dev/null 2>&1") != 0) {
    GTEST_SKIP() << "no reader of PDF files on this machine (package poppler-utils)";
  }
  Numbered page(1, "票号 PZ20240301-0017 实收 1234.50");
  qt::WritePdf(page, QString::fromStdString(file_.string()), "t", qt::ThemeFont(false), {});
  const fs::path text = folder_.Path() / "out.txt";
  ASSERT_EQ(std::system(("pdftotext " + file_.string() + " " + text.string()).c_str()), 0);
  std::string line;
  std::getline(std::ifstream(text) >> std::ws, line);
  EXPECT_EQ(line, "票号 PZ20240301-0017 实收 1234.50");
}

TEST_F(PdfFile, HoldsOnlyThePagesThatAreAskedFor) {
  if (std::system("command -v pdftotext >/dev/null 2>&1") != 0) {
    GTEST_SKIP() << "no reader of PDF files on this machine (package poppler-utils)";
  }
  {
    QPdfWriter writer(QString::fromStdString(file_.string()));
    const Numbered pages(5);
    qt::FitPaper(writer, pages);
    EXPECT_TRUE(qt::PaintPages(writer, 1200, pages, 1, 2, qt::ThemeFont(false), {}));
  }
  ASSERT_EQ(std::system(("pdftotext " + file_.string()).c_str()), 0);
  const std::string text = Text(folder_.Path() / "out.txt");
  EXPECT_EQ(text, "page2\n\n\x0Cpage3\n\n\x0C");
}

/// A desktop output whose layout takes so long that the user sees it.
TEST(PageOutput, LetsTheUserCancelTheLayout) {
  qt::QtPageOutput output([] { return false; });
  const auto dialog = [] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* work = qobject_cast<QProgressDialog*>(window);
      if (work != nullptr && work->isVisible()) return work;
    }
    return static_cast<QProgressDialog*>(nullptr);
  };
  int64_t done = 0;
  while (dialog() == nullptr && done < 1000) {
    ASSERT_TRUE(output.ShowProgress(++done, 10000));
    QTest::qSleep(5);
  }
  ASSERT_NE(dialog(), nullptr);
  EXPECT_EQ(dialog()->labelText(), "正在排版…");
  EXPECT_EQ(dialog()->windowModality(), Qt::ApplicationModal) << "the list must stay as it is";
  const int shown = dialog()->value();
  EXPECT_TRUE(output.ShowProgress(5000, 10000));
  EXPECT_GT(dialog()->value(), shown);
  auto* cancel = dialog()->findChild<QPushButton*>();
  EXPECT_EQ(cancel->text(), "取消");
  cancel->click();
  EXPECT_FALSE(output.ShowProgress(5001, 10000));
  EXPECT_EQ(dialog(), nullptr);
}

TEST_F(PdfFile, IsNotWrittenIntoAFolderThatIsNotThere) {
  EXPECT_THROW(qt::WritePdf(Numbered(1), "/nowhere/out.pdf", "t", qt::ThemeFont(false), {}), Error);
}

}  // namespace
}  // namespace qvzj::test
