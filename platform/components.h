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
  std::string user_path;
  std::string password;
  int16_t sql_data = 0;
  std::string user_id;
  std::string default_database;
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
  int16_t value16 = 1;
  int16_t value17 = 1;
  int16_t value18 = 0;
  int16_t value19 = 0;
  std::string extra;  ///< 20
};

class PrintComponent {
 public:
  virtual ~PrintComponent() = default;
  virtual void Print(const PrintJob& job) = 0;
};

/// One call of the user component (`qvUser`): what it is given and what it hands back.
struct UserCall {
  static constexpr int16_t kLogin = 4;
  static constexpr int16_t kRecordAccess = 9;
  int16_t action = 0;
  int16_t language = 0;
  DataAccess access;        ///< its user_path is handed back after a login
  std::string my_model;     ///< login: the module-rights string
  std::string rights_file;  ///< login: the rights database
  std::string comp_name;    ///< in and out
  std::string user_name;    ///< in and out; still empty after a login that failed
  int16_t flag = 0;
  std::string function;  ///< record access: what was opened
  std::string my_power;  ///< login: in and out, as are the rest
  std::string zg_name;
  std::string login_model;
  std::string login_info;
};

class UserComponent {
 public:
  virtual ~UserComponent() = default;
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
  basic::Date date;
  std::string customer_name;
  int32_t customer_id = 0;
  int16_t mode1 = 9;
  int16_t mode2 = 0;
};

class TaskComponent {
 public:
  virtual ~TaskComponent() = default;
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
