#pragma once

#include <memory>
#include <string>

#include "platform/data/store.h"
#include "suite/store/server_address.h"

namespace qvzj::store {

/// Where the tables of a suite lie: in the data file of a folder or on a server.
struct DataPlace {
  std::string folder;    ///< empty: on the server
  ServerLogin login;     ///< see ServerLogin
  ServerOptions server;  ///< what kind of server it is

  /// How the place is called in messages; holds no credentials.
  std::string Name() const;
};

/// Opens what is there. Throws DataError when it cannot be opened.
std::unique_ptr<data::Store> OpenPlace(const DataPlace& place);

/// Opens it, with all its tables made where they are missing; in a folder the folder and the data
/// file too. A server's database must be there. Throws Error.
std::unique_ptr<data::Store> OpenOrMakePlace(const DataPlace& place);

}  // namespace qvzj::store
