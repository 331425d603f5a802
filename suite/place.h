#pragma once

#include <string>

#include "suite/connections.h"

namespace qvzj {

/// Where the module's tables lie: a data folder, or a database on a server written as
/// `postgres://USER@HOST[:PORT]/DATABASE`.
struct Place {
  std::string folder;  ///< "" for a server
  ServerLogin server;  ///< its password is not part of the text

  bool OnServer() const { return folder.empty(); }
  /// The text again, fit for a message.
  std::string Name() const;
};

/// Reads a place. Throws UsageError for a server without user, host or database.
Place PlaceOf(const std::string& text);

/// One end of a copy: a place that has been opened.
struct OpenPlace {
  std::string name;
  bool on_server;
  NativeStatements run;  ///< statements in the engine's own language
};

/// Opens a place. `make`: the folder, the data file and the tables that are missing are made.
/// Throws DataError or Error.
OpenPlace OpenAt(const Place& place, bool make);

}  // namespace qvzj
