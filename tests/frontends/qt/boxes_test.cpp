#include "frontends/qt/boxes.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QFile>
#include <QInputDialog>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QTextEdit>
#include <QTimer>

#include "frontends/qt/services.h"
#include "frontends/qt/translator.h"
#include "tests/frontends/qt/window_world.h"

namespace qvzj::test {
namespace {

/// Does something to the modal box that is about to come up.
void WhenBoxComes(const std::function<void(QDialog&)>& act) {
  QTimer::singleShot(50, [act] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

QStringList ButtonTexts(const QDialog& dialog) {
  QStringList texts;
  for (const QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
    if (button->isVisible()) texts << button->text();
  }
  texts.sort();
  return texts;
}

TEST(Boxes, BearSimplifiedButtonTexts) {
  qt::QtBoxes boxes([] { return 0; });
  QStringList texts;
  WhenBoxComes([&](QDialog& dialog) {
    texts = ButtonTexts(dialog);
    dialog.reject();
  });
  EXPECT_EQ(boxes.Show("a", box::kQuestionOkCancel, "t"), Answer::Cancel);
  EXPECT_EQ(texts, (QStringList{"取消", "确定"}));
}

TEST(Boxes, AreGivenUpWhenTheHostDestroysTheWindowBeneath) {
  qt::QtBoxes boxes([] { return 0; });
  for (const bool input : {false, true}) {
    auto owner = std::make_unique<QWidget>();
    owner->show();
    owner->activateWindow();
    QApplication::setActiveWindow(owner.get());
    WhenBoxComes([&](QDialog& dialog) {
      EXPECT_EQ(dialog.parentWidget(), owner.get());
      owner.reset();
    });
    if (input) {
      EXPECT_EQ(boxes.Input("a", "t", "preset"), std::nullopt);
    } else {
      EXPECT_EQ(boxes.Show("a", box::kQuestionOkCancel, "t"), Answer::Cancel);
    }
  }
}

TEST(Boxes, BearTraditionalButtonTexts) {
  qt::QtBoxes boxes([] { return 1; });
  QStringList texts;
  WhenBoxComes([&](QDialog& dialog) {
    texts = ButtonTexts(dialog);
    dialog.accept();
  });
  boxes.Show("a", box::kExclamation, "t");
  EXPECT_EQ(texts, (QStringList{"確定"}));
}

TEST(Boxes, AnswerOkWithEnter) {
  qt::QtBoxes boxes([] { return 0; });
  WhenBoxComes([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
  EXPECT_EQ(boxes.Show("a", box::kQuestionOkCancel, "t"), Answer::Ok);
}

TEST(Boxes, AnswerCancelWithEscape) {
  qt::QtBoxes boxes([] { return 0; });
  WhenBoxComes([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_EQ(boxes.Show("a", box::kExclamationOkCancel, "t"), Answer::Cancel);
}

TEST(Boxes, AskYesOrNoWhereTheStyleSaysSo) {
  qt::QtBoxes boxes([] { return 0; });
  QStringList texts;
  WhenBoxComes([&](QDialog& dialog) {
    texts = ButtonTexts(dialog);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_EQ(boxes.Show("a", 36, "t"), Answer::Yes);
  EXPECT_EQ(texts, (QStringList{"否", "是"}));
}

TEST(Boxes, ShowATextAsItIs) {
  qt::QtBoxes boxes([] { return 0; });
  QString text;
  WhenBoxComes([&](QDialog& dialog) {
    text = static_cast<QMessageBox&>(dialog).text();
    dialog.reject();
  });
  boxes.Show("<b>甲</b>", box::kPlain, "t");
  EXPECT_EQ(text, "<b>甲</b>");
}

TEST(Boxes, ShowShortAndLongTextsWhole) {
  qt::QtBoxes boxes([] { return 0; });
  for (const std::string text :
       {"a", "帐目已经审核。是否反审核，取消“审核”标志？",
        "系统数据库 /home/zhang/data 属早期版本，无 [客户往来帐管理系统] 功能。请升级系统！"
        "系统数据库 /home/zhang/data 属早期版本，无 [客户往来帐管理系统] 功能。请升级系统！"}) {
    WhenBoxComes([&](QDialog& dialog) {
      const auto* label = dialog.findChild<QLabel*>("qt_msgbox_label");
      const QRect needed = label->fontMetrics().boundingRect(
          QRect(0, 0, label->wordWrap() ? label->width() : 100000, 100000),
          label->wordWrap() ? Qt::TextWordWrap : 0, label->text());
      EXPECT_LE(needed.width(), label->width()) << text;
      EXPECT_LE(needed.height(), label->height()) << text;
      dialog.reject();
    });
    boxes.Show(text, box::kQuestionOkCancel, "客户往来帐管理系统");
  }
}

TEST(Boxes, TakeALineOfText) {
  qt::QtBoxes boxes([] { return 0; });
  WhenBoxComes([](QDialog& dialog) {
    static_cast<QInputDialog&>(dialog).setTextValue("第二口令");
    dialog.accept();
  });
  EXPECT_EQ(boxes.Input("口令", "t", "preset"), "第二口令");
}

TEST(Boxes, OpenTheirDetailOnRequestAndHaveNoButtonForNone) {
  qt::NativeTranslator translator([] { return 0; });
  QApplication::installTranslator(&translator);
  qt::QtBoxes boxes([] { return 0; });
  QStringList texts;
  QString detail;
  bool open = true;
  WhenBoxComes([&](QDialog& dialog) {
    texts = ButtonTexts(dialog);
    auto* shown = dialog.findChild<QTextEdit*>();
    ASSERT_NE(shown, nullptr);
    open = shown->isVisible();
    for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
      if (button->text().startsWith("详情")) button->click();
    }
    if (shown->isVisible()) detail = shown->toPlainText();
    dialog.accept();
  });
  boxes.Show("a", box::kCritical, "t", "disk full\nfree some room");
  EXPECT_FALSE(open);
  EXPECT_TRUE(texts.contains("详情(&D) >>")) << texts.join(' ').toStdString();
  EXPECT_EQ(detail, "disk full\nfree some room");
  WhenBoxComes([&](QDialog& dialog) {
    texts = ButtonTexts(dialog);
    dialog.accept();
  });
  boxes.Show("a", box::kCritical, "t");
  EXPECT_EQ(texts, (QStringList{"确定"}));
  QApplication::removeTranslator(&translator);
}

TEST(Boxes, AnswerNothingWhenTheInputIsCancelled) {
  qt::QtBoxes boxes([] { return 0; });
  WhenBoxComes([](QDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(boxes.Input("口令", "t", "preset"), std::nullopt);
}

TEST(Settings, IgnoreTheCaseOfTheirNames) {
  const TemporaryFolder folder;
  QSettings store(QString::fromStdString((folder.Path() / "s.ini").string()), QSettings::IniFormat);
  qt::QtSettings settings(store);
  settings.Set("Tessary", "qv2000", "JbrFrom", "1");
  EXPECT_EQ(settings.Get("tessary", "QV2000", "jbrfrom", "0"), "1");
  EXPECT_EQ(settings.Get("tessary", "QV2000", "other", "0"), "0");
}

TEST(NativeTexts, TranslateTheEditMenuByLanguage) {
  int language = 0;
  const qt::NativeTranslator translator([&] { return language; });
  EXPECT_EQ(translator.translate("QLineEdit", "&Copy", nullptr, -1), "复制(&C)");
  language = 1;
  EXPECT_EQ(translator.translate("QLineEdit", "&Copy", nullptr, -1), "複製(&C)");
  EXPECT_TRUE(translator.translate("Elsewhere", "&Copy", nullptr, -1).isEmpty());
}

TEST(NativeTexts, TranslateTheToolkitsDialogsByLanguage) {
  const QString files = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (!QFile::exists(files + "/qtbase_zh_CN.qm")) {
    GTEST_SKIP() << "no Chinese translation of Qt on this machine (package qt6-translations-l10n)";
  }
  int language = 0;
  const qt::NativeTranslator translator([&] { return language; });
  EXPECT_EQ(translator.translate("QFileDialog", "Files of type:", nullptr, -1), "文件类型：");
  language = 1;
  EXPECT_EQ(translator.translate("QFileDialog", "Files of type:", nullptr, -1), "檔案型態：");
}

}  // namespace
}  // namespace qvzj::test
