#include "services/messages.h"

#include "platform/surroundings.h"
#include "services/context.h"

namespace qvzj {

Answer Message(const std::string& text, int style) { return Message(text, style, Shared().Title); }

Answer Message(const std::string& text, int style, const std::string& title) {
  return Around().boxes->Show(text, style, title);
}

}  // namespace qvzj
