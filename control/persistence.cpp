#include "control/qvJxc_Zj.h"
#include "services/context.h"

// How the control keeps its values in the host's document. Keys, spellings and order are those
// that hosts' documents hold. UserName is written but never read back: who works is the host's to
// say each time.
namespace qvzj {
namespace {

const std::string kNoFunctions(350, '0');

}  // namespace

void qvJxc_Zj::InitProperties() {
  Context& shared = Shared();
  shared.myTaskID = 0;
  shared.UserName = "";
  shared.CompName = "";
  shared.myName = "";
  shared.showmode = 0;
  shared.Language = 0;
  shared.UserPath = "";
  shared.Password = "0";
  shared.SQLData = 0;
  shared.UserID = "";
  shared.Default = "";
}

void qvJxc_Zj::ReadProperties(const PropertyBag& bag) {
  Context& shared = Shared();
  shared.myName = bag.ReadText("myName", "");
  shared.Language = bag.ReadInteger("Language", 0);
  setAlertType(bag.ReadInteger("AlertType", 0));
  shared.ZgName = bag.ReadText("ZgName", "");
  shared.myPower = bag.ReadText("myPower", kNoFunctions);
  shared.myModel = bag.ReadText("myModel", "");
  shared.showmode = bag.ReadInteger("showmode", 0);
  shared.UserPath = bag.ReadText("UserPath", "");
  shared.Password = bag.ReadText("Password", "");
  shared.SQLData = bag.ReadInteger("SQLData", 0);
  shared.UserID = bag.ReadText("UserID", "");
  shared.Default = bag.ReadText("Default", "");
}

void qvJxc_Zj::WriteProperties(PropertyBag& bag) const {
  const Context& shared = Shared();
  bag.WriteText("myName", shared.myName, "");
  bag.WriteInteger("Language", shared.Language, 0);
  bag.WriteEmpty("AlertType");
  bag.WriteText("UserName", shared.UserName, "");
  bag.WriteText("ZgName", shared.ZgName, "");
  bag.WriteText("myPower", shared.myPower, kNoFunctions);
  bag.WriteText("myModel", shared.myModel, "");
  bag.WriteInteger("Showmode", shared.showmode, 0);
  bag.WriteText("UserPath", shared.UserPath, "");
  bag.WriteText("Password", shared.Password, "");
  bag.WriteInteger("SQLData", shared.SQLData, 0);
  bag.WriteText("UserID", shared.UserID, "");
  bag.WriteText("Default", shared.Default, "");
}

}  // namespace qvzj
