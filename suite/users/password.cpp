#include "suite/users/password.h"

#include <sodium.h>

#include "platform/basic/errors.h"

namespace qvzj::users {
namespace {

void Start() {
  static const int started = sodium_init();
  if (started < 0) throw Error("The password library could not be started.");
}

// What a user that is not there is checked against, so that the time does not tell.
const std::string& HashOfNobody() {
  static const std::string hash = HashPassword("");
  return hash;
}

bool Matches(const std::string& hash, const std::string& password) {
  return crypto_pwhash_str_verify(hash.c_str(), password.data(), password.size()) == 0;
}

}  // namespace

std::string HashPassword(const std::string& password) {
  Start();
  char hash[crypto_pwhash_STRBYTES];
  if (crypto_pwhash_str_alg(hash, password.data(), password.size(),
                            crypto_pwhash_OPSLIMIT_INTERACTIVE, crypto_pwhash_MEMLIMIT_INTERACTIVE,
                            crypto_pwhash_ALG_ARGON2ID13) != 0) {
    throw Error("There is not enough memory to hash a password.");
  }
  return hash;
}

bool VerifyPassword(const std::string& hash, const std::string& password) {
  Start();
  if (hash.starts_with("$argon2id$")) return Matches(hash, password);
  Matches(HashOfNobody(), password);
  return false;
}

void Forget(std::string& secret) {
  sodium_memzero(secret.data(), secret.size());
  secret.clear();
}

}  // namespace qvzj::users
