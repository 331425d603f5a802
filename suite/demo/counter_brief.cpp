#include "suite/demo/counter_brief.h"

#include "platform/basic/text.h"

namespace qvzj::demo_data {
namespace {

/// Bytes of the summary field, less the five of "挂入-".
constexpr int kRoom = 45;

}  // namespace

std::string CounterBrief(const AnsiCodec& codec, const std::string& customer) {
  int bytes = 0;
  int32_t fitting = 0;
  for (const char32_t character : basic::CodePoints(customer)) {
    bytes += codec.BytesOf(character);
    if (bytes > kRoom) break;
    ++fitting;
  }
  return "挂入-" + basic::Left(customer, fitting);
}

}  // namespace qvzj::demo_data
