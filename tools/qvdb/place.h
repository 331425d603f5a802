#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "suite/store/data_place.h"
#include "tools/qvdb/arguments.h"
#include "tools/qvdb/streams.h"

/// The options that say where the data lies; commands share them.
namespace qvzj::qvdb {

using Names = std::vector<std::string_view>;

/// The switch beside the options below.
inline constexpr std::string_view kRequireTls = "--require-tls";

/// Options of a command that works on a server: its own and those that say which and how.
Names WithServer(Names own);
/// The same with --data and --server, for a command that works on one place.
Names WithPlace(Names own);

/// The server of that address, with what the options say of it; asks for the password where the
/// options want that. Throws UsageError for an unknown engine.
store::DataPlace ServerPlace(const std::string& address, const Arguments& arguments,
                             const Streams& streams);
store::DataPlace FolderPlace(const std::string& folder);
/// What --data or --server name, the user's own folder without either. Throws UsageError for
/// options that do not go together.
store::DataPlace PlaceOf(const Arguments& arguments, const Streams& streams);

/// Throws UsageError when there are words between the options.
void RefuseWords(const Arguments& arguments);

/// The folder of the user's own data: $XDG_DATA_HOME/qvzj, or ~/.local/share/qvzj.
std::string DefaultDataFolder();

}  // namespace qvzj::qvdb
