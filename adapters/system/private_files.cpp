#include "adapters/system/private_files.h"

#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace qvzj {
namespace fs = std::filesystem;

void MakePrivateFile(const std::string& file) {
  // Makes it with its rights in one step, so that nobody can open it in between.
  mknod(file.c_str(), S_IFREG | S_IRUSR | S_IWUSR, 0);
}

void MakePrivateFolder(const std::string& folder) {
  const fs::path path(folder);
  if (path.empty() || fs::is_directory(path)) return;
  if (path.has_parent_path() && path.parent_path() != path) {
    MakePrivateFolder(path.parent_path().string());
  }
  const bool made = mkdir(path.c_str(), S_IRWXU) == 0;
  const std::error_code failure(errno, std::generic_category());
  if (!made && !fs::is_directory(path)) {
    throw fs::filesystem_error("cannot make the folder", path, failure);
  }
}

}  // namespace qvzj
