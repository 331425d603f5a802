#pragma once

#include <memory>
#include <string>

#include "platform/components.h"
#include "suite/users/login.h"
#include "suite/users/user_rights.h"

namespace qvzj::users {

/// Stand-in for the suite's user component: logs users in against the rights database and records
/// there which functions they open.
class SuiteUser : public UserComponent {
 public:
  /// `dialogue` asks for name and password; `clock` measures the delay after wrong tries. Both
  /// must outlive the component.
  SuiteUser(LoginDialogue& dialogue, const TryClock& clock);
  ~SuiteUser() override;

  /// Rights database for calls that name none, as the record of an opened function does when the
  /// host itself set the user. A login's file takes its place.
  void SetRightsFile(std::string file) { rights_file_ = std::move(file); }

  /// Logs in (action 4) or records an opened function (action 9). A login that fails or is given up
  /// leaves `user_name` as it was. Throws DataError when a function cannot be recorded.
  void Run(UserCall& call) override;

 private:
  void LogIn(UserCall& call);

  LoginDialogue& dialogue_;
  const TryClock& clock_;
  std::string rights_file_;
};

}  // namespace qvzj::users
