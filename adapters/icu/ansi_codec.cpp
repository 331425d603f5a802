#include "adapters/icu/ansi_codec.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

#include "platform/basic/errors.h"
#include "platform/basic/text.h"

namespace qvzj {
namespace {

/// Longest form of one character in the code page.
constexpr size_t kMostBytes = 8;

}  // namespace

void IcuAnsiCodec::Closer::operator()(UConverter* converter) const { ucnv_close(converter); }

IcuAnsiCodec::IcuAnsiCodec() {
  UErrorCode status = U_ZERO_ERROR;
  converter_.reset(ucnv_open("GBK", &status));
  if (U_SUCCESS(status)) ucnv_setSubstChars(converter_.get(), "?", 1, &status);
  if (U_FAILURE(status)) throw Error(std::string("GBK code page: ") + u_errorName(status));
}

IcuAnsiCodec::~IcuAnsiCodec() = default;

std::string IcuAnsiCodec::Encode(std::string_view utf8) const {
  std::u16string wide;
  for (char32_t code : basic::CodePoints(utf8)) {
    if (code >= 0x10000) {
      wide += u'\uFFFD';  // outside the code page, and one "?" rather than two
    } else {
      wide += static_cast<char16_t>(code);
    }
  }
  std::string bytes(wide.size() * 2 + kMostBytes, '\0');
  UErrorCode status = U_ZERO_ERROR;
  const int32_t length =
      ucnv_fromUChars(converter_.get(), bytes.data(), static_cast<int32_t>(bytes.size()),
                      wide.data(), static_cast<int32_t>(wide.size()), &status);
  if (U_FAILURE(status)) throw Error(std::string("GBK code page: ") + u_errorName(status));
  bytes.resize(static_cast<size_t>(length));
  return bytes;
}

int IcuAnsiCodec::BytesOf(char32_t character) const {
  if (character < 0x80) return 1;
  return static_cast<int>(Encode(basic::FromCodePoint(character)).size());
}

}  // namespace qvzj
