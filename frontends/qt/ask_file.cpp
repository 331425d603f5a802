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

/// The name with the ending of the chosen type instead of another type's.
QString WithEnding(const QString& name, const FileQuestion& question, size_t chosen) {
  const QFileInfo file(name);
  const bool typed =
      std::any_of(question.types.begin(), question.types.end(), [&](const FileType& type) {
        return file.suffix().compare(type.ending, Qt::CaseInsensitive) == 0;
      });
  return (typed ? file.completeBaseName() : file.fileName()) + '.' + question.types[chosen].ending;
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
  const bool accepted = dialog.exec() == QDialog::Accepted;
  owner.activateWindow();
  if (!accepted || dialog.selectedFiles().isEmpty()) return {};
  folder = dialog.directory().absolutePath();
  return {dialog.selectedFiles().first(), chosen};
}

}  // namespace qvzj::qt
