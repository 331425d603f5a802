#include "frontends/qt/ask_file.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

#include "frontends/qt/native_texts.h"
#include "frontends/qt/theme.h"

namespace qvzj::qt {
namespace {

void Caption(QFileDialog& dialog, const NativeTexts& texts) {
  dialog.setLabelText(QFileDialog::Accept, texts.save);
  dialog.setLabelText(QFileDialog::Reject, texts.cancel);
  dialog.setLabelText(QFileDialog::LookIn, texts.folder);
  dialog.setLabelText(QFileDialog::FileName, texts.file_name);
  dialog.setLabelText(QFileDialog::FileType, texts.file_type);
}

QStringList FiltersOf(const FileQuestion& question) {
  QStringList filters;
  for (const FileType& type : question.types) {
    filters << QStringLiteral("%1 (*.%2)").arg(type.label, type.ending);
  }
  return filters;
}

/// The path, or name alone, with the ending of the chosen type instead of another type's.
QString WithEnding(const QString& path, const FileQuestion& question, size_t chosen) {
  const QString suffix = QFileInfo(path).suffix();
  const auto typed = [&](const FileType& type) {
    return suffix.compare(type.ending, Qt::CaseInsensitive) == 0;
  };
  const FileType& wanted = question.types[chosen];
  if (typed(wanted)) return path;
  const bool other = std::any_of(question.types.begin(), question.types.end(), typed);
  return (other ? path.chopped(suffix.size() + 1) : path) + '.' + wanted.ending;
}

}  // namespace

FileAnswer AskSaveFile(QWidget& owner, const FileQuestion& question, bool traditional) {
  static QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  if (!QDir(folder).exists()) folder = QDir::homePath();
  const QStringList filters = FiltersOf(question);
  QFileDialog dialog(&owner, question.title, folder);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters(filters);
  size_t chosen = 0;
  // The name follows the type, so that the dialog asks about the file that will be written.
  const auto choose = [&](const QString& name) {
    dialog.setDefaultSuffix(question.types[chosen].ending);
    dialog.selectFile(WithEnding(name, question, chosen));
  };
  choose(question.name);
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
    chosen = static_cast<size_t>(std::max<qsizetype>(filters.indexOf(filter), 0));
    const QStringList names = dialog.selectedFiles();
    if (!names.isEmpty()) choose(names.first());
  });
  Caption(dialog, TextsOf(traditional ? 1 : 0));
  Dress(dialog, traditional);
  QString path;
  while (path.isEmpty() && dialog.exec() == QDialog::Accepted) {
    const QString given = dialog.selectedFiles().value(0);
    if (given.isEmpty()) break;
    const QString whole = WithEnding(given, question, chosen);
    // A file that the dialog has not asked about: it comes again with that one's name.
    const bool unasked = whole != given && QFileInfo::exists(whole);
    if (unasked) {
      choose(given);
    } else {
      path = whole;
    }
  }
  owner.activateWindow();
  if (path.isEmpty()) return {};
  folder = QFileInfo(path).absolutePath();
  return {path, chosen};
}

}  // namespace qvzj::qt
