#include "adapters/icu/utf16.h"

#include <unicode/ustring.h>

#include "platform/basic/errors.h"

namespace qvzj {
namespace {

constexpr UChar32 kReplacement = 0xFFFD;

}  // namespace

std::u16string ToUtf16(std::string_view utf8) {
  std::u16string wide(utf8.size(), u'\0');  // no character needs more units than it has bytes
  UErrorCode status = U_ZERO_ERROR;
  int32_t length = 0;
  u_strFromUTF8WithSub(wide.data(), static_cast<int32_t>(wide.size()), &length, utf8.data(),
                       static_cast<int32_t>(utf8.size()), kReplacement, nullptr, &status);
  if (U_FAILURE(status)) throw Error(std::string("text conversion: ") + u_errorName(status));
  wide.resize(static_cast<size_t>(length));
  return wide;
}

void ToUtf8(std::u16string_view utf16, std::string& utf8) {
  utf8.resize(utf16.size() * 3);
  size_t ascii = 0;
  while (ascii < utf16.size() && utf16[ascii] < 0x80) {
    utf8[ascii] = static_cast<char>(utf16[ascii]);
    ++ascii;
  }
  if (ascii == utf16.size()) return utf8.resize(ascii);
  UErrorCode status = U_ZERO_ERROR;
  int32_t length = 0;
  u_strToUTF8WithSub(utf8.data(), static_cast<int32_t>(utf8.size()), &length, utf16.data(),
                     static_cast<int32_t>(utf16.size()), kReplacement, nullptr, &status);
  if (U_FAILURE(status)) throw Error(std::string("text conversion: ") + u_errorName(status));
  utf8.resize(static_cast<size_t>(length));
}

}  // namespace qvzj
