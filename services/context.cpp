#include "services/context.h"

namespace qvzj {

Context& Shared() {
  static Context context;
  return context;
}

void ResetShared() { Shared() = Context{}; }

}  // namespace qvzj
