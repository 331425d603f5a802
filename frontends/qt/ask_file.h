#pragma once

#include <QString>
#include <vector>

class QWidget;

namespace qvzj::qt {

struct FileType {
  QString label;
  QString ending;  ///< of the file's name, without the dot
};

struct FileQuestion {
  QString title;
  QString name;  ///< proposed; without a folder and without an ending
  std::vector<FileType> types;
};

struct FileAnswer {
  QString path;     ///< bears the ending of its type; "" when the user gave up
  size_t type = 0;  ///< index of the chosen type
};

/// Asks where to save a file and as what, by the desktop's own dialog where it has one. Starts in
/// the folder of the last answer. An existing file is replaced only after a question.
FileAnswer AskSaveFile(QWidget& owner, const FileQuestion& question, bool traditional);

}  // namespace qvzj::qt
