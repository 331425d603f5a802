#include <ostream>

#include "suite/demo/demo.h"
#include "tools/qvdb/commands.h"
#include "tools/qvdb/long_run.h"
#include "tools/qvdb/place.h"

namespace qvzj::qvdb {

int Demo(const Words& words, const Streams& streams) {
  const Arguments arguments(
      words, WithPlace({"--seed", "--customers", "--accounts", "--entries", "--years", "--until"}),
      {kRequireTls});
  RefuseWords(arguments);
  demo_data::Options options;
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
  const store::DataPlace place = PlaceOf(arguments, streams);
  ProgressLines progress(streams.err);
  const auto store = store::OpenOrMakePlace(place);
  demo_data::MakeData(*store, options, progress.Hook());
  Settle(*store, streams);
  streams.out << options.customers << " customers, " << options.accounts << " accounts, "
              << options.entries << " entries: " << place.Name() << "\n";
  return 0;
}

}  // namespace qvzj::qvdb
