#include "tools/qvdb/qvdb.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <string_view>

#include "platform/basic/errors.h"
#include "tools/qvdb/arguments.h"
#include "tools/qvdb/commands.h"
#include "tools/qvdb/place.h"

namespace qvzj::qvdb {
namespace {

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

  qvdb check [--mend]
      Looks for orphans, missing amounts, counter-entries out of step with their customer
      entries, and voucher numbers borne twice. --mend adds what an older database lacks so
      that it refuses a second counter-entry of an entry, or says which rows stand against it.

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
  --root-certificate FILE  refuses a server whose certificate does not come from this root
                      (postgresql)

Exit status: 0 done; 1 done, but rows were refused or faults were found; 2 not done.
)";

struct Command {
  std::string_view name;
  int (*run)(const Words& words, const Streams& streams);
};

constexpr Command kCommands[] = {{"init", Init},   {"demo", Demo}, {"import", Import},
                                 {"check", Check}, {"copy", Copy}, {"user", User}};

void PrintUsage(std::ostream& to) {
  std::string text = kUsage;
  const size_t place = text.find("%DATA%");
  to << text.replace(place, 6, DefaultDataFolder());
}

int RunCommand(const Words& words, const Streams& streams) {
  if (words.empty()) throw UsageError("no command");
  const Words rest(words.begin() + 1, words.end());
  const std::string& command = words.front();
  if (command == "--help" || command == "-h" || command == "help") {
    PrintUsage(streams.out);
    return 0;
  }
  const auto found = std::find_if(std::begin(kCommands), std::end(kCommands),
                                  [&](const Command& known) { return known.name == command; });
  if (found == std::end(kCommands)) throw UsageError("unknown command " + command);
  return found->run(rest, streams);
}

}  // namespace

int Run(const Words& words, const Streams& streams) {
  try {
    return RunCommand(words, streams);
  } catch (const UsageError& error) {
    streams.err << "qvdb: " << error.what() << "\n\n";
    PrintUsage(streams.err);
  } catch (const std::exception& error) {
    streams.err << "qvdb: " << error.what() << "\n";
  }
  return 2;
}

}  // namespace qvzj::qvdb
