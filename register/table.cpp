#include "register/table.h"

#include "platform/basic/number.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "services/query.h"

namespace qvzj {

std::string RegisterTable(const frmZj& form) {
  return form.mode == kAccounts ? "tAccounts" : "cards";
}

int32_t NewRecordId(const std::string& table) { return basic::ToInt32(MaxOf("fID", table) + 1.0); }

bool HasCurrentRecord(const frmZj& form) {
  const std::string& id = CurrentRecordId(form);
  return basic::IsNumeric(id) && basic::Val(id) != 0;
}

}  // namespace qvzj
