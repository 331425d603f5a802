#include "suite/import/texts.h"

#include <algorithm>

#include "platform/basic/text.h"

namespace qvzj::imports {
namespace {

bool IsControl(char c) {
  const auto code = static_cast<unsigned char>(c);
  return code < 0x20 || code == 0x7F;
}

}  // namespace

void Texts::Keep() {
  report_.quoted_texts += quoted_;
  report_.joined_texts += joined_;
}

std::string Texts::Fit(const Column& column, std::string& text) {
  if (text.find('\0') != std::string::npos) {
    return std::string(column.name) + " holds a zero character";
  }
  if (text.find('\'') != std::string::npos) {
    text = basic::Replace(text, "'", "’");
    ++quoted_;
  }
  if (column.kind == FieldKind::Text && std::any_of(text.begin(), text.end(), IsControl)) {
    text = basic::Replace(text, "\r\n", " ");
    std::replace_if(text.begin(), text.end(), IsControl, ' ');
    ++joined_;
  }
  // A text of fewer bytes than the limit in UTF-8 has no more in the code page.
  if (column.limit > 0 && text.size() > static_cast<size_t>(column.limit)) {
    const size_t bytes = codec_.Encode(text).size();
    if (bytes > static_cast<size_t>(column.limit)) {
      return std::string(column.name) + " has " + std::to_string(bytes) + " bytes, " +
             std::to_string(column.limit) + " fit: " + text;
    }
  }
  return {};
}

}  // namespace qvzj::imports
