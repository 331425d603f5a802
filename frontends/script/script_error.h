#pragma once

#include "platform/basic/errors.h"

namespace qvzj::script {

/// A command that cannot be carried out: an unknown name, a wrong argument, an act that the screen
/// does not allow now.
class ScriptError : public Error {
 public:
  using Error::Error;
};

}  // namespace qvzj::script
