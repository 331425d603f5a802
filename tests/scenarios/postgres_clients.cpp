// Ten clients at once key, approve, unapprove and delete on one PostgreSQL server; afterwards every
// entry must be there, and the checks of qvdb must find no counter-entry out of step.
//
//   postgres_clients PROGRAM

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "suite/check/check_data.h"
#include "suite/store/connections.h"
#include "tests/scenarios/play.h"
#include "tests/support/postgres.h"

namespace {

namespace fs = std::filesystem;
using namespace qvzj::test;

constexpr int kSkipped = 77;
constexpr int kClients = 10;
/// Entries that a client keys for its own customer.
constexpr int kEntries = 8;

void Fill(PrivatePostgres& server, const std::string& database) {
  std::vector<std::string> statements{
      "insert into Moneys (MoneyCode,MoneyRate,MoneyType) values ('RMB',1,1)",
      "insert into tAccounts (fID,CompCode,compname) values (1,'0001','现金')"};
  for (int client = 1; client <= kClients; ++client) {
    const std::string id = std::to_string(client);
    statements.push_back("insert into cards (fID,CompCode,compname,fType0) values (" + id + ",'K" +
                         std::to_string(100 + client) + "','客户" + id + "',0)");
  }
  server.RunAll(database, statements);
}

/// Keys the entries, each paid through the money account; approves the first and the third, takes
/// the first approval back, and deletes the second entry.
std::string Script(int client) {
  std::string script =
      "refresh 0 0\ncell Grid1 1 " + std::to_string(client) + "\nclick cmdAction(1)\n";
  for (int entry = 1; entry <= kEntries; ++entry) {
    script += "type txtAcnt2(1) \"C" + std::to_string(client) + "-" + std::to_string(entry) +
              "\"\ntype txtAcnt2(4) \"" + std::to_string(entry) +
              "\"\nchoose cboAcntName 0\nclick cmdAcntSave\n";
  }
  const std::string approve = "click cmdAction(4)\nclick cmdAcntSave\n";
  script += "cell Grid2 1 1\n" + approve + "cell Grid2 1 3\n" + approve;
  script += "cell Grid2 1 1\nclick cmdAction(4)\nanswer ok ok\nclick cmdAcntSave\n";
  script += "cell Grid2 1 2\nclick cmdAction(3)\nanswer ok\nclick cmdAcntSave\n";
  return script;
}

/// Runs all clients at the same time; the number of those that ended with an error.
int RunClients(const fs::path& program, const PrivatePostgres& server, const std::string& database,
               const fs::path& folder) {
  std::vector<pid_t> clients;
  for (int client = 1; client <= kClients; ++client) {
    const fs::path script = folder / (std::to_string(client) + ".qvs");
    std::ofstream(script) << Script(client);
    const pid_t child = fork();
    if (child == 0) {
      _exit(RunIn(folder,
                  {program.string(), "--server", server.Address(), "--user", PrivatePostgres::kUser,
                   "--password", PrivatePostgres::kPassword, "--database", database, "--today",
                   kScenarioDay, script.string()},
                  folder / (std::to_string(client) + ".out")));
    }
    clients.push_back(child);
  }
  int failed = 0;
  for (size_t i = 0; i < clients.size(); ++i) {
    int status = 0;
    waitpid(clients[i], &status, 0);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) continue;
    ++failed;
    std::printf("client %zu failed:\n%s\n", i + 1,
                Content(folder / (std::to_string(i + 1) + ".out")).c_str());
  }
  return failed;
}

/// Prints what differs; the number of differences.
int Expect(const qvzj::store::NativeStatements& run, const std::string& what,
           const std::string& query, int wanted) {
  const std::string found = run(query).Text(0);
  if (found == std::to_string(wanted)) return 0;
  std::printf("%s: %s instead of %d\n", what.c_str(), found.c_str(), wanted);
  return 1;
}

int Main(const fs::path& program) {
  if (const std::string missing = PrivatePostgres::Missing(); !missing.empty()) {
    std::printf("skipped: %s\n", missing.c_str());
    return kSkipped;
  }
  PrivatePostgres server;
  const TemporaryFolder folder;
  const std::string database = server.MakeDatabase();
  Fill(server, database);
  int faults = RunClients(program, server, database, folder.Path());
  const qvzj::store::ServerLogin login{server.Address(), PrivatePostgres::kUser,
                                       PrivatePostgres::kPassword, database};
  const auto run = qvzj::store::OpenNative(1, login, {});
  faults += Expect(run, "customer entries", "select count(*) from tAccountDetail where fType1=0",
                   kClients * (kEntries - 1));
  faults +=
      Expect(run, "approved customer entries",
             "select count(*) from tAccountDetail where fType1=0 and fChecker='admin'", kClients);
  faults += Expect(run, "counter-entries", "select count(*) from tAccountDetail where fType1=1",
                   kClients);
  faults += Expect(run, "sum of the counter-entries",
                   "select sum(fMoneyB)::integer from tAccountDetail where fType1=1", 3 * kClients);
  qvzj::check::CheckData(
      *qvzj::store::OpenServer(login, {}), [&faults](const qvzj::check::Fault& fault) {
        ++faults;
        std::printf("%s: %s\n", qvzj::check::NameOf(fault.kind), fault.text.c_str());
      });
  return faults == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: postgres_clients PROGRAM\n", stderr);
    return 2;
  }
  try {
    return Main(fs::absolute(argv[1]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "postgres_clients: %s\n", error.what());
    return 2;
  }
}
