#include "adapters/odbc/odbc_handle.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "adapters/icu/utf16.h"

namespace qvzj {
namespace {

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t));

SQLWCHAR* Wide(char16_t* text) { return reinterpret_cast<SQLWCHAR*>(text); }

/// The driver's records one after another, with line ends taken out.
OdbcError ErrorOf(SQLSMALLINT type, SQLHANDLE handle) {
  std::string first_state = "HY000";
  int first_native = 0;
  std::string said;
  for (SQLSMALLINT record = 1;; ++record) {
    std::array<char16_t, 6> state{};
    std::array<char16_t, 2048> text{};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    const SQLRETURN result =
        SQLGetDiagRecW(type, handle, record, Wide(state.data()), &native, Wide(text.data()),
                       static_cast<SQLSMALLINT>(text.size()), &length);
    if (!SQL_SUCCEEDED(result)) break;
    std::string piece;
    ToUtf8({text.data(), std::char_traits<char16_t>::length(text.data())}, piece);
    std::replace(piece.begin(), piece.end(), '\n', ' ');
    while (!piece.empty() && piece.back() == ' ') piece.pop_back();
    if (!said.empty()) said += "; ";
    said += piece;
    if (record > 1) continue;
    ToUtf8({state.data(), 5}, first_state);
    first_native = native;
  }
  if (said.empty()) said = "The database driver reported a failure without a text";
  return {first_state, first_native, said};
}

/// Drivers report a connection that did not come about with one state; the text tells why.
DataCause CauseOfConnecting(std::string_view text) {
  const auto says = [text](std::string_view words) { return text.find(words) != text.npos; };
  if (says("authentication failed") || says("no password supplied") || says("Login failed")) {
    return DataCause::LoginRefused;
  }
  const bool database = says("database \"") || says("Cannot open database");
  if (database && (says("does not exist") || says("Cannot open database"))) {
    return DataCause::NoServerData;
  }
  return DataCause::NoServer;
}

DataCause CauseOf(std::string_view state, std::string_view text) {
  struct Meaning {
    std::string_view state;  // or its beginning
    DataCause cause;
  };
  // SQLSTATEs of the standard, of PostgreSQL (letters within) and of the driver manager (IM, HY).
  static constexpr Meaning kMeanings[] = {
      {"28", DataCause::LoginRefused}, {"3D000", DataCause::NoServerData},
      {"IM002", DataCause::NoDriver},  {"IM003", DataCause::NoDriver},
      {"01000", DataCause::NoDriver},  {"57P0", DataCause::NoServer},
      {"57014", DataCause::TimedOut},  {"HYT0", DataCause::TimedOut},
      {"42501", DataCause::NoRights},  {"42P01", DataCause::Missing},
      {"42703", DataCause::Missing},   {"42S02", DataCause::Missing},
      {"42S22", DataCause::Missing},   {"25006", DataCause::ReadOnly},
      {"53100", DataCause::DiskFull},  {"58030", DataCause::DiskFailed},
      {"55P03", DataCause::Locked},    {"40P01", DataCause::Locked},
      {"40001", DataCause::Locked},    {"XX001", DataCause::Damaged},
      {"XX002", DataCause::Damaged},
  };
  if (state.starts_with("08")) return CauseOfConnecting(text);
  for (const Meaning& meaning : kMeanings) {
    if (state.starts_with(meaning.state)) return meaning.cause;
  }
  return DataCause::Unknown;
}

}  // namespace

OdbcError::OdbcError(std::string state, int native, const std::string& text)
    : DataError(text + " (SQLSTATE " + state + ")", CauseOf(state, text)),
      state_(std::move(state)),
      native_(native) {}

bool OdbcError::ConnectionLost() const {
  const std::string_view kind = std::string_view(state_).substr(0, 2);
  return kind == "08" || state_ == "57P01" || state_ == "57P02" || state_ == "57P03";
}

