#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace qvzj::test {

/// A folder for a rights database that is gone with the object.
class RightsFolder {
 public:
  RightsFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "qvzj-rights-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary folder");
    path_ = pattern;
  }
  ~RightsFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  RightsFolder(const RightsFolder&) = delete;
  RightsFolder& operator=(const RightsFolder&) = delete;

  const std::string& Path() const { return path_; }
  std::string File() const { return path_ + "/qvSet.mdb"; }
  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path_ + "/" + name, std::ios::binary) << bytes;
  }
  /// Does any file of the folder hold these bytes?
  bool AnyFileHolds(const std::string& bytes) const {
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      std::ifstream in(entry.path(), std::ios::binary);
      const std::string all{std::istreambuf_iterator<char>(in), {}};
      if (all.find(bytes) != std::string::npos) return true;
    }
    return false;
  }

 private:
  std::string path_;
};

}  // namespace qvzj::test
