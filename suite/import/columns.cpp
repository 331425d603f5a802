#include "suite/import/columns.h"

#include "platform/basic/text.h"

namespace qvzj::imports {
namespace {

constexpr Column kRegister[] = {
    {"CompCode", FieldKind::Text, 20, true, "编号"},
    {"compname", FieldKind::Text, 0, true, "名称"},
    {"name", FieldKind::Text, 20, false, "联系人"},
    {"fBank", FieldKind::Text, 50, false, "开户银行"},
    {"fAcntID", FieldKind::Text, 30, false, "开户帐号"},
    {"others", FieldKind::Text, 50, false, "摘要"},
    {"province", FieldKind::Text, 20, false, "地区"},
    {"cityname", FieldKind::Text, 20, false, "城市"},
    {"postcode", FieldKind::Text, 10, false, "邮编"},
    {"telphone", FieldKind::Text, 40, false, "电话"},
    {"fax", FieldKind::Text, 40, false, "传真"},
    {"fType0", FieldKind::Type, 0, false, "类型"},
    {"detail", FieldKind::Memo, 0, false, "详细资料"},
};

constexpr Column kEntries[] = {
    {"fCompID", FieldKind::Whole, 0, false, "单位序号"},
    {"CompCode", FieldKind::Text, 20, false, "编号"},
    {"compname", FieldKind::Text, 0, false, "名称"},
    {"fDate", FieldKind::Date, 0, true, "日期"},
    {"fType2", FieldKind::Side, 0, true, "收付"},
    {"fAcntNo", FieldKind::Text, 20, true, "票号"},
    {"fInit", FieldKind::Flag, 0, false, "期初"},
    {"fMoneyA", FieldKind::Number, 0, false, "应收应付金额"},
    {"fMoneyB", FieldKind::Number, 0, false, "实收实付金额"},
    {"fBrief", FieldKind::Text, 50, false, "摘要"},
    {"fInvID", FieldKind::Text, 20, false, "相关单号"},
    {"fOrderID", FieldKind::Text, 20, false, "订单号"},
    {"fUser", FieldKind::Text, 20, false, "登录人"},
    {"fDoneman", FieldKind::Text, 20, false, "经办人"},
    {"fChecker", FieldKind::Text, 20, false, "审核人"},
    {"fMoneyCode", FieldKind::Text, 10, false, "货币"},
    {"fMoneyRate", FieldKind::Number, 0, false, "汇率"},
};

}  // namespace

std::span<const Column> ColumnsOf(Kind kind) {
  if (kind == Kind::Entries) return kEntries;
  return kRegister;
}

int FindColumn(std::span<const Column> columns, std::string_view name) {
  for (size_t i = 0; i < columns.size(); ++i) {
    if (name == columns[i].heading || basic::EqualIgnoringCase(name, columns[i].name)) {
      return static_cast<int>(i);
    }
  }
  return -1;
}

}  // namespace qvzj::imports
