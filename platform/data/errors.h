#pragma once

#include "platform/basic/errors.h"

namespace qvzj::data {

/// What a table asks of its rows.
enum class Rule {
  Unique,     ///< no two rows alike in an index or a primary key
  Reference,  ///< a row that another one names is there
  NotNull,    ///< a column has a value
  Other,      ///< a check or a rule of the engine's own
};

/// The engine refused a statement because a row would break a rule of its table; the statement
/// stored nothing. what() is what the engine said, whose words differ from engine to engine; the
/// rule does not.
class ConstraintError : public DataError {
 public:
  ConstraintError(Rule broken, const std::string& what_was_said)
      : DataError(what_was_said,
                  broken == Rule::Unique ? DataCause::Duplicate : DataCause::Unknown),
        broken_(broken) {}
  Rule Broken() const { return broken_; }

 private:
  Rule broken_;
};

}  // namespace qvzj::data
