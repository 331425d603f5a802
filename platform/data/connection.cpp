#include "platform/data/connection.h"

namespace qvzj::data {

template <class Act>
auto Connection::Run(StatementKind kind, std::string_view statement, const Act& act) {
  if (watcher_) watcher_(kind, statement);
  last_failure_.reset();
  try {
    if (!session_)
      throw DataError("Operation is not allowed when the connection is closed", DataCause::Closed);
    return act(*session_);
  } catch (const DataError& error) {
    last_failure_ = error;
    throw;
  }
}

void Connection::Close() {
  const std::unique_ptr<Session> ending = std::move(session_);
  if (ending) ending->CheckBeforeClose();
}

void Connection::Execute(std::string_view statement) {
  Run(StatementKind::Execute, statement, [&](Session& session) { session.Execute(statement); });
}

Recordset Connection::Open(std::string_view statement) {
  return Run(StatementKind::Open, statement,
             [&](Session& session) { return session.Query(statement); });
}

}  // namespace qvzj::data
