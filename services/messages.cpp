#include "services/messages.h"

#include "platform/advice.h"
#include "platform/surroundings.h"
#include "services/context.h"

namespace qvzj {

Answer Message(const std::string& text, int style) { return Message(text, style, Shared().Title); }

Answer Message(const std::string& text, int style, const std::string& title) {
  return Around().boxes->Show(text, style, title);
}

Answer Message(const std::string& text, int style, const std::exception& cause) {
  return Around().boxes->Show(text, style, Shared().Title,
                              Advice(cause, LanguageOf(Shared().Language)));
}

void ReportError(const std::exception& error) {
  Around().boxes->Error(error.what(), Shared().Title, Advice(error, LanguageOf(Shared().Language)));
}

}  // namespace qvzj
