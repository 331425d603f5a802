#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "adapters/odbc/odbc_handle.h"
#include "adapters/odbc/odbc_session.h"
#include "control/qvJxc_Zj.h"
#include "frontends/headless/headless.h"
#include "suite/store/connections.h"
#include "tests/support/postgres.h"

// Ledgers on a private server, and what is measured on them.
namespace qvzj::bench {

/// The customer on the first row of the register, whose 1,000 entries are spread evenly over the
/// ledger, whatever its size.
inline constexpr int kBenchCustomerId = 1;

/// A database of so many customers and ledger entries of two years, as a server keeps it that has
/// had time to tidy up.
class ServerLedger {
 public:
  ServerLedger(test::PrivatePostgres& server, int64_t customers, int64_t entries);

  int64_t Entries() const { return entries_; }
  const store::ServerLogin& Login() const { return login_; }
  OdbcSession& Session() { return static_cast<OdbcSession&>(*session_); }
  /// Fetches the rows of a statement of the module in blocks through ODBC alone.
  void FetchBare(const std::string& statement);

 private:
  int64_t entries_;
  store::ServerLogin login_;
  std::unique_ptr<data::Store> session_;
  std::unique_ptr<OdbcConnection> bare_;
};

/// The control opened without a window on a server, in customers mode. One at a time.
class ServerForm {
 public:
  explicit ServerForm(const store::ServerLogin& login);
  ~ServerForm();
  ServerForm(const ServerForm&) = delete;
  ServerForm& operator=(const ServerForm&) = delete;

  frmZj& Form() { return *control_.Form(); }

 private:
  Headless headless_;
  store::SuiteConnections connections_;
  qvJxc_Zj control_;
};

/// A statement of the module as it builds it for a server.
struct ServerStatement {
  const char* name;
  std::string text;
  bool writes = false;
};

/// One of every kind that the module runs.
std::vector<ServerStatement> ServerStatements();
/// The statement of the ledger of all customers.
std::string WholeLedger();
/// The statements of the register, and of the ledger of the customer on its first row.
std::string WholeRegister();
std::string LedgerOfOne();

}  // namespace qvzj::bench
