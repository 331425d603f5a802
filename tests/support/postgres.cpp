#include "tests/support/postgres.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <random>
#include <sstream>
#include <thread>
#include <vector>

#include "suite/store/connections.h"
#include "suite/store/schema.h"

namespace qvzj::test {
namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

constexpr const char* kPrograms = "/usr/lib/postgresql/15/bin/";
/// The server refuses to run as root; this is whom it runs as then.
constexpr const char* kUnprivileged = "postgres";

/// Starts a program as an unprivileged user, with its output in `log`. The program is ended by the
/// kernel when this process is gone.
pid_t Spawn(const Words& words, const fs::path& log) {
  std::vector<char*> arguments;
  for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  const passwd* user = geteuid() == 0 ? getpwnam(kUnprivileged) : nullptr;
  const pid_t parent = getpid();
  const pid_t child = fork();
  if (child != 0) return child;
  if (user &&
      (setgroups(0, nullptr) != 0 || setgid(user->pw_gid) != 0 || setuid(user->pw_uid) != 0)) {
    _exit(126);
  }
  prctl(PR_SET_PDEATHSIG, SIGQUIT);
  if (getppid() != parent) _exit(126);
  const int output = open(log.c_str(), O_WRONLY | O_APPEND);
  dup2(output, STDOUT_FILENO);
  dup2(output, STDERR_FILENO);
  execv(arguments[0], arguments.data());
  _exit(127);
}

int Wait(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// True when nobody listens at that port of the loopback interface.
bool IsFree(int port) {
  const int probe = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(static_cast<uint16_t>(port));
  const bool bound = bind(probe, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
  close(probe);
  return bound;
}

/// A port that nobody uses right now, below those from which the system serves who asks for any:
/// a client of another test must not sit on it while the server is away.
int FreePort() {
  constexpr int kLowest = 15000;
  constexpr int kHighest = 32000;
  std::random_device dice;
  for (int tries = 0; tries < 1000; ++tries) {
    const int port = kLowest + static_cast<int>(dice() % (kHighest - kLowest));
    if (IsFree(port)) return port;
  }
  throw std::runtime_error("no free port");
}

std::string Contents(const fs::path& file) {
  std::ostringstream text;
  text << std::ifstream(file).rdbuf();
  return text.str();
}

/// A process and all its children.
std::vector<pid_t> FamilyOf(pid_t parent) {
  std::vector<pid_t> family{parent};
  const std::string number = std::to_string(parent);
  std::ifstream children("/proc/" + number + "/task/" + number + "/children");
  for (pid_t child; children >> child;) family.push_back(child);
  return family;
}

}  // namespace

bool Lives(pid_t process) {
  // The state stands behind the name, which ends with the last bracket.
  const std::string state = Contents("/proc/" + std::to_string(process) + "/stat");
  const size_t name_end = state.rfind(')');
  return name_end != std::string::npos && state.compare(name_end, 3, ") Z") != 0;
}

FolderKeeper::FolderKeeper(const fs::path& folder) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("cannot make a pipe");
  alive_ = ends[1];
  std::string path = folder.string();
  remover_ = fork();
  if (remover_ == 0) {
    // Holds no file of the tests open, and waits until the other end is closed.
    dup2(ends[0], STDIN_FILENO);
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    setsid();
    execl("/bin/sh", "sh", "-c", "cat; while [ -e \"$0\" ]; do rm -rf \"$0\"; sleep 0.1; done",
          path.c_str(), nullptr);
    _exit(127);
  }
  close(ends[0]);
}

FolderKeeper::~FolderKeeper() {
  close(alive_);
  Wait(remover_);
}

std::string PrivatePostgres::Missing() {
  if (!fs::exists(std::string(kPrograms) + "postgres")) return "PostgreSQL 15 is not installed";
  if (geteuid() == 0 && !getpwnam(kUnprivileged)) return "there is no user to run PostgreSQL as";
  return "";
}

PrivatePostgres::PrivatePostgres(std::vector<std::string> settings)
    : settings_(std::move(settings)) {
  InitializeCluster();
  Start();
}

PrivatePostgres::~PrivatePostgres() {
  if (server_ < 0) return;
  kill(server_, SIGQUIT);
  Wait(server_);
}

void PrivatePostgres::InitializeCluster() {
  const fs::path log = Log();
  const fs::path password = folder_.Path() / "password";
  std::ofstream(password) << kPassword << "\n";
  std::ofstream(log).flush();
  if (const passwd* user = geteuid() == 0 ? getpwnam(kUnprivileged) : nullptr) {
    for (const fs::path& path : {folder_.Path(), log, password}) {
      if (chown(path.c_str(), user->pw_uid, user->pw_gid) != 0) {
        throw std::runtime_error("the server's folder cannot be handed over");
      }
    }
  }
  Do("initdb", {std::string(kPrograms) + "initdb", "--pgdata", (folder_.Path() / "data").string(),
                "--username", kUser, "--pwfile", password.string(), "--auth=scram-sha-256",
                "--encoding=UTF8", "--locale=C", "--no-sync", "--no-instructions"});
  const bool tls = std::find(settings_.begin(), settings_.end(), "ssl=on") != settings_.end();
  if (tls) MakeCertificate();
}

void PrivatePostgres::MakeCertificate() {
  const fs::path data = folder_.Path() / "data";
  const std::string root = RootCertificate().string();
  const std::string root_key = (data / "root.key").string();
  const Words begin{"/usr/bin/openssl", "req",    "-x509", "-newkey",
                    "rsa:2048",         "-nodes", "-days", "2"};
  const auto make = [&](const Words& rest) {
    Words words = begin;
    words.insert(words.end(), rest.begin(), rest.end());
    Do("openssl", words);
  };
  make({"-subj", "/CN=Root of a test", "-keyout", root_key, "-out", root});
  make({"-subj", "/CN=127.0.0.1", "-addext", "subjectAltName=IP:127.0.0.1", "-CA", root, "-CAkey",
        root_key, "-keyout", (data / "server.key").string(), "-out",
        (data / "server.crt").string()});
}

void PrivatePostgres::Do(const std::string& what, const Words& words) {
  if (Wait(Spawn(words, Log())) != 0)
    throw std::runtime_error(what + " failed: " + Contents(Log()));
}

void PrivatePostgres::LimitFiles(uint64_t bytes) {
  // As the server's user, whose processes root itself need not be allowed to limit.
  const std::string limit = "--fsize=" + (bytes == 0 ? "unlimited" : std::to_string(bytes)) + ":";
  for (const pid_t process : FamilyOf(server_)) {
    const int status =
        Wait(Spawn({"/usr/bin/prlimit", "--pid", std::to_string(process), limit}, Log()));
    // A child may be gone by now.
    if (status != 0 && process == server_) {
      throw std::runtime_error("the server's files cannot be limited: " + Contents(Log()));
    }
  }
}

void PrivatePostgres::Start() {
  const bool first = port_ == 0;
  const auto give_up = std::chrono::steady_clock::now() + std::chrono::seconds(120);
  while (std::chrono::steady_clock::now() < give_up) {
    // What a killed server left behind may keep the next one from starting for a moment; another
    // program may have taken the port just now.
    if (server_ < 0 || waitpid(server_, nullptr, WNOHANG) == server_) {
      if (first) port_ = FreePort();
      SpawnServer();
    }
    if (IsReady()) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  throw std::runtime_error("the server did not start: " + Contents(Log()));
}

bool PrivatePostgres::IsReady() const {
  // The server's own note: its process on the first line, its state on the eighth.
  std::istringstream note(Contents(folder_.Path() / "data" / "postmaster.pid"));
  std::vector<std::string> lines;
  for (std::string line; std::getline(note, line);) lines.push_back(line);
  return lines.size() >= 8 && lines[0] == std::to_string(server_) && lines[7].starts_with("ready");
}

void PrivatePostgres::SpawnServer() {
  Words words{std::string(kPrograms) + "postgres", "-D", (folder_.Path() / "data").string(), "-p",
              std::to_string(port_)};
  Words settings{"listen_addresses=127.0.0.1", "unix_socket_directories=" + folder_.Path().string(),
                 "fsync=off"};
  settings.insert(settings.end(), settings_.begin(), settings_.end());
  for (const std::string& setting : settings) words.insert(words.end(), {"-c", setting});
  server_ = Spawn(words, Log());
}

void PrivatePostgres::Kill() {
  // The processes that serve the connections too: one that has not noticed yet would still answer.
  const std::vector<pid_t> family = FamilyOf(server_);
  for (const pid_t process : family) kill(process, SIGKILL);
  Wait(server_);
  server_ = -1;
  for (const pid_t process : family) {
    while (Lives(process)) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

void PrivatePostgres::RunFile(const std::string& database, const std::filesystem::path& file) {
  std::ifstream in(file);
  if (!in) throw std::runtime_error("cannot read " + file.string());
  std::vector<std::string> statements(1);
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("--")) continue;
    statements.back() += line;
    if (!line.ends_with(';')) continue;
    statements.back().pop_back();
    statements.emplace_back();
  }
  statements.pop_back();
  RunAll(database, statements);
}

void PrivatePostgres::RunAll(const std::string& database,
                             const std::vector<std::string>& statements) {
  const auto store = store::OpenServer({Address(), kUser, kPassword, database}, {});
  for (const std::string& statement : statements) store->Native(statement);
}

std::string PrivatePostgres::MakeDatabase() {
  constexpr const char* kTemplate = "qvzj_empty";
  if (!has_template_) {
    Run("postgres", std::string("create database ") + kTemplate);
    RunAll(kTemplate, store::PostgresSchema());
    has_template_ = true;
  }
  return MakeFrom(kTemplate);
}

std::string PrivatePostgres::MakeBareDatabase() { return MakeFrom("template0"); }

std::string PrivatePostgres::MakeFrom(const std::string& model) {
  const std::string name = "qvzj_" + std::to_string(++databases_);
  Run("postgres", "create database " + name + " template " + model);
  return name;
}

}  // namespace qvzj::test
