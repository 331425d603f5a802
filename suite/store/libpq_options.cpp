#include "suite/store/libpq_options.h"

#include <string_view>

#include "platform/basic/text.h"

namespace qvzj::store {
namespace {

/// A value within a URI: everything but letters and digits as %XX, byte by byte.
std::string PercentCoded(std::string_view value) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string text;
  for (const char c : value) {
    const auto byte = static_cast<unsigned char>(c);
    const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    if (plain) {
      text += c;
    } else {
      text += {'%', kDigits[byte / 16], kDigits[byte % 16]};
    }
  }
  return text;
}

std::string Quoted(const std::string& value) {
  return "'" + basic::Replace(basic::Replace(value, "\\", "\\\\"), "'", "\\'") + "'";
}

}  // namespace

void LibpqOptions::Add(const std::string& name, const std::string& value) {
  if (text_.empty()) text_ = "postgresql:///";
  const bool uri = text_.starts_with("postgresql://") || text_.starts_with("postgres://");
  if (uri) {
    text_ += (text_.find('?') == std::string::npos ? "?" : "&") + name + "=" + PercentCoded(value);
  } else {
    text_ += " " + name + "=" + Quoted(value);
  }
}

}  // namespace qvzj::store
