#pragma once

#include "platform/services.h"

namespace qvzj {

/// The machine's clock, in local time.
class SystemClock : public Clock {
 public:
  basic::Date Today() const override;
};

}  // namespace qvzj
