#include "tools/qvdb/qvdb.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>

#include "suite/check/check_data.h"
#include "suite/copy/copy.h"
#include "suite/demo/demo.h"
#include "suite/import/import.h"
#include "suite/store/data_place.h"
#include "suite/store/schema.h"
#include "suite/store/settle.h"
#include "tools/qvdb/arguments.h"

namespace qvzj {
namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

constexpr const char* kUsage = R"(qvdb - makes, fills, checks and copies the databases of the ledger

  qvdb init [--currency CODE]...
      Makes the data folder, the data file and the tables that are missing; on a server the
      tables, in a database that is there. The currencies are put into an empty currency table,
      the first as the local one.

  qvdb demo [--seed N] [--customers N] [--accounts N] [--entries N] [--years N]
            [--until YYYY-MM-DD]
      Fills an empty database with made-up data; the same options make the same data.

  qvdb import customers|accounts|entries FILE [options]
      Reads a CSV file (UTF-8 or GB18030; "-" is the standard input) whose first row names the
      columns. A header that is called like a column fills it.
      --map COLUMN=HEADER     fills a column from a header of another name
      --set COLUMN=TEXT       gives a column a text; {HEADER} in it stands for that field
      --default COLUMN=TEXT   gives it only to rows in which the column is empty
      --ledger customers|accounts   whose entries they are (entries; default customers)
      --dates mdy|dmy         order of dates such as 03/04/2024, which are else refused
      --separator C           what parts the fields: a character, or "tab" (default ,)
      --once                  passes over a code that is there instead of refusing the row
      --add-currencies        adds currencies that the table lacks instead of refusing the row
      --dry-run               tries everything and keeps nothing

  qvdb check
      Looks for orphans, missing amounts, counter-entries out of step with their customer
      entries, and voucher numbers borne twice.

  qvdb copy SOURCE TARGET [--anew]
      Copies all tables with their record ids and compares both sides value by value. SOURCE and
      TARGET are each a data folder or server:TEXT, where TEXT names a server as --server does.
      The target's tables must be empty. A copy that broke off goes on when the command is given
      again; with --anew it begins again. Nobody should work in either meanwhile.

  qvdb user add|passwd|rights|disable|enable|remove|unit|exempt|list|log FILE ...
      Keeps the users of the rights database FILE, or of the one in the folder FILE.
      add FILE NAME [RIGHTS]   passwd FILE NAME   rights FILE NAME RIGHTS   list FILE
      disable FILE NAME   enable FILE NAME   remove FILE NAME   log FILE
      unit FILE [TEXT]   exempt FILE [NAME]

init, demo, import and check work on --data FOLDER (default: %DATA%)
or on a server. Options for servers, also of copy:
  --server TEXT       the server: host, host:port, host\instance, the name of a data source or a
                      whole ODBC connection string (not with copy)
  --user USER         database user
  --password TEXT     database password; "-" asks for it (default: the variable QVDB_PASSWORD,
                      which other users of the machine cannot read)
  --database NAME     database on the server
  --engine ENGINE     postgresql (default) or tsql; on tsql only import works
  --driver NAME       ODBC driver, when it is not called as usual
  --require-tls       refuses a connection that is not encrypted

Exit status: 0 done; 1 done, but rows were refused or faults were found; 2 not done.
)";

/// Says on a long run how far it is, every two seconds.
class ProgressLines {
 public:
  explicit ProgressLines(std::ostream& err) : err_(err), next_(Clock::now() + kPause) {}

