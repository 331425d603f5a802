#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "adapters/sqlite/sqlite_session.h"
#include "platform/basic/errors.h"

namespace qvzj::users {

/// Name of the rights database within its folder, as the module asks for it. It is a SQLite file;
/// the name is the suite's of old.
inline constexpr const char* kRightsFile = "qvSet.mdb";
/// Positions of a function-rights string.
inline constexpr size_t kRightsLength = 350;

/// Seconds since 1970, for the delay after wrong tries. A test brings its own.
class TryClock {
 public:
  virtual ~TryClock() = default;
  virtual int64_t Now() const = 0;
};

class SystemTryClock : public TryClock {
 public:
  int64_t Now() const override;
};

/// Seconds for which further tries are refused after `wrong` wrong ones in a row: none after two
/// (fingers slip), then 1, 2, 4 … up to five minutes.
int64_t DelayAfter(int32_t wrong);

/// A user of the suite.
struct SuiteUserInfo {
  std::string name;
  std::string power;  ///< function rights, one digit a function
  std::string model;  ///< module rights
  bool disabled = false;
};

/// One opening of a function.
struct AccessInfo {
  std::string time;  ///< "yyyy-mm-dd hh:mm:ss", local time
  std::string user;
  std::string function;
};

/// How a try to log in ended.
struct TryResult {
  enum class Kind { Ok, Wrong, TooSoon } kind = Kind::Wrong;
  int64_t wait_seconds = 0;  ///< TooSoon: how long tries are still refused
  SuiteUserInfo user;        ///< Ok: who it is, in the stored spelling
};

/// A user name, a password or a rights string that the rights database does not take.
class RightsError : public Error {
 public:
  using Error::Error;
};

/// The suite's rights database: users with their password hashes and rights, the unit's name, the
/// user who is exempt from the function gates, and the record of opened functions. User names
/// ignore ASCII case. Engine failures are DataError. Each call is safe against other programs that
/// use the file at the same time.
class RightsDatabase {
 public:
  enum class Missing { Fail, Create };
  /// Opens the file; both kinds of slash part its folders. Where it is missing it is created, or
  /// DataError is thrown.
  RightsDatabase(const std::string& file, Missing missing);
  ~RightsDatabase();

  /// Adds a user. Throws RightsError when the name is there already, is empty, holds a single quote
  /// or is longer than 20 bytes of the Chinese code page, when the password is empty, or when
  /// `power` holds anything but digits. Missing digits of `power` are "0".
  void Add(const std::string& name, const std::string& password, const std::string& power);
  /// Sets a password and lifts any delay. RightsError when there is no such user.
  void SetPassword(const std::string& name, const std::string& password);
  void SetPower(const std::string& name, const std::string& power);
  void SetModel(const std::string& name, const std::string& model);
  void SetDisabled(const std::string& name, bool disabled);
  void Remove(const std::string& name);
  /// All users by name.
  std::vector<SuiteUserInfo> Users();

  /// Display name of the unit; "" when none is set.
  std::string Unit();
  void SetUnit(const std::string& unit);
  /// The user who is exempt from the function gates; "" when there is none.
  std::string Exempt();
  void SetExempt(const std::string& name);

  /// Tries to log in at `now` (seconds). The try is counted before the password is looked at, so
  /// that tries made at once from several programs gain nothing.
  TryResult Try(const std::string& name, const std::string& password, int64_t now);

  /// Notes that a user opened a function.
  void Record(const std::string& user, const std::string& function);
  /// The record, oldest first.
  std::vector<AccessInfo> Record();

 private:
  std::string Setting(const std::string& key);
  void SetSetting(const std::string& key, const std::string& value);
  void Update(const std::string& name, const std::string& column, const std::string& value);
  /// Counts a try before it is looked at; answers the seconds to wait where it comes too soon.
  int64_t CountTry(const std::string& name, int64_t now);
  void ForgetTries(const std::string& name);

  std::unique_ptr<SqliteSession> session_;
};

}  // namespace qvzj::users
