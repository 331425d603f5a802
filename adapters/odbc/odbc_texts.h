#pragma once

#include <chrono>
#include <string>

/// What the user reads when a server did not do what it was asked for; each text says what is known
/// about the data. `language` is 0 for simplified and 1 for traditional Chinese.
namespace qvzj::odbc_texts {

/// The connection broke while a change was being stored.
std::string OutcomeUnknown(int language);
/// Nothing came within `limit`, and the server confirmed that it has stopped.
std::string ReadStopped(int language, std::chrono::milliseconds limit);
std::string WriteStopped(int language, std::chrono::milliseconds limit);
/// Nothing came within `limit`, not even that: the connection was given up.
std::string ReadGivenUp(int language, std::chrono::milliseconds limit);
std::string WriteGivenUp(int language, std::chrono::milliseconds limit);

}  // namespace qvzj::odbc_texts
