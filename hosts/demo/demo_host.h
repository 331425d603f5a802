#pragma once

#include <QString>
#include <functional>
#include <string>

#include "control/qvJxc_Zj.h"
#include "hosts/component/component.h"

namespace qvzj::demo {

/// The host's side of the embedding: the component and one control, set up as a host does it.
class DemoHost {
 public:
  /// `data` is the folder of the data file.
  explicit DemoHost(const QString& data, const QString& settings_file = {});

  /// Logs a user in where the data folder holds a rights database (made by qvdb user); false when
  /// the user gives up, and whoever worked before goes on. An open control is closed by the change.
  /// Without such a database the demo's "admin" works and may do everything.
  bool LogIn();
  /// True when there is a rights database, so that somebody else can log in.
  bool HasUsers() const;
  /// Who works, and for which company.
  const std::string& User() const { return user_; }
  const std::string& Company() const { return company_; }
  /// Opens the control in a run mode; an open one in another mode or language is closed first, and
  /// stays alone where the user does not give up what he is keying there.
  void Open(int16_t run_mode);
  /// Opens the customers on one of them, as another screen of the suite names it.
  void OpenCustomer(int id, const QString& name);
  /// Closes an open control. False when the user goes on with what he is keying there.
  bool Close();
  /// 0 simplified, 1 traditional Chinese; an open control is closed, as its texts are set once.
  /// False when it was not to be closed.
  bool SetLanguage(int16_t language);
  int16_t Language() const { return language_; }

  qvJxc_Zj& Control() { return control_; }
  qt::QtPresenter& Windows() { return component_.Windows(); }

 private:
  void Employ(const std::string& user, const std::string& company);

  Component component_;
  std::string data_;
  std::string user_;
  std::string company_;
  qvJxc_Zj control_;
  int16_t language_ = 0;
  int16_t open_mode_ = -1;  // run mode of the open screen
};

}  // namespace qvzj::demo
