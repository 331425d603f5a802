#include "suite/users/user_rights.h"

#include <algorithm>
#include <chrono>

#include "adapters/icu/ansi_codec.h"
#include "platform/basic/text.h"
#include "suite/users/password.h"

namespace qvzj::users {
namespace {

constexpr size_t kMostNameBytes = 20;  // width of the user columns in the module's tables
constexpr int64_t kLongestDelay = 300;
constexpr int64_t kTriesKept = 24 * 3600;  // seconds after which a name's wrong tries are forgotten

constexpr const char* kSchema = R"(
create table if not exists tUser(
  fName text primary key collate nocase, fHash text not null, fPower text not null,
  fModel text not null default '', fNoUse_ integer not null default 0);
create table if not exists tUnit(fKey text primary key, fValue text not null);
create table if not exists tTries(
  fName text primary key collate nocase, fWrong integer not null, fLast integer not null);
create table if not exists tAccess(
  fID integer primary key autoincrement,
  fTime text not null default (datetime('now', 'localtime')),
  fUser text not null, fFunction text not null);
)";

std::string NativePath(std::string path) {
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

void CheckName(const std::string& name) {
  if (basic::Trim(name).empty() || name != basic::Trim(name)) {
    throw RightsError("a user name is not empty and has no blanks around it");
  }
  if (name.find('\'') != std::string::npos) {
    throw RightsError("a user name holds no single quote");
  }
  if (IcuAnsiCodec().Encode(name).size() > kMostNameBytes) {
    throw RightsError("a user name has 20 bytes at most, a Chinese character counting two");
  }
}

std::string CheckedPower(std::string power) {
  if (power.find_first_not_of("0123456789") != std::string::npos) {
    throw RightsError("a rights string holds digits only");
  }
  if (power.size() < kRightsLength) power.resize(kRightsLength, '0');
  return power;
}

std::string CheckedHash(const std::string& password) {
  if (password.empty()) throw RightsError("a password is not empty");
  return HashPassword(password);
}

}  // namespace

int64_t SystemTryClock::Now() const {
  const auto since = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::seconds>(since).count();
}

int64_t DelayAfter(int32_t wrong) {
  if (wrong <= 2) return 0;
  const int doublings = std::min(wrong - 3, 30);
  return std::min(int64_t{1} << doublings, kLongestDelay);
}

RightsDatabase::RightsDatabase(const std::string& file, Missing missing) {
  SqliteOptions options;
  options.create = missing == Missing::Create;
  session_ = OpenSqlite(NativePath(file), options);
  session_->NativeScript(kSchema);
}

RightsDatabase::~RightsDatabase() = default;

void RightsDatabase::Add(const std::string& name, const std::string& password,
                         const std::string& power) {
  CheckName(name);
  const std::string checked = CheckedPower(power);
  const std::string hash = CheckedHash(password);
  SqliteStatement insert =
      session_->Prepare("insert or ignore into tUser(fName,fHash,fPower) values(?,?,?)");
  insert.Bind(1, name);
  insert.Bind(2, hash);
  insert.Bind(3, checked);
  insert.Run();
  if (session_->Changes() == 0) throw RightsError("the user " + name + " is there already");
}

void RightsDatabase::Update(const std::string& name, const std::string& column,
                            const std::string& value) {
  SqliteStatement update = session_->Prepare("update tUser set " + column + "=? where fName=?");
  update.Bind(1, value);
  update.Bind(2, name);
  update.Run();
  if (session_->Changes() == 0) throw RightsError("there is no user " + name);
}

void RightsDatabase::SetPassword(const std::string& name, const std::string& password) {
  const std::string hash = CheckedHash(password);
  data::Transaction together(*session_);
  Update(name, "fHash", hash);
  ForgetTries(name);
  together.Commit();
}

void RightsDatabase::SetPower(const std::string& name, const std::string& power) {
  Update(name, "fPower", CheckedPower(power));
}

void RightsDatabase::SetModel(const std::string& name, const std::string& model) {
  Update(name, "fModel", model);
}

void RightsDatabase::SetDisabled(const std::string& name, bool disabled) {
  Update(name, "fNoUse_", disabled ? "1" : "0");
}

void RightsDatabase::Remove(const std::string& name) {
  SqliteStatement remove = session_->Prepare("delete from tUser where fName=?");
  remove.Bind(1, name);
  remove.Run();
  if (session_->Changes() == 0) throw RightsError("there is no user " + name);
}

std::vector<SuiteUserInfo> RightsDatabase::Users() {
  SqliteStatement rows =
      session_->Prepare("select fName,fPower,fModel,fNoUse_ from tUser order by fName");
  std::vector<SuiteUserInfo> users;
  while (rows.Step()) {
    users.push_back({rows.Text(0), rows.Text(1), rows.Text(2), rows.Integer(3) != 0});
  }
  return users;
}

std::string RightsDatabase::Setting(const std::string& key) {
  SqliteStatement row = session_->Prepare("select fValue from tUnit where fKey=?");
  row.Bind(1, key);
  return row.Step() ? row.Text(0) : "";
}

void RightsDatabase::SetSetting(const std::string& key, const std::string& value) {
  SqliteStatement put = session_->Prepare("insert or replace into tUnit(fKey,fValue) values(?,?)");
  put.Bind(1, key);
  put.Bind(2, value);
  put.Run();
}

std::string RightsDatabase::Unit() { return Setting("CompName"); }
void RightsDatabase::SetUnit(const std::string& unit) { SetSetting("CompName", unit); }
std::string RightsDatabase::Exempt() { return Setting("ZgName"); }
void RightsDatabase::SetExempt(const std::string& name) { SetSetting("ZgName", name); }

void RightsDatabase::ForgetTries(const std::string& name) {
  SqliteStatement forget = session_->Prepare("delete from tTries where fName=?");
  forget.Bind(1, name);
  forget.Run();
}

int64_t RightsDatabase::CountTry(const std::string& name, int64_t now) {
  data::Transaction together(*session_);
  SqliteStatement old = session_->Prepare("delete from tTries where fLast<? or fLast>?");
  old.Bind(1, now - kTriesKept);
  old.Bind(2, now + kTriesKept);
  old.Run();

  SqliteStatement row = session_->Prepare("select fWrong,fLast from tTries where fName=?");
  row.Bind(1, name);
  int64_t wrong = 0;
  if (row.Step()) {
    wrong = row.Integer(0);
    const int64_t delay = DelayAfter(static_cast<int32_t>(std::min(wrong, int64_t{1000})));
    // A clock that was set back makes nobody wait longer than the delay itself.
    const int64_t wait = std::clamp(row.Integer(1) + delay - now, int64_t{0}, delay);
    if (wait > 0) return wait;
  }
  row.Reset();
  SqliteStatement put =
      session_->Prepare("insert or replace into tTries(fName,fWrong,fLast) values(?,?,?)");
  put.Bind(1, name);
  put.Bind(2, wrong + 1);
  put.Bind(3, now);
  put.Run();
  together.Commit();
  return 0;
}

TryResult RightsDatabase::Try(const std::string& name, const std::string& password, int64_t now) {
  const int64_t wait = CountTry(name, now);
  if (wait > 0) return {TryResult::Kind::TooSoon, wait, {}};

  SqliteStatement row =
      session_->Prepare("select fName,fPower,fModel,fHash from tUser where fName=? and fNoUse_=0");
  row.Bind(1, name);
  const bool known = row.Step();
  if (!VerifyPassword(known ? row.Text(3) : "", password)) return {};
  ForgetTries(name);
  return {TryResult::Kind::Ok, 0, {row.Text(0), row.Text(1), row.Text(2), false}};
}

void RightsDatabase::Record(const std::string& user, const std::string& function) {
  SqliteStatement put = session_->Prepare("insert into tAccess(fUser,fFunction) values(?,?)");
  put.Bind(1, user);
  put.Bind(2, function);
  put.Run();
}

std::vector<AccessInfo> RightsDatabase::Record() {
  SqliteStatement rows =
      session_->Prepare("select fTime,fUser,fFunction from tAccess order by fID");
  std::vector<AccessInfo> record;
  while (rows.Step()) record.push_back({rows.Text(0), rows.Text(1), rows.Text(2)});
  return record;
}

}  // namespace qvzj::users
