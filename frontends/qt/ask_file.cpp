#include "frontends/qt/ask_file.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QStandardPaths>
#include <QTreeView>
#include <algorithm>

#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/box_plan.h"
#include "frontends/view/texts.h"
#include "platform/surroundings.h"

namespace qvzj::qt {
namespace {

void Caption(QFileDialog& dialog, const view::Texts& texts) {
  dialog.setLabelText(QFileDialog::Accept, FromUtf8(texts.save));
  dialog.setLabelText(QFileDialog::Reject, FromUtf8(texts.cancel));
  dialog.setLabelText(QFileDialog::LookIn, FromUtf8(texts.folder));
  dialog.setLabelText(QFileDialog::FileName, FromUtf8(texts.file_name));
  dialog.setLabelText(QFileDialog::FileType, FromUtf8(texts.file_type));
}

QStringList FiltersOf(const view::FileQuestion& question) {
  QStringList filters;
  for (const view::FileType& type : question.types) filters << FromUtf8(view::FilterText(type));
  return filters;
}

/// Dates are shown whole; the names take the rest of the room.
void WidenDates(QFileDialog& dialog) {
  const auto* list = dialog.findChild<QTreeView*>();
  if (list == nullptr) return;  // the desktop's own dialog
  constexpr int kDate = 3;
  QHeaderView* header = list->header();
  header->setStretchLastSection(false);
  header->setSectionResizeMode(kDate, QHeaderView::ResizeToContents);
  header->setSectionResizeMode(0, QHeaderView::Stretch);
}

/// The type that is meant where the typed name says another one than the choice.
size_t MeantType(const std::string& given, const view::FileQuestion& question, size_t chosen,
                 const view::Texts& texts) {
  const std::optional<size_t> typed = view::OtherTypeTyped(given, question, chosen);
  if (!typed) return chosen;
  const Answer answer =
      Around().boxes->Show(view::OtherTypeQuestion(question, *typed, chosen, texts),
                           view::kQuestionYesNo, question.title);
  return answer == Answer::Yes ? *typed : chosen;
}

bool Exists(const std::string& path) { return QFileInfo::exists(FromUtf8(path)); }

}  // namespace

view::FileAnswer AskSaveFile(QWidget& owner, const view::FileQuestion& question, bool traditional) {
  static QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  if (!QDir(folder).exists()) folder = QDir::homePath();
  const QStringList filters = FiltersOf(question);
  QFileDialog dialog(&owner, FromUtf8(question.title), folder);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters(filters);
  size_t chosen = 0;
  // The name follows the type, so that the dialog asks about the file that will be written.
  const auto choose = [&](const std::string& name) {
    dialog.setDefaultSuffix(FromUtf8(question.types[chosen].ending));
    dialog.selectFile(FromUtf8(view::WithEnding(name, question, chosen)));
  };
  choose(question.name);
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
    chosen = static_cast<size_t>(std::max<qsizetype>(filters.indexOf(filter), 0));
    const QStringList names = dialog.selectedFiles();
    if (!names.isEmpty()) choose(ToUtf8(names.first()));
  });
  Caption(dialog, view::TextsOf(traditional));
  Dress(dialog, traditional);
  WidenDates(dialog);
  std::string path;
  while (path.empty() && dialog.exec() == QDialog::Accepted) {
    const std::string given = ToUtf8(dialog.selectedFiles().value(0));
    if (given.empty()) break;
    chosen = MeantType(given, question, chosen, view::TextsOf(traditional));
    const std::string whole = view::WithEnding(given, question, chosen);
    if (view::MustAskAgain(given, whole, Exists)) {
      choose(given);
    } else {
      path = whole;
    }
  }
  owner.activateWindow();
  if (path.empty()) return {};
  folder = QFileInfo(FromUtf8(path)).absolutePath();
  return {path, chosen};
}

}  // namespace qvzj::qt
