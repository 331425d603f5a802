#include "adapters/sqlite/disk.h"

#include <sys/vfs.h>

#include <algorithm>
#include <array>

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

}  // namespace qvzj
