// Property stores: a host's document that was cut, mixed up or written by something else. Whatever
// it holds, it is read or refused; what was read can be written and read again as the same.

#include <filesystem>
#include <fstream>

#include "control/qvJxc_Zj.h"
#include "frontends/script/property_store.h"
#include "services/context.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/mangle.h"
#include "tests/support/world.h"

namespace qvzj::fuzz {
namespace {

constexpr const char* kKeys[] = {"myName",  "Language", "AlertType", "UserName", "ZgName",
                                 "myPower", "myModel",  "Showmode",  "UserPath", "Password",
                                 "SQLData", "UserID",   "Default",   "language", "unknown"};

std::string JsonValue(Dice& dice) {
  switch (dice.Below(6)) {
    case 0:
      return NastyNumber(dice);
    case 1:
      return "null";
    case 2:
      return "[1,{\"a\":[]}]";
    case 3:
      return "true";
    default:
      break;
  }
  std::string text = "\"";
  for (const char c : NastyText(dice)) {
    if (c == '"' || c == '\\') text += '\\';
    text += c;
  }
  return text + "\"";
}

std::string StoreText(Dice& dice) {
  std::string text = "{";
  for (uint32_t members = dice.Below(12); members > 0; --members) {
    text += std::string("\"") + dice.Pick(kKeys) + "\": " + JsonValue(dice) +
            (members > 1 ? ",\n" : "");
  }
  text += "}";
  return dice.Chance(30) ? Mangle(dice, text) : text;
}

/// The values that a store restores, as a text to compare.
std::string Restored() {
  const Context& shared = Shared();
  std::string text;
  for (const std::string& value :
       {shared.myName, shared.ZgName, shared.myPower, shared.myModel, shared.UserPath,
        shared.Password, shared.UserID, shared.Default, std::to_string(shared.Language),
        std::to_string(shared.showmode), std::to_string(shared.SQLData)}) {
    text += value + "|";
  }
  return text;
}

void Write(const std::string& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

/// Reads `file` into the control; false when the store is refused.
bool Restore(qvJxc_Zj& control, const std::string& file) {
  try {
    control.ReadProperties(script::PropertyStore::Load(file));
    return true;
  } catch (const std::exception& refusal) {
    Tell(std::string("refused: ") + refusal.what());
    return false;
  }
}

void Round(Dice& dice, const std::vector<std::string>&) {
  test::World world;
  const std::string file = (world.folder.Path() / "store.json").string();
  const std::string text = StoreText(dice);
  Tell(text);
  Write(file, text);
  if (!Restore(world.control, file)) return;
  const std::string before = Restored();
  script::PropertyStore saved;
  world.control.WriteProperties(saved);
  saved.Store(file);
  world.control.InitProperties();
  if (!Restore(world.control, file)) throw Fault("a store that was saved is refused");
  if (Restored() != before) throw Fault("restored " + Restored() + " after saving " + before);
  // A server is never asked: what it would answer is no matter of the store.
  if (Shared().SQLData == 0) world.control.refresh(0, 0);
}

}  // namespace
}  // namespace qvzj::fuzz

int main(int argc, char** argv) { return qvzj::fuzz::Main(argc, argv, {300, qvzj::fuzz::Round}); }
