#pragma once

#include <string>

namespace qvzj::store {

/// The options that psqlODBC hands on to the client library of the server ("pqopt"), as a URI or as
/// "name=value name=value". They take any character, which the driver's own keys do not.
class LibpqOptions {
 public:
  /// `text` is what is there already, without its braces; new options are added in its own form.
  explicit LibpqOptions(std::string text) : text_(std::move(text)) {}

  void Add(const std::string& name, const std::string& value);
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace qvzj::store
