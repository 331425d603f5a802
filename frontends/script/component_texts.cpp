#include "frontends/script/component_texts.h"

#include "frontends/script/json.h"
#include "platform/basic/date.h"

namespace qvzj::script {
namespace {

/// Builds " 1=… 2=…".
class Numbered {
 public:
  void Text(const std::string& value) { Raw(JsonText(value)); }
  void Number(int value) { Raw(std::to_string(value)); }
  void Raw(const std::string& value) { line_ += " " + std::to_string(++count_) + "=" + value; }
  const std::string& Line() const { return line_; }

 private:
  std::string line_;
  int count_ = 0;
};

/// Builds a JSON object in the order given.
class Object {
 public:
  void Text(const char* key, const std::string& value) { Raw(key, JsonText(value)); }
  void Number(const char* key, int32_t value) { Raw(key, std::to_string(value)); }
  void Access(const DataAccess& access) {
    Text("UserPath", access.user_path);
    Text("Password", access.password);
    Number("SQLData", access.sql_data);
    Text("UserID", access.user_id);
    Text("Default", access.default_database);
  }
  std::string Json() const { return "{" + members_ + "}"; }

 private:
  void Raw(const char* key, const std::string& value) {
    if (!members_.empty()) members_ += ",";
    members_ += "\"" + std::string(key) + "\":" + value;
  }

  std::string members_;
};

}  // namespace

std::string PrintText(const RecordedJob& job) {
  Numbered values;
  values.Number(job.kind);
  values.Number(job.language);
  values.Raw(JsonTexts(job.totals));
  values.Raw(job.grid ? job.grid_name : "none");
  values.Number(job.value5);
  values.Text(job.access.user_path);
  values.Text(job.access.password);
  values.Number(job.access.sql_data);
  values.Text(job.access.user_id);
  values.Text(job.access.default_database);
  values.Text(job.company);
  values.Text(job.user);
  values.Text(job.value13);
  values.Text(job.title);
  values.Text(job.report);
  values.Number(job.value16);
  values.Number(job.value17);
  values.Number(job.value18);
  values.Number(job.value19);
  values.Text(job.extra);
  return "print" + values.Line();
}

std::string UserText(const UserCall& call) {
  Object object;
  object.Number("Language", call.language);
  if (call.action == UserCall::kLogin) object.Text("myModel", call.my_model);
  object.Access(call.access);
  if (call.action == UserCall::kLogin) {
    object.Text("RightsFile", call.rights_file);
    object.Text("CompName", call.comp_name);
  }
  object.Text("UserName", call.user_name);
  if (call.action == UserCall::kLogin) {
    object.Number("Flag", call.flag);
    object.Text("myPower", call.my_power);
    object.Text("ZgName", call.zg_name);
    object.Text("LoginModel", call.login_model);
    object.Text("LoginInfo", call.login_info);
  } else {
    object.Text("Function", call.function);
  }
  return "user " + std::to_string(call.action) + " " + object.Json();
}

std::string TaskText(const TaskCall& call) {
  Object object;
  object.Number("Language", call.language);
  object.Access(call.access);
  object.Text("CompName", call.comp_name);
  object.Text("UserName", call.user_name);
  object.Text("myPower", call.my_power);
  object.Text("ZgName", call.zg_name);
  object.Text("Date", basic::FormatIso(call.date));
  object.Text("CustomerName", call.customer_name);
  object.Number("CustomerID", call.customer_id);
  object.Number("Mode1", call.mode1);
  object.Number("Mode2", call.mode2);
  return "task " + object.Json();
}

}  // namespace qvzj::script
