#include "control/qvJxc_Zj.h"

#include <exception>

#include "forms/startup.h"
#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/data/details.h"
#include "platform/surroundings.h"
#include "platform/ui/form.h"
#include "services/connect.h"
#include "services/context.h"
#include "services/messages.h"
#include "services/query.h"
#include "services/strings.h"
#include "services/text_ids.h"

namespace qvzj {
namespace {

constexpr int32_t kModuleDigit = 11;  // this module's place in the module-rights string

bool MayOpen() { return basic::Val(basic::Mid(Shared().myModel, kModuleDigit, 1)) != 0; }

// A user's own data location, set by the suite's task component, wins over the host's where
// something is there.
void TakePathOfUser() {
  const std::string path = Around().settings->Get("tessary", "qvTask", "DataPath", "");
  if (!path.empty() && Around().files->AnyNormalFile(path)) Shared().UserPath = path;
}

// Opens the data and proves that the ledger table is there.
bool LedgerIsThere() {
  OpenData();
  return CountRows("tAccountDetail", "1=2") != -1;
}

// A refused connection and a missing table show the same box; its detail tells them apart.
DataError WhyLedgerIsNotThere() {
  const auto failure =
      Data().State() == 1 ? Data().LastFailure() : Around().connections->LastFailure();
  return failure.value_or(DataError("OpenConnection: False"));
}

}  // namespace

qvJxc_Zj::~qvJxc_Zj() {
  fate_->destroyed = true;
  const std::shared_ptr<frmZj> form = std::move(form_);
  if (!form || !form->Loaded()) return;
  // The host is taking its screen down: no box may come up any more.
  DropData();
  form->Close();
}

frmZj* qvJxc_Zj::Form() const { return form_ && form_->Loaded() ? form_.get() : nullptr; }

void qvJxc_Zj::refresh(int16_t MfRunMode, int16_t myShowMode) {
  if (fate_->opening) return;
  try {
    ui::Form::ApartFromActs([&] { Open(MfRunMode, myShowMode); });
  } catch (const std::exception& error) {
    ReportError(error);
  }
}

void qvJxc_Zj::Open(int16_t run_mode, int16_t show_mode) {
  Context& shared = Shared();
  if (shared.UserPath.empty() && shared.SQLData == 0) return;
  if (!MayOpen()) {
    Message(
        shared.CompName + ": " + LoadText(text_id::kNoRight) + LoadText(text_id::kManage) + " !",
        box::kCritical);
    return;
  }
  shared.DateQuote = shared.SQLData == 0 ? "#" : "'";
  TakePathOfUser();
  shared.Title = LoadText(run_mode == 0 ? text_id::kCustomersTitle : text_id::kAccountsTitle);
  if (!LedgerIsThere()) {
    const DataError reason = WhyLedgerIsNotThere();
    CloseData();
    Message("系统数据库 " + data::WithoutPasswords(shared.UserPath) + " 属早期版本，无 [" +
                shared.Title + "] 功能。请升级系统！",
            box::kCritical, reason);
    return;
  }
  shared.showmode = show_mode;
  ShowForm(run_mode);
}

void qvJxc_Zj::Load(const std::shared_ptr<frmZj>& form, int16_t run_mode) {
  const std::shared_ptr<Fate> fate = fate_;
  fate->opening = true;
  try {
    form->State(run_mode);
    LoadForm(*form);
  } catch (...) {
    fate->opening = false;
    if (!form->Loaded()) {
      form->Unload();
      CloseData();
    }
    throw;
  }
  fate->opening = false;
}

void qvJxc_Zj::ShowForm(int16_t run_mode) {
  if (!Form()) form_ = std::make_shared<frmZj>();
  // From here on the host may destroy the control at any time: in a box or a login on the way, and
  // while the form is modal.
  const std::shared_ptr<Fate> fate = fate_;
  const std::shared_ptr<frmZj> form = form_;
  Load(form, run_mode);
  if (fate->destroyed) return form->Unload();
  Around().presenter->Show(*form, Shared().showmode == 1);
  if (!fate->destroyed && !Form()) form_.reset();  // a modal one is over
}

void qvJxc_Zj::setMyTaskID(int32_t value) { Shared().myTaskID = value; }
void qvJxc_Zj::setUserPath(const std::string& value) { Shared().UserPath = value; }
std::string qvJxc_Zj::myName() const { return Shared().myName; }
void qvJxc_Zj::setMyName(const std::string& value) { Shared().myName = value; }
void qvJxc_Zj::setMyDate(double value) { Shared().myDate = value; }
void qvJxc_Zj::setPassword(const std::string& value) { Shared().Password = value; }
void qvJxc_Zj::setSQLData(int16_t value) { Shared().SQLData = value; }
int16_t qvJxc_Zj::AlertType() const { return 0; }
void qvJxc_Zj::setAlertType(int16_t) {}
void qvJxc_Zj::setLanguage(int16_t value) { Shared().Language = value; }
void qvJxc_Zj::setPowerPath(const std::string& value) { Shared().PowerPath = value; }
void qvJxc_Zj::setUserName(const std::string& value) { Shared().UserName = value; }
void qvJxc_Zj::setZgName(const std::string& value) { Shared().ZgName = value; }
void qvJxc_Zj::setCompName(const std::string& value) { Shared().CompName = value; }
void qvJxc_Zj::setMyPower(const std::string& value) { Shared().myPower = value; }
void qvJxc_Zj::setMyModel(const std::string& value) { Shared().myModel = value; }
std::string qvJxc_Zj::UserID() const { return Shared().UserID; }
void qvJxc_Zj::setUserID(const std::string& value) { Shared().UserID = value; }
std::string qvJxc_Zj::Default() const { return Shared().Default; }
void qvJxc_Zj::setDefault(const std::string& value) { Shared().Default = value; }

}  // namespace qvzj
