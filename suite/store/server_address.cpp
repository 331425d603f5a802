#include "suite/store/server_address.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/basic/text.h"
#include "platform/data/details.h"

namespace qvzj::store {
namespace {

/// A value with the characters that end one put between braces.
std::string Quoted(const std::string& value) {
  if (value.find_first_of(";{}=[]() ,?*!@:") == std::string::npos) return value;
  return "{" + basic::Replace(value, "}", "}}") + "}";
}

/// The value that begins at `start`, without its braces.
std::string ValueAt(const std::string& text, size_t start) {
  const std::string value = text.substr(start, data::EndOfValue(text, start) - start);
  if (!value.starts_with('{')) return value;
  const size_t closing = value.ends_with('}') ? 1 : 0;
  return basic::Replace(value.substr(1, value.size() - 1 - closing), "}}", "}");
}

/// Names under which drivers take the same thing.
constexpr std::array<std::array<std::string_view, 4>, 3> kSynonyms{{
    {"uid", "username", "user", "user id"},
    {"pwd", "password"},
    {"database", "db", "initial catalog"},
}};

/// Builds the string; what is there already, under whichever name, is not added again.
class Builder {
 public:
  explicit Builder(std::string text) : text_(std::move(text)) {
    if (!text_.empty() && text_.back() != ';') text_ += ';';
  }
  void Add(const std::string& key, const std::string& value) {
    if (value.empty() || Has(key)) return;
    text_ += key + "=" + Quoted(value) + ";";
  }
  /// True when that is there under any of its names.
  bool Has(const std::string& key) const {
    const std::string wanted = basic::Lower(key);
    const auto names = std::find_if(kSynonyms.begin(), kSynonyms.end(),
                                    [&](const auto& set) { return set.front() == wanted; });
    if (names == kSynonyms.end()) return HasName(wanted);
    return std::any_of(names->begin(), names->end(),
                       [this](std::string_view name) { return !name.empty() && HasName(name); });
  }
  /// Puts the first of the `enough` values unless one of them is there.
  void Require(const std::string& key, const std::vector<std::string>& enough) {
    const size_t place = PlaceOf(key);
    if (place != std::string::npos) {
      const size_t value = place + key.size() + 1;
      const std::string said = basic::Lower(ValueAt(text_, value));
      if (std::find(enough.begin(), enough.end(), said) != enough.end()) return;
      text_.erase(place, data::EndOfValue(text_, value) + 1 - place);
    }
    Add(key, enough.front());
  }
  const std::string& Text() const { return text_; }

 private:
  bool HasName(std::string_view name) const {
    return PlaceOf(std::string(name)) != std::string::npos;
  }
  /// Where the name of that key begins, in any case of letters.
  size_t PlaceOf(const std::string& key) const {
    return (";" + basic::Lower(text_)).find(";" + basic::Lower(key) + "=");
  }

  std::string text_;
};

struct HostAndPort {
  std::string host;
  std::string port;
};

/// Parts `host:port` and `[address]:port`; an address with several colons has no port.
HostAndPort Parted(const std::string& address) {
  if (!address.empty() && address.front() == '[') {
    const size_t closing = address.find(']');
    if (closing == std::string::npos) return {address, ""};
    const bool has_port = address.substr(closing + 1, 1) == ":";
    return {address.substr(1, closing - 1), has_port ? address.substr(closing + 2) : ""};
  }
  const size_t colon = address.find(':');
  if (colon == std::string::npos || address.find(':', colon + 1) != std::string::npos) {
    return {address, ""};
  }
  return {address.substr(0, colon), address.substr(colon + 1)};
}

void AddPostgres(Builder& text, const ServerOptions& options, const HostAndPort& server) {
  text.Add("DRIVER", options.driver.empty() ? "PostgreSQL Unicode" : options.driver);
  text.Add("SERVER", server.host);
  text.Add("PORT", server.port);
}

void AddTransactSql(Builder& text, const ServerOptions& options, const HostAndPort& server) {
  text.Add("DRIVER", options.driver.empty() ? "ODBC Driver 18 for SQL Server" : options.driver);
  text.Add("SERVER", server.port.empty() ? server.host : server.host + "," + server.port);
}

/// What every connection of the kind needs, however the server was named.
void AddHabits(Builder& text, const ServerOptions& options) {
  if (options.kind == ServerKind::TransactSql) {
    if (options.require_tls) text.Require("Encrypt", {"yes", "mandatory", "strict"});
    text.Add("Encrypt", "optional");
    return;
  }
  if (options.require_tls) text.Require("SSLmode", {"require", "verify-ca", "verify-full"});
  text.Add("SSLmode", "prefer");
  // Answers come in portions through a cursor: a million rows are never held twice.
  text.Add("UseDeclareFetch", "1");
  text.Add("Fetch", "4096");
  // A server that vanished without a word is noticed within a minute.
  text.Add("KeepaliveTime", "30");
  text.Add("KeepaliveInterval", "10");
}

}  // namespace

std::string ConnectionString(const ServerLogin& login, const ServerOptions& options) {
  const bool whole = login.address.find('=') != std::string::npos;
  Builder text(whole ? login.address : "");
  if (!whole) {
    const HostAndPort server = Parted(login.address);
    if (options.is_data_source && options.is_data_source(login.address)) {
      text.Add("DSN", login.address);
    } else if (options.kind == ServerKind::PostgreSql) {
      AddPostgres(text, options, server);
    } else {
      AddTransactSql(text, options, server);
    }
  }
  text.Add("DATABASE", login.database);
  text.Add("UID", login.user);
  text.Add("PWD", login.password);
  AddHabits(text, options);
  return text.Text();
}

std::vector<std::string> PasswordsIn(const std::string& connection_string) {
  const std::string text = ";" + connection_string;
  const std::string lower = basic::Lower(text);
  std::vector<std::string> passwords;
  for (const std::string_view key : {";pwd=", ";password="}) {
    for (size_t at = 0; (at = lower.find(key, at)) != std::string::npos;) {
      at += key.size();
      passwords.push_back(ValueAt(text, at));
    }
  }
  return passwords;
}

}  // namespace qvzj::store
