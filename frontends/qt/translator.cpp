#include "frontends/qt/translator.h"
#include "frontends/qt/text.h"
#include "frontends/view/texts.h"

#include <QLibraryInfo>
#include <algorithm>
#include <array>
#include <string_view>

namespace qvzj::qt {

namespace {

struct NativeText {
  std::string_view source;
  std::string_view view::Texts::*text;
};

constexpr std::array kEditTexts{NativeText{"&Undo", &view::Texts::undo},
                                NativeText{"&Redo", &view::Texts::redo},
                                NativeText{"Cu&t", &view::Texts::cut},
                                NativeText{"&Copy", &view::Texts::copy},
                                NativeText{"&Paste", &view::Texts::paste},
                                NativeText{"Delete", &view::Texts::erase},
                                NativeText{"Select All", &view::Texts::select_all}};

/// A box asks for these, whichever way its detail stands.
constexpr std::array kBoxTexts{NativeText{"Show Details...", &view::Texts::show_detail},
                               NativeText{"Hide Details...", &view::Texts::hide_detail}};

/// The module's own text for one of the toolkit's; null when there is none.
template <size_t count>
const NativeText* Find(const std::array<NativeText, count>& texts, std::string_view source) {
  const auto* found = std::find_if(texts.begin(), texts.end(),
                                   [&](const NativeText& text) { return text.source == source; });
  return found == texts.end() ? nullptr : found;
}

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
  const NativeText* own = nullptr;
  if (place == "QLineEdit" || place == "QWidgetTextControl") own = Find(kEditTexts, source);
  if (place == "QMessageBox") own = Find(kBoxTexts, source);
  if (own != nullptr) return FromUtf8(view::TextsOf(language_() != 0).*(own->text));
  return toolkit_[language_() == 0 ? 0 : 1].translate(context, source, disambiguation, number);
}

}  // namespace qvzj::qt
