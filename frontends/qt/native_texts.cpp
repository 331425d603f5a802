#include "frontends/qt/native_texts.h"

#include <QLibraryInfo>
#include <algorithm>
#include <array>
#include <string_view>

namespace qvzj::qt {

namespace {

NativeTexts Simplified() {
  NativeTexts texts;
  texts.ok = "确定";
  texts.cancel = "取消";
  texts.yes = "是";
  texts.no = "否";
  texts.save = "保存(&S)";
  texts.folder = "文件夹:";
  texts.file_name = "文件名:";
  texts.file_type = "类型:";
  texts.undo = "撤消(&U)";
  texts.redo = "重做(&R)";
  texts.cut = "剪切(&T)";
  texts.copy = "复制(&C)";
  texts.paste = "粘贴(&P)";
  texts.erase = "删除";
  texts.select_all = "全选";
  texts.copy_rows = "复制所选行(&C)";
  texts.find = "查找(&F)…";
  texts.find_next = "查找下一个(&N)";
  texts.export_grid = "导出(&E)…";
  texts.print = "打印(&P)";
  texts.reset_columns = "恢复列宽和列序(&R)";
  texts.selected = "已选 %1 行";
  texts.sum = "%1 合计 %2";
  texts.find_here = "查找";
  texts.not_found = "没有找到";
  texts.exporting = "正在导出…";
  texts.not_exported = "没有导出，原有的文件没有改动。\n%1";
  texts.excel_file = "Excel 工作簿";
  texts.csv_utf8_file = "CSV 文件，UTF-8";
  texts.csv_gb_file = "CSV 文件，GB18030";
  texts.exported = "已导出 %1 行：\n%2";
  texts.sheets = "一个工作表放不下，分在 %1 个工作表中。";
  texts.lost = "有 %1 个字符无法用该编码保存，已写成“?”。";
  texts.shortened = "放不下或不能录入的文字没有录入。";
  return texts;
}

NativeTexts Traditional() {
  NativeTexts texts;
  texts.ok = "確定";
  texts.cancel = "取消";
  texts.yes = "是";
  texts.no = "否";
  texts.save = "保存(&S)";
  texts.folder = "資料夾:";
  texts.file_name = "檔名:";
  texts.file_type = "類型:";
  texts.undo = "復原(&U)";
  texts.redo = "重做(&R)";
  texts.cut = "剪下(&T)";
  texts.copy = "複製(&C)";
  texts.paste = "貼上(&P)";
  texts.erase = "刪除";
  texts.select_all = "全選";
  texts.copy_rows = "複製所選行(&C)";
  texts.find = "尋找(&F)…";
  texts.find_next = "尋找下一個(&N)";
  texts.export_grid = "匯出(&E)…";
  texts.print = "打印(&P)";
  texts.reset_columns = "恢復欄寬和欄序(&R)";
  texts.selected = "已選 %1 行";
  texts.sum = "%1 合計 %2";
  texts.find_here = "尋找";
  texts.not_found = "沒有找到";
  texts.exporting = "正在匯出…";
  texts.not_exported = "沒有匯出，原有的檔案沒有改動。\n%1";
  texts.excel_file = "Excel 活頁簿";
  texts.csv_utf8_file = "CSV 檔案，UTF-8";
  texts.csv_gb_file = "CSV 檔案，GB18030";
  texts.exported = "已匯出 %1 行：\n%2";
  texts.sheets = "一個工作表放不下，分在 %1 個工作表中。";
  texts.lost = "有 %1 個字元無法用該編碼保存，已寫成「?」。";
  texts.shortened = "放不下或不能輸入的文字沒有輸入。";
  return texts;
}

struct EditText {
  std::string_view source;
  QString NativeTexts::*text;
};

constexpr std::array kEditTexts{EditText{"&Undo", &NativeTexts::undo},
                                EditText{"&Redo", &NativeTexts::redo},
                                EditText{"Cu&t", &NativeTexts::cut},
                                EditText{"&Copy", &NativeTexts::copy},
                                EditText{"&Paste", &NativeTexts::paste},
                                EditText{"Delete", &NativeTexts::erase},
                                EditText{"Select All", &NativeTexts::select_all}};

}  // namespace

const NativeTexts& TextsOf(int language) {
  static const NativeTexts simplified = Simplified();
  static const NativeTexts traditional = Traditional();
  return language == 0 ? simplified : traditional;
}

NativeTranslator::NativeTranslator(std::function<int()> language) : language_(std::move(language)) {
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  // A missing file leaves its translator empty, and the toolkit's dialogs speak English.
  (void)toolkit_[0].load(QStringLiteral("qtbase_zh_CN"), folder);
  (void)toolkit_[1].load(QStringLiteral("qtbase_zh_TW"), folder);
}

QString NativeTranslator::translate(const char* context, const char* source,
                                    const char* disambiguation, int number) const {
  const std::string_view place = context == nullptr ? "" : context;
  if (place == "QLineEdit" || place == "QWidgetTextControl") {
    const auto* found = std::find_if(kEditTexts.begin(), kEditTexts.end(),
                                     [&](const EditText& text) { return text.source == source; });
    if (found != kEditTexts.end()) return TextsOf(language_()).*(found->text);
  }
  return toolkit_[language_() == 0 ? 0 : 1].translate(context, source, disambiguation, number);
}

}  // namespace qvzj::qt
