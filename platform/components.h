#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/basic/date.h"

/// The host suite's own components, as the module calls them.
namespace qvzj {

namespace ui {
class Form;
class Grid;
}  // namespace ui

/// Database access as every component of the suite receives it.
struct DataAccess {
  std::string user_path;         ///< folder of the data file, or the server's details
  std::string password;          ///< of the database; never to be shown
  int16_t sql_data = 0;          ///< 0 data file, otherwise a server
  std::string user_id;           ///< database user
  std::string default_database;  ///< on the server
};

/// What a printed list is about, for a component that can say it on the page. The component's own
/// values know nothing of it.
struct PrintFacts {
  std::string subject;          ///< whose entries, which period, which filters; "" for all of them
  bool local_currency = false;  ///< every entry printed is known to be in renminbi
};

/// What the print component is given, in the order in which it is set (see ledger/print).
struct PrintJob {
  int16_t kind = 0;                 ///< 1: 1 ledger, 0 register
  int16_t language = 0;             ///< 2
  std::vector<std::string> totals;  ///< 3: caption, value, caption, value, …
  ui::Grid* grid = nullptr;         ///< 4
  int16_t value5 = 0;               ///< 5
  DataAccess access;                ///< 6 to 10
  std::string company;              ///< 11
  std::string user;                 ///< 12
  std::string value13;              ///< 13
  std::string title;                ///< 14
  std::string report;               ///< 15: "qvzj_0", "qvzj_1" or ""
  int16_t value16 = 1;              ///< 16
  int16_t value17 = 1;              ///< 17
  int16_t value18 = 0;              ///< 18
  int16_t value19 = 0;              ///< 19
  std::string extra;                ///< 20
  PrintFacts facts{};               ///< beyond the twenty
};

/// Prints a grid as the suite prints its lists.
class PrintComponent {
 public:
  virtual ~PrintComponent() = default;
  /// Returns when the user is done with it. What goes wrong is an exception, whose text the module
  /// shows.
  virtual void Print(const PrintJob& job) = 0;
};

/// One call of the user component (`qvUser`): what it is given and what it hands back.
struct UserCall {
  static constexpr int16_t kLogin = 4;         ///< who works, and what they may do
  static constexpr int16_t kRecordAccess = 9;  ///< a function was opened: note it
  int16_t action = 0;                          ///< one of the two
  int16_t language = 0;                        ///< 0 simplified, 1 traditional Chinese
  DataAccess access;                           ///< its user_path is handed back after a login
  std::string my_model;                        ///< login: the module-rights string
  std::string rights_file;                     ///< login: the rights database
  std::string comp_name;                       ///< in and out
  std::string user_name;  ///< in and out; still empty after a login that failed
  int16_t flag = 0;       ///< 1 at a login
  std::string function;   ///< record access: what was opened
  std::string my_power;   ///< login: in and out, as are the rest
  std::string zg_name;
  std::string login_model;
  std::string login_info;
};

/// Knows the suite's users and their rights.
class UserComponent {
 public:
  virtual ~UserComponent() = default;
  /// Does what `call.action` asks and writes into the call what it hands back.
  virtual void Run(UserCall& call) = 0;
};

/// What the task component (`qvTask`) is given to open a customer's visit records.
struct TaskCall {
  int16_t language = 0;
  DataAccess access;
  std::string comp_name;
  std::string user_name;
  std::string my_power;
  std::string zg_name;
  basic::Date date;           ///< today
  std::string customer_name;  ///< whose records
  int32_t customer_id = 0;    ///< `fID` of the customer
  int16_t mode1 = 9;          ///< with mode2: which of its screens
  int16_t mode2 = 0;
};

/// Keeps the suite's visit records.
class TaskComponent {
 public:
  virtual ~TaskComponent() = default;
  /// Shows the records of one customer; returns when the user has closed them.
  virtual void Open(const TaskCall& call) = 0;
};

/// Puts forms on the screen. A front end without a window only keeps track of them.
class Presenter {
 public:
  virtual ~Presenter() = default;
  /// Shows a loaded form; a modal one returns when it is closed where the platform can do that.
  virtual void Show(ui::Form& form, bool modal) = 0;
  /// The form was unloaded; nothing of it may be touched afterwards.
  virtual void Closed(ui::Form& form) = 0;
};

}  // namespace qvzj
