#pragma once

#include <sys/types.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace qvzj::test {

/// A private PostgreSQL server on a loopback port of its own, in a folder of its own. It ends with
/// the object and, should this process be killed, with the process.
class PrivatePostgres {
 public:
  /// Why no server can be started here; "" when one can.
  static std::string Missing();

  /// Makes the cluster and starts it, with settings "name=value" besides those that make it
  /// private. Throws std::runtime_error with the server's log.
  explicit PrivatePostgres(std::vector<std::string> settings = {});
  ~PrivatePostgres();
  PrivatePostgres(const PrivatePostgres&) = delete;
  PrivatePostgres& operator=(const PrivatePostgres&) = delete;

  /// "127.0.0.1:port", as the connection component takes it.
  std::string Address() const { return "127.0.0.1:" + std::to_string(port_); }
  static constexpr const char* kUser = "qvzj";
  static constexpr const char* kPassword = "geheim;{1}";

  /// Makes a database with the suite's empty tables and answers its name.
  std::string MakeDatabase();
  /// The same without tables.
  std::string MakeBareDatabase();
  /// Runs statements in the server's own language on `database`, one at a time.
  void Run(const std::string& database, const std::string& sql) { RunAll(database, {sql}); }
  void RunAll(const std::string& database, const std::vector<std::string>& statements);
  /// Runs the statements of a file, each ended by ";" at the end of a line; lines that begin with
  /// "--" are remarks.
  void RunFile(const std::string& database, const std::filesystem::path& file);

  /// Ends the server without warning, as a failing machine does.
  void Kill();
  void Start();

 private:
  std::string MakeFrom(const std::string& model);
  void InitializeCluster();
  void SpawnServer();
  bool IsReady() const;
  std::filesystem::path Log() const { return folder_.Path() / "log"; }

  TemporaryFolder folder_;
  std::vector<std::string> settings_;
  int port_ = 0;
  pid_t server_ = -1;
  bool has_template_ = false;
  int databases_ = 0;
};

}  // namespace qvzj::test
