#include "tools/qvdb/long_run.h"

#include <ostream>

#include "platform/basic/errors.h"
#include "suite/store/settle.h"

namespace qvzj::qvdb {

store::RowProgress ProgressLines::Hook() {
  return [this](int64_t done, int64_t all) {
    if (Clock::now() < next_ || all <= 0) return;
    next_ = Clock::now() + kPause;
    err_ << "  " << done * 100 / all << " % done" << std::endl;
  };
}

void Settle(data::Store& store, const Streams& streams) {
  try {
    store::SettleTables(store);
  } catch (const DataError& error) {
    streams.err << "the server did not look at the new rows, so its first statements may be slow: "
                << error.what() << "\n";
  }
}

}  // namespace qvzj::qvdb
