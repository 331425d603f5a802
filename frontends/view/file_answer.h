#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "frontends/view/texts.h"

/// Questions for a file to save, and what an answer means. Texts and paths are UTF-8.
namespace qvzj::view {

struct FileType {
  std::string label;
  std::string ending;  ///< of the file's name, without the dot
};

struct FileQuestion {
  std::string title;
  std::string name;  ///< proposed; without a folder and without an ending
  std::vector<FileType> types;
};

struct FileAnswer {
  std::string path;  ///< bears the ending of its type; "" when the user gave up
  size_t type = 0;   ///< index of the chosen type
};

/// The type as a file dialog lists it: "Book (*.xlsx)".
std::string FilterText(const FileType& type);

/// The path, or name alone, with the ending of the chosen type instead of another type's.
std::string WithEnding(const std::string& path, const FileQuestion& question, size_t chosen);

/// The type that the ending of a typed name belongs to when that is another ending than the chosen
/// type's; empty when the name agrees with the choice or bears no type's ending. Which of the two
/// is meant only the user knows.
std::optional<size_t> OtherTypeTyped(const std::string& given, const FileQuestion& question,
                                     size_t chosen);
/// The question which of them is meant: yes for the one that the name says.
std::string OtherTypeQuestion(const FileQuestion& question, size_t typed, size_t chosen,
                              const Texts& texts);

/// True when the file that would be written is there and is another one than the dialog has asked
/// about: the dialog comes again with that one's name.
bool MustAskAgain(const std::string& given, const std::string& whole,
                  const std::function<bool(const std::string&)>& exists);

}  // namespace qvzj::view
