#pragma once

#include <sys/resource.h>

#include <csignal>

namespace qvzj::test {

/// As long as it lives, no file of this process can grow beyond a size: a full disk as a program
/// meets it, without filling one.
class SmallFiles {
 public:
  explicit SmallFiles(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~SmallFiles() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signal_);
  }
  SmallFiles(const SmallFiles&) = delete;
  SmallFiles& operator=(const SmallFiles&) = delete;

 private:
  void (*signal_)(int);
  rlimit before_{};
};

}  // namespace qvzj::test
