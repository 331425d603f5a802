#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace qvzj {

/// True when the file lies on a disk of this machine, where its memory can be shared between
/// processes and locks are reliable. False for network and user-space file systems and when it
/// cannot be told.
bool OnLocalDisk(const std::string& file);

/// Which file stands under a name, told apart from another one that takes its place.
struct FileIdentity {
  uint64_t device = 0;
  uint64_t number = 0;
  bool operator==(const FileIdentity&) const = default;
};

/// Empty when there is no such file, or it cannot be looked at.
std::optional<FileIdentity> IdentityOf(const std::string& file);

/// A short name for a file whose own is longer than the engine takes (some 500 bytes, which 160
/// Chinese characters need): its folder is held open, and the file named through that. Valid as
/// long as the object; may be moved.
class ShortName {
 public:
  /// `file` is an absolute path; it stays its own short name where the folder cannot be held.
  explicit ShortName(const std::string& file);
  ShortName(ShortName&& other) noexcept;
  ShortName& operator=(ShortName&&) = delete;
  ~ShortName();
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
  int folder_ = -1;
};

}  // namespace qvzj
