#include "frontends/script/host_properties.h"

#include <array>

#include "frontends/script/json.h"
#include "frontends/script/script_error.h"
#include "platform/basic/date.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"

namespace qvzj::script {
namespace {

struct HostProperty {
  const char* name;
  void (*write)(qvJxc_Zj&, const std::string&);
  std::string (*read)(const qvJxc_Zj&);  // null: write-only
};

double Number(const std::string& value) {
  if (!basic::IsNumeric(value)) throw TypeMismatchError(JsonText(value) + " is not a number");
  return basic::Val(value);
}

int16_t Int16(const std::string& value) { return basic::ToInt16(Number(value)); }

double Day(const std::string& value) {
  const auto date = basic::ParseIso(value);
  return date ? date->serial : Number(value);
}

template <void (qvJxc_Zj::*write)(const std::string&)>
void Text(qvJxc_Zj& control, const std::string& value) {
  (control.*write)(value);
}

template <void (qvJxc_Zj::*write)(int16_t)>
void Integer(qvJxc_Zj& control, const std::string& value) {
  (control.*write)(Int16(value));
}

constexpr std::array kProperties = {
    HostProperty{"myTaskID",
                 [](qvJxc_Zj& control, const std::string& value) {
                   control.setMyTaskID(basic::ToInt32(Number(value)));
                 },
                 nullptr},
    HostProperty{"UserPath", Text<&qvJxc_Zj::setUserPath>, nullptr},
    HostProperty{"myName", Text<&qvJxc_Zj::setMyName>,
                 [](const qvJxc_Zj& control) { return control.myName(); }},
    HostProperty{"myDate",
                 [](qvJxc_Zj& control, const std::string& value) { control.setMyDate(Day(value)); },
                 nullptr},
    HostProperty{"Password", Text<&qvJxc_Zj::setPassword>, nullptr},
    HostProperty{"SQLData", Integer<&qvJxc_Zj::setSQLData>, nullptr},
    HostProperty{"AlertType", Integer<&qvJxc_Zj::setAlertType>,
                 [](const qvJxc_Zj& control) { return std::to_string(control.AlertType()); }},
    HostProperty{"Language", Integer<&qvJxc_Zj::setLanguage>, nullptr},
    HostProperty{"PowerPath", Text<&qvJxc_Zj::setPowerPath>, nullptr},
    HostProperty{"UserName", Text<&qvJxc_Zj::setUserName>, nullptr},
    HostProperty{"ZgName", Text<&qvJxc_Zj::setZgName>, nullptr},
    HostProperty{"CompName", Text<&qvJxc_Zj::setCompName>, nullptr},
    HostProperty{"myPower", Text<&qvJxc_Zj::setMyPower>, nullptr},
    HostProperty{"myModel", Text<&qvJxc_Zj::setMyModel>, nullptr},
    HostProperty{"UserID", Text<&qvJxc_Zj::setUserID>,
                 [](const qvJxc_Zj& control) { return control.UserID(); }},
    HostProperty{"Default", Text<&qvJxc_Zj::setDefault>,
                 [](const qvJxc_Zj& control) { return control.Default(); }},
};

const HostProperty& Find(const std::string& name) {
  for (const HostProperty& property : kProperties) {
    if (basic::EqualIgnoringCase(property.name, name)) return property;
  }
  throw ScriptError("the control has no property " + name);
}

}  // namespace

void WriteProperty(qvJxc_Zj& control, const std::string& name, const std::string& value) {
  Find(name).write(control, value);
}

std::string ReadProperty(const qvJxc_Zj& control, const std::string& name) {
  const HostProperty& property = Find(name);
  if (!property.read) throw ScriptError(std::string(property.name) + " is write-only");
  return std::string(property.name) + "=" + JsonText(property.read(control));
}

}  // namespace qvzj::script
