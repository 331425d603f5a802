#pragma once

#include <string>

namespace qvzj::exports {

/// A file that is written under a temporary name beside its place and takes it only when it is
/// complete, so that a failed or cancelled export leaves the old file as it was.
class ReplacedFile {
 public:
  /// Throws Error when there can be no file in that place, before any work is done for it.
  explicit ReplacedFile(std::string path);
  /// Removes the temporary file unless Commit was called.
  ~ReplacedFile();
  ReplacedFile(const ReplacedFile&) = delete;
  ReplacedFile& operator=(const ReplacedFile&) = delete;

  const std::string& TemporaryPath() const { return temporary_; }
  /// Puts the temporary file in its place. Throws Error with the system's reason.
  void Commit();

 private:
  std::string path_;
  std::string temporary_;
  bool committed_ = false;
};

}  // namespace qvzj::exports
