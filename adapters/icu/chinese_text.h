#pragma once

#include <string>
#include <string_view>

namespace qvzj {

/// What a text file turned out to hold.
struct ChineseText {
  std::string utf8;      ///< the text, without a byte order mark
  std::string encoding;  ///< "UTF-8" or "GB18030"
};

/// Reads the bytes of a text file: UTF-8 with or without a byte order mark, otherwise GB18030
/// (which holds GBK and GB2312). Throws Error when the bytes are well-formed in neither, with the
/// place of the first byte that is wrong in GB18030.
ChineseText ReadChineseText(std::string_view bytes);

}  // namespace qvzj