std::optional<data::Rule> OdbcError::BrokenRule() const {
  if (!state_.starts_with("23")) return std::nullopt;
  // PostgreSQL has a state for each rule; servers of the other protocol one state and numbers.
  if (state_ == "23505" || native_ == 2601 || native_ == 2627) return data::Rule::Unique;
  if (state_ == "23503" || native_ == 547) return data::Rule::Reference;
  if (state_ == "23502" || native_ == 515) return data::Rule::NotNull;
  return data::Rule::Other;
}

template <SQLSMALLINT kType>
OdbcHandle<kType>::OdbcHandle(SQLHANDLE parent) {
  if (!SQL_SUCCEEDED(SQLAllocHandle(kType, parent, &handle_))) {
    throw DataError("The database driver manager gave no handle");
  }
  if constexpr (kType == SQL_HANDLE_ENV) {
    Check(SQLSetEnvAttr(handle_, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3),
                        0));
  }
}

template <SQLSMALLINT kType>
void OdbcHandle<kType>::Throw() const {
  throw ErrorOf(kType, handle_);
}

template class OdbcHandle<SQL_HANDLE_ENV>;
template class OdbcHandle<SQL_HANDLE_DBC>;
template class OdbcHandle<SQL_HANDLE_STMT>;

OdbcConnection::OdbcConnection(const std::string& connection_string, int login_timeout)
    : connection_(environment_.Get()) {
  SQLSetConnectAttr(Get(), SQL_ATTR_LOGIN_TIMEOUT,
                    reinterpret_cast<SQLPOINTER>(static_cast<SQLULEN>(login_timeout)), 0);
  std::u16string text = ToUtf16(connection_string);
  connection_.Check(SQLDriverConnectW(Get(), nullptr, Wide(text.data()),
                                      static_cast<SQLSMALLINT>(text.size()), nullptr, 0, nullptr,
                                      SQL_DRIVER_NOPROMPT));
  SQLUINTEGER extensions = 0;
  if (SQL_SUCCEEDED(SQLGetInfoW(Get(), SQL_GETDATA_EXTENSIONS, &extensions, 0, nullptr))) {
    constexpr SQLUINTEGER kNeeded = SQL_GD_BLOCK | SQL_GD_BOUND;
    long_values_in_blocks_ = (extensions & kNeeded) == kNeeded;
  }
}

OdbcConnection::~OdbcConnection() { SQLDisconnect(Get()); }

void OdbcConnection::SetAutocommit(bool on) {
  const SQLULEN mode = on ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF;
  connection_.Check(SQLSetConnectAttr(Get(), SQL_ATTR_AUTOCOMMIT,
                                      reinterpret_cast<SQLPOINTER>(mode), SQL_IS_UINTEGER));
}

void OdbcConnection::EndTransaction(SQLSMALLINT how) {
  connection_.Check(SQLEndTran(SQL_HANDLE_DBC, Get(), how));
}

void OdbcConnection::Cancel() {
  const std::lock_guard lock(running_mutex_);
  if (running_ == SQL_NULL_HANDLE) return;
  cancelled_ = true;
  SQLCancel(running_);
}

OdbcConnection::Running::Running(OdbcConnection& connection, const OdbcStatement& statement)
    : connection_(connection) {
  const std::lock_guard lock(connection_.running_mutex_);
  connection_.running_ = statement.Get();
  connection_.cancelled_ = false;
}

OdbcConnection::Running::~Running() {
  const std::lock_guard lock(connection_.running_mutex_);
  connection_.running_ = SQL_NULL_HANDLE;
}

bool OdbcConnection::Dead() const {
  SQLUINTEGER dead = SQL_CD_FALSE;
  SQLGetConnectAttr(Get(), SQL_ATTR_CONNECTION_DEAD, &dead, 0, nullptr);
  return dead == SQL_CD_TRUE;
}

}  // namespace qvzj
