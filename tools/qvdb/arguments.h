#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/basic/errors.h"

namespace qvzj::qvdb {

/// A command line that cannot be understood.
class UsageError : public Error {
 public:
  using Error::Error;
};

/// The words of a command line: options ("--name value", "--name=value", or "--name" alone for a
/// switch) and the words between them.
class Arguments {
 public:
  /// `options` take a value, `switches` none. Throws UsageError for any other option and for a
  /// value that is missing. After "--" every word is a plain one.
  Arguments(const std::vector<std::string>& words, const std::vector<std::string_view>& options,
            const std::vector<std::string_view>& switches = {});

  const std::vector<std::string>& Words() const { return words_; }
  bool Has(std::string_view option) const;
  /// Value of an option, the last when it is repeated; `preset` when it is not given.
  std::string Text(std::string_view option, const std::string& preset = {}) const;
  /// Values of a repeated option.
  std::vector<std::string> Texts(std::string_view option) const;
  /// Values "left=right" of a repeated option. Throws UsageError when one has no "=".
  std::vector<std::pair<std::string, std::string>> Pairs(std::string_view option) const;
  /// A whole number of 32 bits. Throws UsageError for anything else.
  int32_t Number(std::string_view option, int32_t preset) const;

 private:
  std::vector<std::string> words_;
  std::vector<std::pair<std::string, std::string>> given_;
};

}  // namespace qvzj::qvdb
