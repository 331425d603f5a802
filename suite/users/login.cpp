#include "suite/users/login.h"

#include <memory>
#include <optional>
#include <utility>

#include "platform/surroundings.h"
#include "suite/dialogues/form_wiring.h"
#include "suite/dialogues/texts.h"
#include "suite/users/password.h"

namespace qvzj::users {
namespace {

std::string LoginTitle(int16_t language) {
  return dialogues::InLanguage(language, "用户登录", "用戶登錄");
}

}  // namespace

void BoxLogin::Ask(int16_t language, const AcceptLogin& accept) {
  const std::string title = LoginTitle(language);
  while (true) {
    const std::optional<std::string> user =
        Around().boxes->Input(dialogues::InLanguage(language, "用户:", "用戶:"), title, "");
    if (!user) return;
    std::optional<std::string> password =
        Around().boxes->Input(dialogues::InLanguage(language, "密码:", "密碼:"), title, "");
    if (!password) return;
    const bool accepted = accept(*user, *password);
    Forget(*password);
    if (accepted) return;
  }
}

void FormLogin::Ask(int16_t language, const AcceptLogin& accept) {
  const auto form = std::make_unique<frmLogin>(language, accept);
  form->SetLoaded(true);
  Around().presenter->Show(*form, true);
  if (form->Loaded()) form->Unload();
}

frmLogin::frmLogin(int16_t language, AcceptLogin accept)
    : ui::Form("frmLogin"), accept_(std::move(accept)) {
  WriteCaptions(language);
  Place();
  Connect(language);
  SetFocus(txtUser);
}

void frmLogin::WriteCaptions(int16_t language) {
  SetCaption(LoginTitle(language));
  lblUser.SetCaption(dialogues::InLanguage(language, "用户(&U):", "用戶(&U):"));
  lblPassword.SetCaption(dialogues::InLanguage(language, "密码(&P):", "密碼(&P):"));
  cmdOK.SetCaption(dialogues::InLanguage(language, "确定(&O)", "確定(&O)"));
  cmdCancel.SetCaption(dialogues::InLanguage(language, "取消(&C)", "取消(&C)"));
  txtUser.SetAccessibleName(ui::ShownCaption(lblUser.Caption()));
  txtPassword.SetAccessibleName(ui::ShownCaption(lblPassword.Caption()));
}

void frmLogin::Place() {
  SetSize(4800, 2250);
  lblUser.SetBounds({300, 322, 1050, 300});
  txtUser.SetBounds({1410, 300, 3090, 345});
  lblPassword.SetBounds({300, 877, 1050, 300});
  txtPassword.SetBounds({1410, 855, 3090, 345});
  txtPassword.SetMasked(true);
  cmdOK.SetBounds({1410, 1575, 1470, 420});
  cmdCancel.SetBounds({3030, 1575, 1470, 420});
}

void frmLogin::Connect(int16_t language) {
  dialogues::WireForm(*this, language);
  for (ui::Control* control : Controls()) dialogues::MoveOnByEnter(*this, *control);
  // Enter on a button presses it; in the last field it logs in.
  const auto close_by_escape = [this](int& key) {
    if (key == ui::kKeyEscape) Unload();
  };
  cmdOK.onKeyPress = close_by_escape;
  cmdCancel.onKeyPress = close_by_escape;
  txtPassword.onKeyPress = [this, close_by_escape](int& key) {
    close_by_escape(key);
    if (key == ui::kKeyEnter) Accept();
  };
  cmdOK.onClick = [this] { Accept(); };
  cmdCancel.onClick = [this] { Unload(); };
}

void frmLogin::Accept() {
  std::string password = txtPassword.Text();
  txtPassword.SetText("");
  const bool accepted = accept_(txtUser.Text(), password);
  Forget(password);
  if (accepted) {
    Unload();
  } else {
    SetFocus(txtPassword);
  }
}

}  // namespace qvzj::users
