#include <array>

#include "frontends/script/command.h"
#include "frontends/script/host_properties.h"
#include "frontends/script/json.h"
#include "frontends/script/property_store.h"
#include "frontends/script/script.h"
#include "frontends/script/script_error.h"
#include "frontends/script/settings_file.h"
#include "platform/basic/date.h"
#include "platform/basic/number.h"

/// What the host application does.
namespace qvzj::script {
namespace {

void Fresh(Script& script, const Arguments&) { script.Control().InitProperties(); }

void Property(Script& script, const Arguments& arguments) {
  const std::string& name = arguments[0].text;
  if (arguments.Count() == 1) {
    script.Print(ReadProperty(script.Control(), name));
  } else {
    WriteProperty(script.Control(), name, arguments[1].text);
  }
}

void Save(Script& script, const Arguments& arguments) {
  PropertyStore store;
  script.Control().WriteProperties(store);
  store.Store(arguments[0].text);
}

void Restore(Script& script, const Arguments& arguments) {
  script.Control().ReadProperties(PropertyStore::Load(arguments[0].text));
}

void Setting(Script& script, const Arguments& arguments) {
  const std::string& application = arguments[0].text;
  const std::string& section = arguments[1].text;
  const std::string& key = arguments[2].text;
  const std::string& value = arguments[3].text;
  script.Around().settings.Set(application, section, key, value);
  if (script.SettingsFile().empty()) return;
  StoreSetting(script.SettingsFile(), application, section, key, value);
}

void Refresh(Script& script, const Arguments& arguments) {
  script.Control().refresh(basic::ToInt16(ToNumber(arguments[0])),
                           basic::ToInt16(ToNumber(arguments[1])));
}

void Close(Script& script, const Arguments&) {
  frmZj* form = script.Control().Form();
  if (!form) throw ScriptError("no form is open");
  form->Close();
}

void Today(Script& script, const Arguments& arguments) {
  const auto day = basic::ParseIso(arguments[0].text);
  if (!day) throw ScriptError("no such day: " + arguments[0].text);
  script.Around().clock.Set(*day);
}

void Sql(Script& script, const Arguments& arguments) {
  data::Recordset rows = script.Native(RestText(arguments.rest));
  for (; !rows.Eof(); rows.MoveNext()) {
    std::string line = "sql: ";
    for (int field = 0; field < rows.FieldCount(); ++field) {
      if (field > 0) line += '\t';
      line += rows.IsNull(field) ? "NULL" : LineField(rows.Text(field));
    }
    script.Print(line);
  }
}

constexpr std::array kCommands = {
    Command{"fresh", "", 0, 0, Fresh},
    Command{"property", "NAME [VALUE]", 1, 2, Property},
    Command{"save", "FILE", 1, 1, Save},
    Command{"restore", "FILE", 1, 1, Restore},
    Command{"setting", "APP SECTION KEY VALUE", 4, 4, Setting},
    Command{"refresh", "RUNMODE SHOWMODE", 2, 2, Refresh},
    Command{"close", "", 0, 0, Close},
    Command{"today", "YYYY-MM-DD", 1, 1, Today},
    Command{"sql", "TEXT", 1, 1, Sql, Takes::Rest},
};

}  // namespace

std::span<const Command> HostCommands() { return kCommands; }

}  // namespace qvzj::script
