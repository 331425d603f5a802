#include "suite/users/user.h"

#include <optional>

#include "platform/surroundings.h"
#include "suite/dialogues/texts.h"

namespace qvzj::users {
namespace {

void Say(int16_t language, const std::string& text, int style) {
  Around().boxes->Show(text, style, dialogues::InLanguage(language, "用户登录", "用戶登錄"));
}

// Says why a try failed.
void SayWhy(int16_t language, const TryResult& result) {
  if (result.kind == TryResult::Kind::Wrong) {
    Say(language, dialogues::InLanguage(language, "用户名或密码不正确!", "用戶名或密碼不正確!"),
        box::kExclamation);
    return;
  }
  Say(language,
      dialogues::InLanguage(language, "密码错误次数过多，请在 ", "密碼錯誤次數過多，請在 ") +
          std::to_string(result.wait_seconds) +
          dialogues::InLanguage(language, " 秒后再试!", " 秒後再試!"),
      box::kExclamation);
}

// Opens the rights database; says so when it cannot be opened.
std::unique_ptr<RightsDatabase> OpenRights(const UserCall& call) {
  try {
    return std::make_unique<RightsDatabase>(call.rights_file, RightsDatabase::Missing::Fail);
  } catch (const DataError& error) {
    Say(call.language,
        dialogues::InLanguage(call.language,
                              "用户权限数据库不能打开: ", "用戶權限數據庫不能打開: ") +
            error.what(),
        box::kCritical);
    return nullptr;
  }
}

void HandBack(RightsDatabase& rights, const SuiteUserInfo& user, UserCall& call) {
  call.user_name = user.name;
  call.my_power = user.power;
  call.login_model = user.model;
  call.login_info = call.rights_file;
  call.zg_name = rights.Exempt();
  const std::string unit = rights.Unit();
  if (!unit.empty()) call.comp_name = unit;
}

}  // namespace

SuiteUser::SuiteUser(LoginDialogue& dialogue, const TryClock& clock)
    : dialogue_(dialogue), clock_(clock) {}

SuiteUser::~SuiteUser() = default;

void SuiteUser::Run(UserCall& call) {
  if (call.action == UserCall::kLogin) LogIn(call);
  if (call.action == UserCall::kRecordAccess) {
    if (rights_file_.empty()) throw DataError("no rights database is known to record in");
    RightsDatabase(rights_file_, RightsDatabase::Missing::Fail)
        .Record(call.user_name, call.function);
  }
}

void SuiteUser::LogIn(UserCall& call) {
  const std::unique_ptr<RightsDatabase> rights = OpenRights(call);
  if (!rights) return;
  dialogue_.Ask(call.language, [&](const std::string& name, const std::string& password) {
    const TryResult result = rights->Try(name, password, clock_.Now());
    if (result.kind != TryResult::Kind::Ok) {
      SayWhy(call.language, result);
      return false;
    }
    rights_file_ = call.rights_file;
    HandBack(*rights, result.user, call);
    return true;
  });
}

}  // namespace qvzj::users
