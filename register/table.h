#pragma once

#include <cstdint>
#include <string>

namespace qvzj {

struct frmZj;

/// Table of the register that is open: `tAccounts` or `cards`.
std::string RegisterTable(const frmZj& form);
/// Id of the next record to add to a register table: the largest in use plus 1, so 1 in an empty
/// one. Throws OverflowError past 32 bits.
int32_t NewRecordId(const std::string& table);
/// True when a register record is the current one, that is when the tag of `lblKhName` is a number
/// other than 0.
bool HasCurrentRecord(const frmZj& form);

}  // namespace qvzj
