#pragma once

#include <cstdint>

/// Columns of the ledger grid, in the order of the fields of its statement. The last six are
/// hidden.
namespace qvzj::ledger_column {

inline constexpr int32_t kDate = 1;
inline constexpr int32_t kNumber = 2;   ///< voucher number
inline constexpr int32_t kName = 3;     ///< customer or account
inline constexpr int32_t kMoneyA = 4;   ///< signed; empty when 0
inline constexpr int32_t kMoneyB = 5;   ///< signed; empty when 0
inline constexpr int32_t kBalance = 6;  ///< running balance of the customer or account
inline constexpr int32_t kBrief = 7;
inline constexpr int32_t kInvID = 8;  ///< warehouse document
inline constexpr int32_t kOrderID = 9;
inline constexpr int32_t kUser = 10;
inline constexpr int32_t kDoneman = 11;
inline constexpr int32_t kChecker = 12;  ///< not empty: the entry is checked
inline constexpr int32_t kRate = 13;
inline constexpr int32_t kType2 = 14;  ///< 1 receivable or in, anything else payable or out
inline constexpr int32_t kInit = 15;
inline constexpr int32_t kCompID = 16;
inline constexpr int32_t kID = 17;
inline constexpr int32_t kID2 = 18;

}  // namespace qvzj::ledger_column
