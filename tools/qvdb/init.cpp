#include <ostream>

#include "platform/basic/errors.h"
#include "platform/data/store.h"
#include "suite/store/schema.h"
#include "tools/qvdb/commands.h"
#include "tools/qvdb/place.h"

namespace qvzj::qvdb {

int Init(const Words& words, const Streams& streams) {
  const Arguments arguments(words, WithPlace({"--currency"}), {kRequireTls});
  RefuseWords(arguments);
  const store::DataPlace place = PlaceOf(arguments, streams);
  const auto store = store::OpenOrMakePlace(place);
  store::CreateSchema(*store);
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

}  // namespace qvzj::qvdb
