#include "suite/print/metrics.h"

#include "platform/basic/text.h"

namespace qvzj::print {

double FixedMetrics::Width(std::string_view text) const {
  double width = 0;
  for (char32_t code : basic::CodePoints(text)) width += code < 0x80 ? 0.5 : 1.0;
  return width;
}

}  // namespace qvzj::print
