#include "hosts/demo/demo_host.h"

#include <filesystem>

#include "frontends/qt/text.h"
#include "platform/surroundings.h"
#include "suite/users/user_rights.h"

namespace qvzj::demo {

DemoHost::DemoHost(const QString& data, const QString& settings_file)
    : component_(settings_file), data_(qt::ToUtf8(data)) {
  control_.InitProperties();
  control_.setUserPath(data_);
  control_.setSQLData(0);
  control_.setMyModel("11111111111");
  Employ("admin", "示例贸易有限公司");
  control_.setZgName("admin");
}

void DemoHost::Employ(const std::string& user, const std::string& company) {
  user_ = user;
  control_.setUserName(user);
  if (company.empty()) return;
  company_ = company;
  control_.setCompName(company);
}

bool DemoHost::HasUsers() const {
  return std::filesystem::exists(std::filesystem::path(data_) / users::kRightsFile);
}

bool DemoHost::LogIn() {
  if (!HasUsers()) return true;
  UserCall call;
  call.action = UserCall::kLogin;
  call.language = language_;
  call.access.user_path = data_;
  call.rights_file = (std::filesystem::path(data_) / users::kRightsFile).string();
  Around().user->Run(call);
  if (call.user_name.empty()) return false;
  if (!Close()) return false;
  Employ(call.user_name, call.comp_name);
  control_.setZgName(call.zg_name);
  control_.setMyPower(call.my_power);
  control_.setPowerPath(data_);
  return true;
}

void DemoHost::Open(int16_t run_mode) {
  if (control_.Form() != nullptr && run_mode != open_mode_ && !Close()) return;
  open_mode_ = run_mode;
  control_.refresh(run_mode, 0);
}

void DemoHost::OpenCustomer(int id, const QString& name) {
  constexpr int16_t kOneCustomerRunMode = 9;
  control_.setMyTaskID(id);
  control_.setMyName(qt::ToUtf8(name));
  Open(kOneCustomerRunMode);
}

bool DemoHost::Close() {
  if (frmZj* form = control_.Form()) form->UserClose();
  return control_.Form() == nullptr;
}

bool DemoHost::SetLanguage(int16_t language) {
  if (language == language_) return true;
  if (!Close()) return false;
  language_ = language;
  control_.setLanguage(language);
  return true;
}

}  // namespace qvzj::demo
