#include "suite/export/replaced_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "platform/basic/errors.h"

namespace qvzj::exports {
namespace fs = std::filesystem;

ReplacedFile::ReplacedFile(std::string path) : path_(std::move(path)), temporary_(path_ + ".part") {
  if (!std::ofstream(temporary_)) throw Error(path_ + ": " + std::strerror(errno));
}

ReplacedFile::~ReplacedFile() {
  std::error_code ignored;
  if (!committed_) fs::remove(temporary_, ignored);
}

void ReplacedFile::Commit() {
  std::error_code failure;
  fs::rename(temporary_, path_, failure);
  if (failure) throw Error(path_ + ": " + failure.message());
  committed_ = true;
}

}  // namespace qvzj::exports
