#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/basic/date.h"
#include "platform/components.h"
#include "platform/data/connection.h"

namespace qvzj::visits {

/// One visit to, or talk with, a customer.
struct Visit {
  int32_t id = 0;
  basic::Date date;
  std::string user;  ///< who noted it
  std::string text;
};

/// The visit records of one customer in the suite's task table, on a connection of their own. As
/// long as one is there the module refuses to delete the customer.
class VisitRecords {
 public:
  /// Opens the data. Throws DataError when it cannot be opened.
  explicit VisitRecords(const TaskCall& call);

  /// Newest first.
  std::vector<Visit> List();
  /// Adds a record and answers its id.
  int32_t Add(basic::Date date, const std::string& text);
  /// Changes date and text; who noted it stays.
  void Change(int32_t id, basic::Date date, const std::string& text);
  void Remove(int32_t id);

 private:
  std::string Literal(basic::Date date) const;
  std::string Only(int32_t id) const;

  data::Connection connection_;
  std::string customer_;
  std::string user_;
  std::string date_quote_;
};

}  // namespace qvzj::visits
