#include "services/gate.h"

#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/surroundings.h"
#include "platform/ui/form.h"
#include "services/connect.h"
#include "services/context.h"
#include "services/messages.h"
#include "services/strings.h"
#include "services/text_ids.h"

namespace qvzj {
namespace {

constexpr int16_t kUnknown = -1000;  // no such function, or nobody logged in

// The component may show a window of its own, in which the host may close the form.
void RunUser(UserCall& call) {
  if (!Around().user) throw Error("This program has no user component to log in with.");
  Around().user->Run(call);
  ui::Form::EndActOfClosedForm();
}

UserCall NewCall(int16_t action) {
  const Context& shared = Shared();
  UserCall call;
  call.action = action;
  call.language = shared.Language;
  call.access = {shared.UserPath, shared.Password, shared.SQLData, shared.UserID, shared.Default};
  call.user_name = shared.UserName;
  return call;
}

// Logs a user in where nobody is; false when nobody is afterwards either.
bool LoggedIn() {
  Context& shared = Shared();
  if (!shared.UserName.empty()) return true;
  UserCall call = NewCall(UserCall::kLogin);
  call.my_model = shared.myModel;
  call.rights_file = StripSlash(shared.PowerPath) + "\\qvSet.mdb";
  call.comp_name = shared.CompName;
  call.flag = 1;
  // A login that is given up hands these back as they were: were the exempt user's name emptied,
  // it would equal the missing user's, and the next opening would ask no gate at all.
  call.my_power = shared.myPower;
  call.zg_name = shared.ZgName;
  call.login_model = shared.LoginModel;
  call.login_info = shared.LoginInfo;
  RunUser(call);
  shared.UserPath = shared.SQLData == 0 ? call.access.user_path : "SQL Server";
  shared.LoginModel = call.login_model;
  shared.CompName = call.comp_name;
  shared.UserName = call.user_name;
  shared.myPower = call.my_power;
  shared.ZgName = call.zg_name;
  shared.LoginInfo = call.login_info;
  return !shared.UserName.empty();
}

// "修改-" or "删除-" before the function's name in a refusal; nothing for plain opening.
std::string ActionLabel(int16_t offset) {
  if (offset == 2) return LoadText(text_id::kChange) + "-";
  if (offset == 3) return LoadText(text_id::kDelete) + "-";
  return "";
}

// Does the rights string hold a digit other than 0 at a 1-based position?
bool HasRight(int16_t position) {
  return position >= 1 && basic::Val(basic::Mid(Shared().myPower, position, 1)) != 0;
}

}  // namespace

int16_t ModuleGate(std::string name, int16_t offset, bool check) {
  if (!LoggedIn()) return kUnknown;
  if (name.empty()) return 1;

  std::string display;
  std::string password;
  const int16_t serial = GetModule(name, display, password);
  if (serial == 0) return kUnknown;
  const int16_t result = basic::AddInt16(serial, offset);
  if (!check) return result;

  if (serial != -1 && !HasRight(result)) {
    Message(LoadText(text_id::kNoRight) + ":" + ActionLabel(offset) + display + " !",
            box::kExclamation);
    return basic::MultiplyInt16(result, -1);
  }
  if (!PasswordGate(password)) return basic::MultiplyInt16(result, -1);
  RecordAccess(name + display);
  return result;
}

int16_t GetModule(std::string& name, std::string& display, std::string& password) {
  const std::string shown = "Model_Name_" + std::to_string(Shared().Language);
  data::Recordset rows =
      Data().Open("select SerialNo,model_Name," + shown +
                  ",SecondPass,password from tSysFunc Where NoUse_=0 And Model_Name = '" + name +
                  "' or " + shown + " = '" + name + "'");
  if (rows.Eof()) return 0;
  name = rows.Text("model_Name");
  display = rows.Text(shown);
  password = basic::Val(rows.Text("SecondPass")) == 1 ? rows.Text("password") : "";
  return basic::ToInt16(basic::Val(rows.Text("SerialNo")));
}

bool PasswordGate(const std::string& password) {
  if (password.empty()) return true;
  const std::string answer = AskText("Please input the Model password !").value_or("");
  if (basic::Trim(answer) == basic::Trim(password)) return true;
  Message("Deny Access: The Model password is not valid!", box::kExclamation);
  return false;
}

void RecordAccess(const std::string& function) {
  UserCall call = NewCall(UserCall::kRecordAccess);
  call.function = function;
  RunUser(call);
}

}  // namespace qvzj
