#include <filesystem>
#include <ostream>

#include "suite/copy/copy.h"
#include "tools/qvdb/commands.h"
#include "tools/qvdb/long_run.h"
#include "tools/qvdb/place.h"

namespace qvzj::qvdb {
namespace {

/// A side of a copy.
store::DataPlace SideOf(const std::string& word, const Arguments& arguments,
                        const Streams& streams) {
  constexpr std::string_view kServer = "server:";
  if (word.starts_with(kServer)) {
    return ServerPlace(word.substr(kServer.size()), arguments, streams);
  }
  return FolderPlace(std::filesystem::weakly_canonical(word).string());
}

}  // namespace

int Copy(const Words& words, const Streams& streams) {
  const Arguments arguments(words, WithServer({}), {"--anew", kRequireTls});
  if (arguments.Words().size() != 2) throw UsageError("copy takes a source and a target");
  const store::DataPlace from = SideOf(arguments.Words()[0], arguments, streams);
  const store::DataPlace to = SideOf(arguments.Words()[1], arguments, streams);
  const auto source = store::OpenPlace(from);
  const auto target = store::OpenOrMakePlace(to);
  copy::Options options;
  options.source_name = from.Name();
  options.anew = arguments.Has("--anew");
  ProgressLines progress(streams.err);
  const copy::Report report = copy::CopyData(*source, *target, options, progress.Hook());
  Settle(*target, streams);
  if (report.resumed) streams.out << "the copy that broke off went on\n";
  for (const copy::CopiedTable& table : report.tables) {
    streams.out << table.name << ": " << table.rows << " rows";
    for (const auto& [column, sum] : table.sums) streams.out << ", " << column << " " << sum;
    streams.out << "\n";
  }
  streams.out << "copied, both sides agree: " << to.Name() << "\n";
  return 0;
}

}  // namespace qvzj::qvdb
