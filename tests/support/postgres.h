#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace qvzj::test {

/// True while a process runs; a dead one of which only its number is left does not.
bool Lives(pid_t process);

/// Removes a folder when the object is gone, also when that is because the process was killed.
class FolderKeeper {
 public:
  explicit FolderKeeper(const std::filesystem::path& folder);
  ~FolderKeeper();
  FolderKeeper(const FolderKeeper&) = delete;
  FolderKeeper& operator=(const FolderKeeper&) = delete;

 private:
  int alive_ = -1;  ///< end of a pipe that is closed with this process
  pid_t remover_ = -1;
};

/// A private PostgreSQL server on a loopback port of its own, in a folder of its own. It ends with
/// the object and, should this process be killed, with the process; so does the folder.
class PrivatePostgres {
 public:
  /// Why no server can be started here; "" when one can.
  static std::string Missing();

  /// Makes the cluster and starts it, with settings "name=value" besides those that make it
  /// private; with "ssl=on" also a certificate for its address. Throws std::runtime_error with the
  /// server's log.
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
  /// No file of the server may grow beyond so many bytes from here on, as on a full disk; 0 takes
  /// the limit away. Its log of changes needs 16 MB.
  void LimitFiles(uint64_t bytes);

  /// The root that its certificate comes from, with "ssl=on".
  std::filesystem::path RootCertificate() const { return Folder() / "root.crt"; }
  const std::filesystem::path& Folder() const { return folder_.Path(); }
  pid_t Process() const { return server_; }

 private:
  std::string MakeFrom(const std::string& model);
  void InitializeCluster();
  void MakeCertificate();
  /// Runs a program as the server's user and waits; throws when it fails.
  void Do(const std::string& what, const std::vector<std::string>& words);
  void SpawnServer();
  bool IsReady() const;
  std::filesystem::path Log() const { return folder_.Path() / "log"; }

  TemporaryFolder folder_;
  FolderKeeper keeper_{folder_.Path()};
  std::vector<std::string> settings_;
  int port_ = 0;
  pid_t server_ = -1;
  bool has_template_ = false;
  int databases_ = 0;
};

}  // namespace qvzj::test
