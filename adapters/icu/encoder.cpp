#include "adapters/icu/encoder.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

#include "platform/basic/errors.h"
#include "platform/basic/text.h"

namespace qvzj {
namespace {

/// Longest form of one UTF-16 unit in any code page that is written here.
constexpr size_t kMostBytes = 4;

void Check(UErrorCode status) {
  if (U_FAILURE(status)) throw Error(std::string("code page: ") + u_errorName(status));
}

/// Replaces what the code page lacks by "?" and counts it.
void CountLost(const void* context, UConverterFromUnicodeArgs* arguments, const UChar*, int32_t,
               UChar32, UConverterCallbackReason reason, UErrorCode* status) {
  if (reason > UCNV_IRREGULAR) return;
  ++*static_cast<int64_t*>(const_cast<void*>(context));
  *status = U_ZERO_ERROR;
  ucnv_cbFromUWriteBytes(arguments, "?", 1, 0, status);
}

}  // namespace

void IcuEncoder::Closer::operator()(UConverter* converter) const { ucnv_close(converter); }

IcuEncoder::IcuEncoder(const char* charset) {
  UErrorCode status = U_ZERO_ERROR;
  converter_.reset(ucnv_open(charset, &status));
  Check(status);
  ucnv_setFromUCallBack(converter_.get(), CountLost, &lost_, nullptr, nullptr, &status);
  Check(status);
}

IcuEncoder::~IcuEncoder() = default;

std::string IcuEncoder::Encode(std::string_view utf8) {
  std::u16string wide;
  wide.reserve(utf8.size());
  for (char32_t code : basic::CodePoints(utf8)) {
    if (code == U'\uFFFD') {
      ++lost_;
      wide += u'?';
    } else if (code >= 0x10000) {
      wide += static_cast<char16_t>(0xD7C0 + (code >> 10));
      wide += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
    } else {
      wide += static_cast<char16_t>(code);
    }
  }
  std::string bytes(wide.size() * kMostBytes + kMostBytes, '\0');
  UErrorCode status = U_ZERO_ERROR;
  const int32_t length =
      ucnv_fromUChars(converter_.get(), bytes.data(), static_cast<int32_t>(bytes.size()),
                      wide.data(), static_cast<int32_t>(wide.size()), &status);
  Check(status);
  bytes.resize(static_cast<size_t>(length));
  return bytes;
}

}  // namespace qvzj
