#include "suite/server_address.h"

#include "platform/basic/text.h"

namespace qvzj {
namespace {

/// A value with the characters that end one put between braces.
std::string Quoted(const std::string& value) {
  if (value.find_first_of(";{}=[]() ,?*!@:") == std::string::npos) return value;
  return "{" + basic::Replace(value, "}", "}}") + "}";
}

/// Builds the string; a key that is there already is not added again.
class Builder {
 public:
  explicit Builder(std::string text) : text_(std::move(text)) {
    if (!text_.empty() && text_.back() != ';') text_ += ';';
  }
  void Add(const std::string& key, const std::string& value) {
    if (value.empty() || Has(key)) return;
    text_ += key + "=" + Quoted(value) + ";";
  }
  bool Has(const std::string& key) const {
    const std::string keys = ";" + basic::Lower(text_);
    return keys.find(";" + basic::Lower(key) + "=") != std::string::npos;
  }
  const std::string& Text() const { return text_; }

 private:
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
    text.Add("Encrypt", options.require_tls ? "yes" : "optional");
    return;
  }
  text.Add("SSLmode", options.require_tls ? "require" : "prefer");
  // Answers come in portions through a cursor: a million rows are never held twice.
  text.Add("UseDeclareFetch", "1");
  text.Add("Fetch", "4096");
  // A server that vanished without a word is noticed within a minute.
  text.Add("KeepaliveTime", "30");
  text.Add("KeepaliveInterval", "10");
}

/// The value that begins at `start`, without its braces.
std::string ValueAt(const std::string& text, size_t start) {
  if (text.compare(start, 1, "{") != 0) return text.substr(start, text.find(';', start) - start);
  std::string value;
  for (size_t i = start + 1; i < text.size(); ++i) {
    if (text[i] == '}' && text.compare(++i, 1, "}") != 0) break;
    value += text[i];
  }
  return value;
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

}  // namespace qvzj
