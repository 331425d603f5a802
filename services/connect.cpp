#include "services/connect.h"

#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "platform/surroundings.h"
#include "services/context.h"
#include "services/messages.h"

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
  // Whoever hears of it may open the data again.
  const std::unique_ptr<data::Connection> connection = std::move(Shared().cnData);
  if (!connection) return;
  try {
    connection->Close();
  } catch (const DataError& error) {
    ReportError(error);
  }
}

void DropData() { Shared().cnData.reset(); }

std::string StripSlash(const std::string& path) {
  return path.ends_with('\\') ? path.substr(0, path.size() - 1) : path;
}

}  // namespace qvzj
