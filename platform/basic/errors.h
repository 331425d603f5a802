#pragma once

#include <stdexcept>
#include <string>

namespace qvzj {

/// Root of every error the module raises on purpose; what() is UTF-8 text fit for a message box.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A value does not fit its 16- or 32-bit type.
class OverflowError : public Error {
 public:
  explicit OverflowError(const std::string& what_overflowed)
      : Error("Overflow: " + what_overflowed) {}
};

/// A text was used as a number or a date and is none.
class TypeMismatchError : public Error {
 public:
  explicit TypeMismatchError(const std::string& what_mismatched)
      : Error("Type mismatch: " + what_mismatched) {}
};

/// The string table has no text of that id.
class ResourceNotFoundError : public Error {
 public:
  explicit ResourceNotFoundError(int id)
      : Error("Resource with identifier " + std::to_string(id) + " not found") {}
};

/// The database engine refused or failed; what() is what the engine said.
class DataError : public Error {
 public:
  using Error::Error;
};

}  // namespace qvzj
