#include "services/messages.h"

#include "platform/advice.h"
#include "platform/surroundings.h"
#include "platform/ui/form.h"
#include "services/context.h"

namespace qvzj {
namespace {

Answer Show(const std::string& text, int style, const std::string& title,
            const std::string& detail) {
  const Answer answer = Around().boxes->Show(text, style, title, detail);
  ui::Form::EndActOfClosedForm();
  return answer;
}

}  // namespace

Answer Message(const std::string& text, int style) { return Message(text, style, Shared().Title); }

Answer Message(const std::string& text, int style, const std::string& title) {
  return Show(text, style, title, "");
}

Answer Message(const std::string& text, int style, const std::exception& cause) {
  return Show(text, style, Shared().Title, Advice(cause, LanguageOf(Shared().Language)));
}

std::optional<std::string> AskText(const std::string& prompt) {
  const auto answer = Around().boxes->Input(prompt, Shared().Title, "");
  ui::Form::EndActOfClosedForm();
  return answer;
}

void ReportError(const std::exception& error) {
  Around().boxes->Error(error.what(), Shared().Title, Advice(error, LanguageOf(Shared().Language)));
}

}  // namespace qvzj
