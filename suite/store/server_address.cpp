#include "suite/store/server_address.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

#include "platform/basic/errors.h"
#include "platform/basic/text.h"
#include "platform/data/details.h"
#include "suite/store/libpq_options.h"

namespace qvzj::store {
namespace {

/// Names under which drivers take the same thing.
struct Names {
  std::string_view usual;
  std::string_view others[3] = {};

  bool Hold(const data::Detail& detail) const {
    return detail.Is(usual) ||
           std::any_of(std::begin(others), std::end(others), [&detail](std::string_view name) {
             return !name.empty() && detail.Is(name);
           });
  }
};

struct HeldBy {
  const Names& names;
  bool operator()(const data::Detail& detail) const { return names.Hold(detail); }
};

constexpr Names kServer{"SERVER", {"Servername"}};
constexpr Names kPort{"PORT"};
constexpr Names kDatabase{"DATABASE", {"DB", "Initial Catalog"}};
constexpr Names kUser{"UID", {"Username", "User", "User ID"}};
constexpr Names kPassword{"PWD", {"Password"}};
constexpr Names kTls{"SSLmode", {"CA"}};
constexpr Names kLibpq{"pqopt", {"D6"}};

std::string Braced(const std::string& value) {
  return "{" + basic::Replace(value, "}", "}}") + "}";
}

/// A value with the characters that end one put between braces.
std::string Quoted(const std::string& value) {
  const bool plain = value.find_first_of(";{}=[]() ,?*!@:%+") == std::string::npos;
  return plain ? value : Braced(value);
}

/// Builds the string; what is there already, under whichever name, is not added again.
class Builder {
 public:
  explicit Builder(const std::string& whole) : details_(data::DetailsIn(whole)) {}

  void Add(const Names& names, const std::string& value) {
    if (value.empty() || Has(names)) return;
    details_.push_back({std::string(names.usual), Quoted(value)});
  }
  bool Has(const Names& names) const {
    return std::any_of(details_.begin(), details_.end(), HeldBy{names});
  }
  /// Leaves one value, in the letters that drivers expect: the last of `enough` that is there, or
  /// `preset` when none is. Drivers differ in which of several they take.
  void Require(const Names& names, const std::vector<std::string>& enough,
               const std::string& preset) {
    auto strongest = enough.begin();
    bool found = false;
    for (const data::Detail& detail : details_) {
      if (!names.Hold(detail)) continue;
      const auto said = std::find(strongest, enough.end(), basic::Lower(detail.Plain()));
      if (said == enough.end()) continue;
      strongest = said;
      found = true;
    }
    const std::string value = found ? *strongest : preset;
    std::erase_if(details_, HeldBy{names});
    Add(names, value);
  }
  void SpellOutTls();
  void LetPsqlOdbcRead();
  void AddLibpq(const std::string& name, const std::string& value);

  std::string Text() const {
    std::string text;
    for (const data::Detail& detail : details_) text += detail.key + "=" + detail.value + ";";
    return text;
  }

 private:
  void TakeLiterally(const Names& names, const std::string& libpq_name);

