#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/services.h"
#include "screen/frmZj.h"

namespace qvzj {

/// The control that a host places on its screen. The properties put the host's context into the
/// shared values (one set per loaded component); `refresh` opens the main form. Property writes
/// never fail. Most properties are write-only on purpose. The host may destroy the control at any
/// time, also while its form is modal, asks something or is being opened: the form is closed, no
/// box comes up, and whatever was under way ends without touching the control again.
class qvJxc_Zj {
 public:
  qvJxc_Zj() = default;
  ~qvJxc_Zj();
  qvJxc_Zj(const qvJxc_Zj&) = delete;
  qvJxc_Zj& operator=(const qvJxc_Zj&) = delete;

  /// Opens the component. `MfRunMode`: 0, 9, 10 customers (9 on the customer that the host named),
  /// 1, 11 and others money accounts. `myShowMode`: 0 modeless, 1 modal. Errors are reported in a
  /// box; the host never sees an exception. A call that comes in while the form is still being
  /// opened (out of a login window, say) does nothing.
  void refresh(int16_t MfRunMode, int16_t myShowMode);

  void setMyTaskID(int32_t value);
  void setUserPath(const std::string& value);
  std::string myName() const;
  void setMyName(const std::string& value);
  /// Days since 30 December 1899.
  void setMyDate(double value);
  void setPassword(const std::string& value);
  void setSQLData(int16_t value);
  /// Kept for hosts that know it: a write is discarded, a read is 0.
  int16_t AlertType() const;
  void setAlertType(int16_t value);
  void setLanguage(int16_t value);
  void setPowerPath(const std::string& value);
  void setUserName(const std::string& value);
  void setZgName(const std::string& value);
  void setCompName(const std::string& value);
  void setMyPower(const std::string& value);
  void setMyModel(const std::string& value);
  std::string UserID() const;
  void setUserID(const std::string& value);
  std::string Default() const;
  void setDefault(const std::string& value);

  /// The container created a new instance with nothing saved yet.
  void InitProperties();
  /// The container loads saved values.
  void ReadProperties(const PropertyBag& bag);
  /// The container stores the values.
  void WriteProperties(PropertyBag& bag) const;

  /// The main form while it is open; null otherwise.
  frmZj* Form() const;

 private:
  void Open(int16_t run_mode, int16_t show_mode);
  void Load(const std::shared_ptr<frmZj>& form, int16_t run_mode);
  void ShowForm(int16_t run_mode);

  /// What must be known of the control after a call in which the host may have destroyed it.
  struct Fate {
    bool opening = false;  ///< a form is being loaded
    bool destroyed = false;
  };

  std::shared_ptr<frmZj> form_;
  std::shared_ptr<Fate> fate_ = std::make_shared<Fate>();
};

}  // namespace qvzj
