#include <filesystem>
#include <fstream>
#include <istream>
#include <iterator>
#include <ostream>

#include "platform/basic/errors.h"
#include "suite/import/import.h"
#include "tools/qvdb/commands.h"
#include "tools/qvdb/long_run.h"
#include "tools/qvdb/place.h"

namespace qvzj::qvdb {
namespace {

std::string ReadAll(const std::string& name, std::istream& standard_input) {
  if (name == "-") return {std::istreambuf_iterator<char>(standard_input), {}};
  std::ifstream file(name, std::ios::binary);
  if (!file || std::filesystem::is_directory(name))
    throw Error("The file " + name + " cannot be read");
  return {std::istreambuf_iterator<char>(file), {}};
}

imports::Kind KindOf(const std::string& word) {
  if (word == "customers") return imports::Kind::Customers;
  if (word == "accounts") return imports::Kind::Accounts;
  if (word == "entries") return imports::Kind::Entries;
  throw UsageError("import takes customers, accounts or entries, not " + word);
}

char SeparatorOf(const std::string& text) {
  if (text == "tab") return '\t';
  if (text.size() != 1 || text == "\"") throw UsageError("--separator needs one character or tab");
  return text[0];
}

imports::Options ImportOptionsOf(const Arguments& arguments) {
  imports::Options options;
  options.kind = KindOf(arguments.Words().at(0));
  const std::string ledger = arguments.Text("--ledger", "customers");
  if (ledger != "customers" && ledger != "accounts") {
    throw UsageError("--ledger needs customers or accounts");
  }
  options.ledger = ledger == "accounts" ? 1 : 0;
  const std::string dates = arguments.Text("--dates");
  if (dates == "mdy") {
    options.dates = imports::DateOrder::MonthFirst;
  } else if (dates == "dmy") {
    options.dates = imports::DateOrder::DayFirst;
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

void PrintReport(const imports::Report& report, bool dry_run, std::ostream& out) {
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

}  // namespace

int Import(const Words& words, const Streams& streams) {
  const Arguments arguments(
      words, WithPlace({"--map", "--set", "--default", "--ledger", "--dates", "--separator"}),
      {"--once", "--add-currencies", "--dry-run", kRequireTls});
  if (arguments.Words().size() != 2) throw UsageError("import takes what to import and a file");
  const imports::Options options = ImportOptionsOf(arguments);
  const std::string bytes = ReadAll(arguments.Words()[1], streams.in);
  ProgressLines progress(streams.err);
  const auto store = store::OpenOrMakePlace(PlaceOf(arguments, streams));
  const imports::Report report = imports::ImportCsv(
      *store, bytes, options,
      [&](const imports::Refusal& refusal) {
        streams.err << "line " << refusal.line << ": " << refusal.reason << "\n";
      },
      progress.Hook());
  if (!options.dry_run) Settle(*store, streams);
  PrintReport(report, options.dry_run, streams.out);
  return report.refused > 0 ? 1 : 0;
}

}  // namespace qvzj::qvdb
