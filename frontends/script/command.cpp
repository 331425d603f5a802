#include "frontends/script/command.h"

namespace qvzj::script {

const Command* FindCommand(std::string_view name) {
  for (const auto group : {HostCommands(), UserCommands(), LookCommands(), PictureCommands()}) {
    for (const Command& command : group) {
      if (command.name == name) return &command;
    }
  }
  return nullptr;
}

}  // namespace qvzj::script
