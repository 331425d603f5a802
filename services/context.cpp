#include "services/context.h"

namespace qvzj {

Context& Shared() {
  static Context context;
  return context;
}

Language CurrentLanguage() { return LanguageOf(Shared().Language); }

void ResetShared() { Shared() = Context{}; }

}  // namespace qvzj
