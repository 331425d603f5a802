#pragma once

#include <gtest/gtest.h>

#include "suite/store/connections.h"
#include "tests/support/postgres.h"

namespace qvzj::test {

/// The private server that the tests of this program share, started at the first use.
inline PrivatePostgres& Server() {
  static PrivatePostgres server;
  return server;
}

inline store::ServerLogin LoginTo(const std::string& database) {
  return {Server().Address(), PrivatePostgres::kUser, PrivatePostgres::kPassword, database};
}

}  // namespace qvzj::test

/// Skips a test where no server can be started, and says why.
#define QV_NEEDS_SERVER()                                               \
  do {                                                                  \
    const std::string missing = qvzj::test::PrivatePostgres::Missing(); \
    if (!missing.empty()) GTEST_SKIP() << missing;                      \
  } while (false)
