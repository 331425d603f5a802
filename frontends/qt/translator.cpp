#include "frontends/qt/translator.h"
#include "frontends/qt/text.h"
#include "frontends/view/texts.h"

#include <QLibraryInfo>
#include <algorithm>
#include <array>
#include <string_view>

namespace qvzj::qt {

namespace {

struct EditText {
  std::string_view source;
  std::string_view view::Texts::*text;
};

constexpr std::array kEditTexts{EditText{"&Undo", &view::Texts::undo},
                                EditText{"&Redo", &view::Texts::redo},
                                EditText{"Cu&t", &view::Texts::cut},
                                EditText{"&Copy", &view::Texts::copy},
                                EditText{"&Paste", &view::Texts::paste},
                                EditText{"Delete", &view::Texts::erase},
                                EditText{"Select All", &view::Texts::select_all}};

}  // namespace

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
    if (found != kEditTexts.end()) return FromUtf8(view::TextsOf(language_() != 0).*(found->text));
  }
  return toolkit_[language_() == 0 ? 0 : 1].translate(context, source, disambiguation, number);
}

}  // namespace qvzj::qt
