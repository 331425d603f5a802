#include "platform/surroundings.h"

namespace qvzj {

Surroundings& Around() {
  static Surroundings surroundings;
  return surroundings;
}

}  // namespace qvzj
