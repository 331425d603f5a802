#include <ostream>

#include "suite/check/check_data.h"
#include "suite/store/counter_index.h"
#include "tools/qvdb/commands.h"
#include "tools/qvdb/place.h"

namespace qvzj::qvdb {
namespace {

/// Puts right what loses nothing: so far the index that a database made before it was thought of
/// lacks.
void Mend(data::Store& store, const Streams& streams) {
  const std::vector<std::string> against = store::GuardCounterEntries(store);
  if (against.empty()) streams.out << "no entry can get a second counter-entry\n";
  for (const std::string& line : against) {
    streams.out << "second counter-entries cannot be refused yet: " << line << "\n";
  }
}

}  // namespace

int Check(const Words& words, const Streams& streams) {
  const Arguments arguments(words, WithPlace({}), {"--mend", kRequireTls});
  RefuseWords(arguments);
  const auto store = store::OpenPlace(PlaceOf(arguments, streams));
  const int64_t faults = check::CheckData(*store, [&](const check::Fault& fault) {
    streams.out << check::NameOf(fault.kind) << ": " << fault.text << "\n";
  });
  if (arguments.Has("--mend")) Mend(*store, streams);
  streams.out << (faults == 0 ? "no faults" : std::to_string(faults) + " faults") << "\n";
  return faults > 0 ? 1 : 0;
}

}  // namespace qvzj::qvdb
