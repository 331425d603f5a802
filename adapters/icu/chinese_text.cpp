#include "adapters/icu/chinese_text.h"

#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <memory>
#include <vector>

#include "platform/basic/errors.h"
#include "platform/basic/text.h"

namespace qvzj {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr size_t kBlock = 65536;

struct Closer {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};

void AppendUtf8(std::string& to, const UChar* from, int32_t length) {
  std::vector<char> bytes(static_cast<size_t>(length) * 3 + 1);
  int32_t written = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strToUTF8(bytes.data(), static_cast<int32_t>(bytes.size()), &written, from, length, &status);
  if (U_FAILURE(status)) throw Error(std::string("Text conversion: ") + u_errorName(status));
  to.append(bytes.data(), static_cast<size_t>(written));
}

/// Room at the end of a block that a surrogate pair cut in half needs to be kept for the next.
int32_t WholeCharacters(const UChar* text, int32_t length) {
  return length > 0 && U16_IS_LEAD(text[length - 1]) ? length - 1 : length;
}

std::string FromGb18030(std::string_view bytes) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<UConverter, Closer> converter(ucnv_open("gb18030", &status));
  if (U_FAILURE(status)) throw Error("ICU has no GB18030 converter");
  ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);

  std::string utf8;
  utf8.reserve(bytes.size() * 3 / 2);
  std::vector<UChar> block(kBlock);
  const char* from = bytes.data();
  const char* const end = from + bytes.size();
  int32_t kept = 0;  // half a surrogate pair left from the block before
  do {
    UChar* to = block.data() + kept;
    status = U_ZERO_ERROR;
    ucnv_toUnicode(converter.get(), &to, block.data() + block.size(), &from, end, nullptr, true,
                   &status);
    if (U_FAILURE(status) && status != U_BUFFER_OVERFLOW_ERROR) {
      throw Error("The text is neither UTF-8 nor GB18030; the first wrong byte is byte " +
                  std::to_string(from - bytes.data()));
    }
    const auto length = static_cast<int32_t>(to - block.data());
    const int32_t whole = WholeCharacters(block.data(), length);
    AppendUtf8(utf8, block.data(), whole);
    kept = length - whole;
    if (kept) block[0] = block[static_cast<size_t>(whole)];
  } while (status == U_BUFFER_OVERFLOW_ERROR);
  return utf8;
}

}  // namespace

ChineseText ReadChineseText(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  if (basic::IsUtf8(bytes)) return {std::string(bytes), "UTF-8"};
  return {FromGb18030(bytes), "GB18030"};
}

}  // namespace qvzj
