#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The details of a server as hosts keep them: an address, or a whole ODBC connection string
/// ("KEY=value;…"). A value in braces may hold any character; two closing braces in it stand for
/// one. Blanks around a key and around a value mean nothing.
namespace qvzj::data {

/// One "KEY=value" of the details.
struct Detail {
  std::string key;    ///< without the blanks around it
  std::string value;  ///< as written, braces included, without the blanks around it
  size_t begin = 0;   ///< where the value stands in the details
  size_t end = 0;     ///< place behind it

  /// True when the key is `name`, in any case of letters.
  bool Is(std::string_view name) const;
  /// The value without its braces.
  std::string Plain() const;
};

/// Every "KEY=value" of the details in its order, each as often as it stands there.
std::vector<Detail> DetailsIn(std::string_view details);

/// The passwords within the details, however they are written: under every key that ends with
/// "pwd" or "password", as "user:password@host", and in the options that a driver hands on.
std::vector<std::string> PasswordsIn(const std::string& details);

/// The details as a message may show them: "***" stands for every password.
std::string WithoutPasswords(std::string details);

}  // namespace qvzj::data
