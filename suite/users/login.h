#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/ui/form.h"
#include "platform/ui/widgets.h"

namespace qvzj::users {

/// Looks at a name and a password; true when they are taken. Says itself what is wrong.
using AcceptLogin = std::function<bool(const std::string& user, const std::string& password)>;

/// Asks who works: until `accept` takes the answer or the user gives up.
class LoginDialogue {
 public:
  virtual ~LoginDialogue() = default;
  virtual void Ask(int16_t language, const AcceptLogin& accept) = 0;
};

/// Asks by two input boxes, for programs without windows. Cancel in either gives up.
class BoxLogin : public LoginDialogue {
 public:
  void Ask(int16_t language, const AcceptLogin& accept) override;
};

/// Asks by the form frmLogin, shown modally. A program that cannot show it modally logs nobody in.
class FormLogin : public LoginDialogue {
 public:
  void Ask(int16_t language, const AcceptLogin& accept) override;
};

/// The login window.
struct frmLogin : ui::Form {
  frmLogin(int16_t language, AcceptLogin accept);

  ui::Label lblUser{*this, "lblUser"};
  ui::TextBox txtUser{*this, "txtUser"};
  ui::Label lblPassword{*this, "lblPassword"};
  ui::TextBox txtPassword{*this, "txtPassword"};
  ui::Button cmdOK{*this, "cmdOK"};
  ui::Button cmdCancel{*this, "cmdCancel"};

 private:
  void WriteCaptions(int16_t language);
  void Place();
  void Connect(int16_t language);
  void Accept();

  AcceptLogin accept_;
};

}  // namespace qvzj::users
