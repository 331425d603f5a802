#include "services/connect.h"

#include "platform/basic/number.h"
#include "platform/surroundings.h"
#include "services/context.h"

namespace qvzj {

bool OpenData() {
  data::Connection& connection = Data();
  if (connection.State() == 1) return false;
  const Context& shared = Shared();
  const uint8_t kind = basic::ToByte(shared.SQLData);
  const bool opened = Around().connections->OpenConnection(
      kind, connection, shared.UserPath, shared.Password, shared.UserID, shared.Default);
  return opened && connection.State() != 0;
}

data::Connection& Data() {
  auto& connection = Shared().cnData;
  if (!connection) connection = std::make_unique<data::Connection>(Around().statement_watcher);
  return *connection;
}

void CloseData() {
  auto& connection = Shared().cnData;
  if (connection && connection->State() == 1) connection->Close();
  connection.reset();
}

std::string StripSlash(const std::string& path) {
  return path.ends_with('\\') ? path.substr(0, path.size() - 1) : path;
}

}  // namespace qvzj
