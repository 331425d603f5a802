#pragma once

#include <QString>

namespace qvzj::demo {

/// What the suite's window says, in one language.
struct SuiteTexts {
  const char* title;
  const char* user;  ///< before the user's name
  const char* change_user;
  const char* customers;
  const char* customers_hint;
  const char* accounts;
  const char* accounts_hint;
  const char* fund_system;  ///< over the two ways below
  const char* fund_customers;
  const char* fund_accounts;
  const char* other_screen;  ///< over the customer that another screen names
  const char* customer_id;   ///< before its number
  const char* customer_name;
  const char* open_customer;
  const char* language;
  const char* appearance;
  const char* appearances[3];  ///< the system's, light, dark
};

inline const SuiteTexts& SuiteTextsOf(bool traditional) {
  static constexpr SuiteTexts kSimplified{"示例进销存",
                                          "操作员: ",
                                          "换人登录(&U)",
                                          "客户往来帐(&K)",
                                          "应收、应付与收付款",
                                          "资金帐户(&Z)",
                                          "现金与银行的进出帐",
                                          "资金系统",
                                          "客户(&X)",
                                          "帐户(&Y)",
                                          "单据上的客户",
                                          "序号 ",
                                          "名称 (可不填)",
                                          "往来帐(&W)",
                                          "语言",
                                          "外观",
                                          {"跟随系统", "浅色", "深色"}};
  static constexpr SuiteTexts kTraditional{"示例進銷存",
                                           "操作員: ",
                                           "換人登錄(&U)",
                                           "客戶往來帳(&K)",
                                           "應收、應付與收付款",
                                           "資金帳戶(&Z)",
                                           "現金與銀行的進出帳",
                                           "資金系統",
                                           "客戶(&X)",
                                           "帳戶(&Y)",
                                           "單據上的客戶",
                                           "序號 ",
                                           "名稱 (可不填)",
                                           "往來帳(&W)",
                                           "語言",
                                           "外觀",
                                           {"跟隨系統", "淺色", "深色"}};
  return traditional ? kTraditional : kSimplified;
}

}  // namespace qvzj::demo
