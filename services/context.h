#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/data/connection.h"
#include "platform/language.h"

namespace qvzj {

/// The values that the host and the login set and that every screen and service reads: one set
/// per loaded component, shared by all control instances on purpose. Names are those of the
/// properties that set them.
struct Context {
  int32_t myTaskID = 0;   ///< register record handed over for run mode 9
  int16_t showmode = 0;   ///< 0 modeless, 1 modal
  std::string UserName;   ///< logged-in user
  std::string ZgName;     ///< user who is exempt from the function gates
  std::string CompName;   ///< unit name, for messages and print headers
  std::string myModel;    ///< module rights; the 11th character is this module's
  std::string PowerPath;  ///< folder of the user-rights database
  std::string myPower = std::string(350, '0');  ///< function rights, one digit a function
  double myDate = 0;     ///< working date, days since 30 Dec 1899; kept, not read
  int16_t Language = 0;  ///< 0 simplified, 1 traditional Chinese; see CurrentLanguage
  std::string UserPath;  ///< data folder, or the server's details
  std::string Password = "0";
  int16_t SQLData = 0;  ///< 0 desktop database, otherwise a server
  std::string UserID;
  std::string Default;          ///< default database on the server
  std::string myName;           ///< name handed over; result of the pick list
  std::string DateQuote = "#";  ///< around dates in statements: "#" desktop, "'" server
  std::string LoginModel;
  std::string LoginInfo;
  std::string Title = "qvZj_ocx";            ///< application title: caption of message boxes
  std::unique_ptr<data::Connection> cnData;  ///< created on first use, see OpenData
};

/// The one set of shared values.
Context& Shared();
/// The language that the host chose for the screen.
Language CurrentLanguage();
/// Puts every shared value back to what a freshly loaded component holds (closing `cnData`).
void ResetShared();

}  // namespace qvzj
