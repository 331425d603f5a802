#include "frontends/qt/native_texts.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace qvzj::qt {

namespace {

const NativeTexts kSimplified{"确定",       "取消",           "是",
                              "否",         "撤消(&U)",       "重做(&R)",
                              "剪切(&T)",   "复制(&C)",       "粘贴(&P)",
                              "删除(&D)",   "全选(&A)",       "复制所选行(&C)",
                              "查找(&F)…",  "查找下一个(&N)", "恢复列宽和列序(&R)",
                              "已选 %1 行", "%1 合计 %2",     "没有找到：%1"};

const NativeTexts kTraditional{"確定",       "取消",           "是",
                               "否",         "復原(&U)",       "重做(&R)",
                               "剪下(&T)",   "複製(&C)",       "貼上(&P)",
                               "刪除(&D)",   "全選(&A)",       "複製所選列(&C)",
                               "尋找(&F)…",  "尋找下一個(&N)", "恢復欄寬和欄序(&R)",
                               "已選 %1 列", "%1 合計 %2",     "沒有找到：%1"};

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

const NativeTexts& TextsOf(int language) { return language == 0 ? kSimplified : kTraditional; }

QString NativeTranslator::translate(const char* context, const char* source, const char*,
                                    int) const {
  const std::string_view place = context == nullptr ? "" : context;
  if (place != "QLineEdit" && place != "QWidgetTextControl") return {};
  const auto* found = std::find_if(kEditTexts.begin(), kEditTexts.end(),
                                   [&](const EditText& text) { return text.source == source; });
  return found == kEditTexts.end() ? QString() : TextsOf(language_()).*(found->text);
}

}  // namespace qvzj::qt