  std::vector<data::Detail> details_;
};

void Builder::AddLibpq(const std::string& name, const std::string& value) {
  std::string there;
  for (const data::Detail& detail : details_) {
    if (kLibpq.Hold(detail)) there = detail.Plain();
  }
  std::erase_if(details_, HeldBy{kLibpq});
  LibpqOptions options(there);
  options.Add(name, value);
  details_.push_back({std::string(kLibpq.usual), Braced(options.Text())});
}

/// psqlODBC takes such a value as it stands, braces and all, up to the next semicolon. What cannot
/// stand so goes by way of the client library.
void Builder::TakeLiterally(const Names& names, const std::string& libpq_name) {
  for (data::Detail& detail : details_) {
    if (!names.Hold(detail)) continue;
    const std::string value = detail.Plain();
    const bool stands = value.find(';') == std::string::npos && !value.starts_with('{') &&
                        !value.starts_with(' ') && !value.ends_with(' ');
    if (stands) {
      detail.value = value;
      continue;
    }
    if (Has({"DSN"})) {
      throw DataError(detail.key + " " + value + " cannot be given together with a data source");
    }
    std::erase_if(details_, HeldBy{names});
    AddLibpq(libpq_name, value);
    return;
  }
}

/// Writes down what is there as psqlODBC reads it: braces stand round passwords and options only,
/// and a password without them would be taken for one with %XX and + in it.
void Builder::LetPsqlOdbcRead() {
  TakeLiterally(kServer, "host");
  TakeLiterally(kPort, "port");
  TakeLiterally(kDatabase, "dbname");
  TakeLiterally(kUser, "user");
  for (data::Detail& detail : details_) {
    if (kPassword.Hold(detail)) detail.value = Quoted(detail.Plain());
  }
}

/// Writes down in full how the encryption is asked for: psqlODBC knows a short key and looks at the
/// first letters of the value alone, and what it does not know is no encryption to it.
void Builder::SpellOutTls() {
  for (data::Detail& detail : details_) {
    if (!kTls.Hold(detail)) continue;
    const std::string said = basic::Lower(detail.Plain());
    detail.key = kTls.usual;
    detail.value = said;
    for (const char* mode : {"allow", "prefer", "require"}) {
      if (said.starts_with(mode[0])) detail.value = mode;
    }
    if (said == "vc") detail.value = "verify-ca";
    if (said == "vf") detail.value = "verify-full";
  }
}

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
  text.Add({"DRIVER"}, options.driver.empty() ? "PostgreSQL Unicode" : options.driver);
  text.Add(kServer, server.host);
  text.Add(kPort, server.port);
}

void AddTransactSql(Builder& text, const ServerOptions& options, const HostAndPort& server) {
  text.Add({"DRIVER"}, options.driver.empty() ? "ODBC Driver 18 for SQL Server" : options.driver);
  text.Add(kServer, server.port.empty() ? server.host : server.host + "," + server.port);
}

void AddTransactSqlHabits(Builder& text, const ServerOptions& options) {
  if (!options.root_certificate.empty()) {
    throw DataError(
        "A root certificate can be given for PostgreSQL only; for this server it goes among those "
        "that the machine trusts");
  }
  constexpr Names kEncrypt{"Encrypt"};
  if (options.require_tls) text.Require(kEncrypt, {"yes", "true", "mandatory", "strict"}, "yes");
  text.Add(kEncrypt, "optional");
}

void AddPostgresHabits(Builder& text, const ServerOptions& options) {
  text.SpellOutTls();
  if (!options.root_certificate.empty()) {
    text.Require(kTls, {"verify-ca", "verify-full"}, "verify-full");
    text.AddLibpq("sslrootcert", options.root_certificate);
  } else if (options.require_tls) {
    text.Require(kTls, {"require", "verify-ca", "verify-full"}, "require");
  }
  text.Add(kTls, "prefer");
  // Answers come in portions through a cursor: a million rows are never held twice.
  text.Add({"UseDeclareFetch"}, "1");
  text.Add({"Fetch"}, "4096");
  // A server that vanished without a word is noticed within a minute.
  text.Add({"KeepaliveTime"}, "30");
  text.Add({"KeepaliveInterval"}, "10");
  text.LetPsqlOdbcRead();
}

}  // namespace

std::string ConnectionString(const ServerLogin& login, const ServerOptions& options) {
  const bool whole = login.address.find('=') != std::string::npos;
  const bool postgres = options.kind == ServerKind::PostgreSql;
  Builder text(whole ? login.address : "");
  if (!whole) {
    const HostAndPort server = Parted(login.address);
    if (options.is_data_source && options.is_data_source(login.address)) {
      text.Add({"DSN"}, login.address);
    } else if (postgres) {
      AddPostgres(text, options, server);
    } else {
      AddTransactSql(text, options, server);
    }
  }
  text.Add(kDatabase, login.database);
  text.Add(kUser, login.user);
  text.Add(kPassword, login.password);
  if (postgres) {
    AddPostgresHabits(text, options);
  } else {
    AddTransactSqlHabits(text, options);
  }
  return text.Text();
}

}  // namespace qvzj::store
