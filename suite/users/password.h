#pragma once

#include <string>

namespace qvzj::users {

/// Hash of a password as it is stored: argon2id with a salt of its own; the parameters stand in
/// the text, so that they can be raised later. Takes some ten milliseconds and 64 MiB on purpose.
std::string HashPassword(const std::string& password);
/// Does the password belong to the hash? False also for a text that is no hash. A wrong password
/// and a text that is no hash take the same time.
bool VerifyPassword(const std::string& hash, const std::string& password);
/// Overwrites a text that is not needed any more.
void Forget(std::string& secret);

}  // namespace qvzj::users
