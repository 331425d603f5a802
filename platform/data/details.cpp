#include "platform/data/details.h"

#include <algorithm>

namespace qvzj::data {

size_t EndOfValue(const std::string& details, size_t start) {
  if (details.compare(start, 1, "{") != 0) {
    return std::min(details.find(';', start), details.size());
  }
  for (size_t at = start + 1; at < details.size(); ++at) {
    if (details[at] != '}') continue;
    if (details.compare(at, 2, "}}") != 0) return at + 1;
    ++at;
  }
  return details.size();
}

}  // namespace qvzj::data