  RowProgress Hook() {
    return [this](int64_t done, int64_t all) {
      if (Clock::now() < next_ || all <= 0) return;
      next_ = Clock::now() + kPause;
      err_ << "  " << done * 100 / all << " % done" << std::endl;
    };
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::seconds kPause{2};
  std::ostream& err_;
  Clock::time_point next_;
};

using Names = std::vector<std::string_view>;

/// Options of a command that works on a server, its own and those that say which and how.
Names WithServer(Names own) {
  own.insert(own.end(), {"--user", "--password", "--database", "--engine", "--driver"});
  return own;
}

Names WithPlace(Names own) {
  own.insert(own.end(), {"--data", "--server"});
  return WithServer(std::move(own));
}

constexpr std::string_view kRequireTls = "--require-tls";

ServerKind EngineOf(const std::string& name) {
  if (name == "postgresql") return ServerKind::PostgreSql;
  if (name == "tsql") return ServerKind::TransactSql;
  throw UsageError("--engine needs postgresql or tsql, not " + name);
}

/// The server of that address, with what the options say of it.
DataPlace ServerPlace(const std::string& address, const Arguments& arguments,
                      const QvdbStreams& streams) {
  DataPlace place;
  place.login = {address, arguments.Text("--user"), arguments.Text("--password"),
                 arguments.Text("--database")};
  const char* const set = std::getenv("QVDB_PASSWORD");
  if (set && !arguments.Has("--password")) place.login.password = set;
  if (place.login.password == "-") place.login.password = streams.ask_password("Password: ");
  place.server.kind = EngineOf(arguments.Text("--engine", "postgresql"));
  place.server.driver = arguments.Text("--driver");
  place.server.require_tls = arguments.Has(kRequireTls);
  return place;
}

DataPlace FolderPlace(const std::string& folder) {
  DataPlace place;
  place.folder = folder;
  return place;
}

DataPlace PlaceOf(const Arguments& arguments, const QvdbStreams& streams) {
  if (arguments.Has("--server")) {
    if (arguments.Has("--data")) throw UsageError("--data and --server exclude each other");
    return ServerPlace(arguments.Text("--server"), arguments, streams);
  }
  for (const std::string_view option : WithServer({})) {
    if (arguments.Has(option)) throw UsageError(std::string(option) + " needs --server");
  }
  return FolderPlace(arguments.Text("--data", DefaultDataFolder()));
}

/// The rows are in, whatever comes of this.
void Settle(data::Store& store, const QvdbStreams& streams) {
  try {
    SettleTables(store);
  } catch (const DataError& error) {
    streams.err << "the server did not look at the new rows, so its first statements may be slow: "
                << error.what() << "\n";
  }
}

void RefuseWords(const Arguments& arguments) {
  if (!arguments.Words().empty()) throw UsageError("unexpected " + arguments.Words().front());
}

int Init(const Words& words, const QvdbStreams& streams) {
  const Arguments arguments(words, WithPlace({"--currency"}), {kRequireTls});
  RefuseWords(arguments);
  const DataPlace place = PlaceOf(arguments, streams);
  const auto store = OpenOrMakePlace(place);
  CreateSchema(*store);
  const std::vector<std::string> currencies = arguments.Texts("--currency");
  if (!currencies.empty()) {
    if (data::CountOf(*store, "Moneys") > 0) throw Error("The currency table is not empty");
    data::Transaction transaction(*store);
    data::RowWriter& table = transaction.Into("Moneys", {"MoneyCode", "MoneyRate", "MoneyType"});
    auto type = static_cast<int64_t>(currencies.size());
    for (const std::string& code : currencies) table.Add({code, 1.0, type--});
    transaction.Commit();
  }
  streams.out << "ready: " << place.Name() << "\n";
  return 0;
}

int Demo(const Words& words, const QvdbStreams& streams) {
  const Arguments arguments(
      words, WithPlace({"--seed", "--customers", "--accounts", "--entries", "--years", "--until"}),
      {kRequireTls});
  RefuseWords(arguments);
  DemoOptions options;
  options.seed = static_cast<uint64_t>(arguments.Number("--seed", 1));
  options.customers = arguments.Number("--customers", options.customers);
  options.accounts = arguments.Number("--accounts", options.accounts);
  options.entries = arguments.Number("--entries", options.entries);
  options.years = arguments.Number("--years", options.years);
  if (arguments.Has("--until")) {
    const auto until = basic::ParseIso(arguments.Text("--until"));
    if (!until) throw UsageError("--until needs a day as YYYY-MM-DD");
    options.until = *until;
  }
  const DataPlace place = PlaceOf(arguments, streams);
  ProgressLines progress(streams.err);
  const auto store = OpenOrMakePlace(place);
  MakeDemoData(*store, options, progress.Hook());
  Settle(*store, streams);
  streams.out << options.customers << " customers, " << options.accounts << " accounts, "
              << options.entries << " entries: " << place.Name() << "\n";
  return 0;
}

std::string ReadAll(const std::string& name, std::istream& standard_input) {
  if (name == "-") return {std::istreambuf_iterator<char>(standard_input), {}};
  std::ifstream file(name, std::ios::binary);
  if (!file || fs::is_directory(name)) throw Error("The file " + name + " cannot be read");
  return {std::istreambuf_iterator<char>(file), {}};
}

ImportKind KindOf(const std::string& word) {
  if (word == "customers") return ImportKind::Customers;
  if (word == "accounts") return ImportKind::Accounts;
  if (word == "entries") return ImportKind::Entries;
  throw UsageError("import takes customers, accounts or entries, not " + word);
}

char SeparatorOf(const std::string& text) {
  if (text == "tab") return '\t';
  if (text.size() != 1 || text == "\"") throw UsageError("--separator needs one character or tab");
  return text[0];
}

ImportOptions ImportOptionsOf(const Arguments& arguments) {
  ImportOptions options;
  options.kind = KindOf(arguments.Words().at(0));
  const std::string ledger = arguments.Text("--ledger", "customers");
  if (ledger != "customers" && ledger != "accounts") {
    throw UsageError("--ledger needs customers or accounts");
  }
  options.ledger = ledger == "accounts" ? 1 : 0;
  const std::string dates = arguments.Text("--dates");
  if (dates == "mdy") {
    options.dates = DateOrder::MonthFirst;
  } else if (dates == "dmy") {
    options.dates = DateOrder::DayFirst;
  } else if (!dates.empty()) {
    throw UsageError("--dates needs mdy or dmy");
  }
  options.separator = SeparatorOf(arguments.Text("--separator", ","));
  options.map = arguments.Pairs("--map");
  options.set = arguments.Pairs("--set");
  options.presets = arguments.Pairs("--default");
  options.once = arguments.Has("--once");
  options.add_currencies = arguments.Has("--add-currencies");
  options.dry_run = arguments.Has("--dry-run");
  return options;
}

void PrintReport(const ImportReport& report, bool dry_run, std::ostream& out) {
  out << report.rows << " rows (" << report.encoding << "): " << report.written << " imported, "
      << report.refused << " refused";
  if (report.passed_over > 0) out << ", " << report.passed_over << " passed over";
  out << "\n";
  if (report.quoted_texts > 0) out << report.quoted_texts << " texts with ' got ’ instead\n";
  if (report.joined_texts > 0) {
    out << report.joined_texts << " texts with line breaks or tabs got blanks instead\n";
  }
  for (const std::string& currency : report.currencies) {
    out << "currency " << currency << " added\n";
  }
  if (dry_run) out << "nothing was kept\n";
}

int Import(const Words& words, const QvdbStreams& streams) {
  const Arguments arguments(
      words, WithPlace({"--map", "--set", "--default", "--ledger", "--dates", "--separator"}),
      {"--once", "--add-currencies", "--dry-run", kRequireTls});
  if (arguments.Words().size() != 2) throw UsageError("import takes what to import and a file");
  const ImportOptions options = ImportOptionsOf(arguments);
  const std::string bytes = ReadAll(arguments.Words()[1], streams.in);
  ProgressLines progress(streams.err);
  const auto store = OpenOrMakePlace(PlaceOf(arguments, streams));
  const ImportReport report = ImportCsv(
      *store, bytes, options,
      [&](const Refusal& refusal) {
        streams.err << "line " << refusal.line << ": " << refusal.reason << "\n";
      },
      progress.Hook());
  if (!options.dry_run) Settle(*store, streams);
  PrintReport(report, options.dry_run, streams.out);
  return report.refused > 0 ? 1 : 0;
}

int Check(const Words& words, const QvdbStreams& streams) {
  const Arguments arguments(words, WithPlace({}), {kRequireTls});
  RefuseWords(arguments);
  const auto store = OpenPlace(PlaceOf(arguments, streams));
  const int64_t faults = CheckData(*store, [&](const Fault& fault) {
    streams.out << NameOf(fault.kind) << ": " << fault.text << "\n";
  });
  streams.out << (faults == 0 ? "no faults" : std::to_string(faults) + " faults") << "\n";
  return faults > 0 ? 1 : 0;
}

/// A side of a copy.
DataPlace SideOf(const std::string& word, const Arguments& arguments, const QvdbStreams& streams) {
  constexpr std::string_view kServer = "server:";
  if (word.starts_with(kServer)) {
    return ServerPlace(word.substr(kServer.size()), arguments, streams);
  }
  return FolderPlace(fs::weakly_canonical(word).string());
}

int CopyAll(const Words& words, const QvdbStreams& streams) {
  const Arguments arguments(words, WithServer({}), {"--anew", kRequireTls});
  if (arguments.Words().size() != 2) throw UsageError("copy takes a source and a target");
  const DataPlace from = SideOf(arguments.Words()[0], arguments, streams);
  const DataPlace to = SideOf(arguments.Words()[1], arguments, streams);
  const auto source = OpenPlace(from);
  const auto target = OpenOrMakePlace(to);
  CopyOptions options;
  options.source_name = from.Name();
  options.anew = arguments.Has("--anew");
  ProgressLines progress(streams.err);
  const CopyReport report = CopyData(*source, *target, options, progress.Hook());
  Settle(*target, streams);
  if (report.resumed) streams.out << "the copy that broke off went on\n";
  for (const CopiedTable& table : report.tables) {
    streams.out << table.name << ": " << table.rows << " rows";
    for (const auto& [column, sum] : table.sums) streams.out << ", " << column << " " << sum;
    streams.out << "\n";
  }
  streams.out << "copied, both sides agree: " << to.Name() << "\n";
  return 0;
}

void PrintUsage(std::ostream& to) {
  std::string text = kUsage;
  const size_t place = text.find("%DATA%");
  to << text.replace(place, 6, DefaultDataFolder());
}

int Run(const Words& words, const QvdbStreams& streams) {
  if (words.empty()) throw UsageError("no command");
  const Words rest(words.begin() + 1, words.end());
  const std::string& command = words.front();
  if (command == "--help" || command == "-h" || command == "help") {
    PrintUsage(streams.out);
    return 0;
  }
  if (command == "init") return Init(rest, streams);
  if (command == "demo") return Demo(rest, streams);
  if (command == "import") return Import(rest, streams);
  if (command == "check") return Check(rest, streams);
  if (command == "copy") return CopyAll(rest, streams);
  if (command == "user") {
    return RunUserCommand(rest, streams.ask_password, streams.out, streams.err);
  }
  throw UsageError("unknown command " + command);
}

}  // namespace

std::string DefaultDataFolder() {
  const char* data_home = std::getenv("XDG_DATA_HOME");
  if (data_home && *data_home) return (fs::path(data_home) / "qvzj").string();
  const char* home = std::getenv("HOME");
  return (fs::path(home ? home : ".") / ".local/share/qvzj").string();
}

int RunQvdb(const Words& words, const QvdbStreams& streams) {
  try {
    return Run(words, streams);
  } catch (const UsageError& error) {
    streams.err << "qvdb: " << error.what() << "\n\n";
    PrintUsage(streams.err);
  } catch (const std::exception& error) {
    streams.err << "qvdb: " << error.what() << "\n";
  }
  return 2;
}

}  // namespace qvzj
