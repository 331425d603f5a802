#include "adapters/system/clock.h"

#include <ctime>

namespace qvzj {

basic::Date SystemClock::Today() const {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return basic::Date::FromYmd(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

}  // namespace qvzj
