#include <ostream>

#include "suite/check/check_data.h"
#include "tools/qvdb/commands.h"
#include "tools/qvdb/place.h"

namespace qvzj::qvdb {

int Check(const Words& words, const Streams& streams) {
  const Arguments arguments(words, WithPlace({}), {kRequireTls});
  RefuseWords(arguments);
  const auto store = store::OpenPlace(PlaceOf(arguments, streams));
  const int64_t faults = check::CheckData(*store, [&](const check::Fault& fault) {
    streams.out << check::NameOf(fault.kind) << ": " << fault.text << "\n";
  });
  streams.out << (faults == 0 ? "no faults" : std::to_string(faults) + " faults") << "\n";
  return faults > 0 ? 1 : 0;
}

}  // namespace qvzj::qvdb
