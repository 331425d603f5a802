#pragma once

#include <chrono>
#include <iosfwd>

#include "suite/store/progress.h"
#include "tools/qvdb/streams.h"

namespace qvzj::data {
class Store;
}

/// What the commands that write many rows share.
namespace qvzj::qvdb {

/// Says on a long run how far it is, every two seconds.
class ProgressLines {
 public:
  explicit ProgressLines(std::ostream& err) : err_(err), next_(Clock::now() + kPause) {}

  /// Valid as long as this object.
  store::RowProgress Hook();

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::seconds kPause{2};
  std::ostream& err_;
  Clock::time_point next_;
};

/// Lets a server look at the new rows. They are in, whatever comes of this: a failure is only told.
void Settle(data::Store& store, const Streams& streams);

}  // namespace qvzj::qvdb
