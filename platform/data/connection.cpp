#include "platform/data/connection.h"

#include "platform/basic/errors.h"

namespace qvzj::data {

Session& Connection::Running(StatementKind kind, std::string_view statement) {
  if (watcher_) watcher_(kind, statement);
  if (!session_) throw DataError("Operation is not allowed when the connection is closed");
  return *session_;
}

void Connection::Execute(std::string_view statement) {
  Running(StatementKind::Execute, statement).Execute(statement);
}

Recordset Connection::Open(std::string_view statement) {
  return Running(StatementKind::Open, statement).Query(statement);
}

}  // namespace qvzj::data
