#include "adapters/sqlite/disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <utility>

namespace qvzj {
namespace {

// Type numbers of statfs(2) for file systems that live on another machine or in another process.
constexpr std::array<unsigned long, 14> kRemote{
    0x6969,      // NFS
    0x517B,      // SMB
    0xFF534D42,  // CIFS
    0xFE534D42,  // SMB 2
    0x65735546,  // FUSE: sshfs, cloud drives
    0x01021997,  // 9P: shared folders of virtual machines
    0x786F4256,  // shared folders of VirtualBox
    0xBACBACBC,  // shared folders of VMware
    0x00C36400,  // Ceph
    0x5346414F,  // AFS
    0x73757245,  // Coda
    0x0BD00BD0,  // Lustre
    0x01161970,  // GFS2
    0x7461636F,  // OCFS2
};

}  // namespace

bool OnLocalDisk(const std::string& file) {
  struct statfs info {};
  if (statfs(file.c_str(), &info) != 0) return false;
  const auto type = static_cast<unsigned long>(info.f_type) & 0xFFFFFFFFUL;
  return std::find(kRemote.begin(), kRemote.end(), type) == kRemote.end();
}

std::optional<FileIdentity> IdentityOf(const std::string& file) {
  struct stat info {};
  if (stat(file.c_str(), &info) != 0) return std::nullopt;
  return FileIdentity{info.st_dev, info.st_ino};
}

ShortName::ShortName(const std::string& file) : text_(file) {
  const size_t slash = file.rfind('/');
  if (slash == std::string::npos) return;
  folder_ = open(file.substr(0, slash + 1).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
  if (folder_ >= 0) text_ = "/proc/self/fd/" + std::to_string(folder_) + file.substr(slash);
}

ShortName::ShortName(ShortName&& other) noexcept
    : text_(std::move(other.text_)), folder_(std::exchange(other.folder_, -1)) {}

ShortName::~ShortName() {
  if (folder_ >= 0) close(folder_);
}

}  // namespace qvzj
