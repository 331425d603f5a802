#pragma once

#include <array>

#include "services/strings.h"

/// Texts of the form that have no id in the string table. Some read the same in both languages.
namespace qvzj::form_text {

inline constexpr BothTexts kNoRecord = {"客户名称", "客户名称"};  ///< in place of a record's name
inline constexpr BothTexts kContactPerson = {"联系人", "联系人"};
inline constexpr BothTexts kBank = {"开户行", "开户行"};
inline constexpr BothTexts kCustomerType = {"客户类型", "客戶類型"};
/// In the order of the type codes 0 to 3.
inline constexpr std::array<BothTexts, 4> kCustomerTypes = {
    {{"供销商", "供銷商"}, {"供应商", "供應商"}, {"销售商", "銷售商"}, {"代销商", "代銷商"}}};
/// Captions of the search page, in the order of its boxes.
inline constexpr std::array<BothTexts, 7> kSearchFields = {{{"客户编号:", "客戶編號:"},
                                                            {"客户单位:", "客戶單位:"},
                                                            {"联系人:", "聯系人:"},
                                                            {"所属地区:", "所屬地區:"},
                                                            {"所属城市:", "所屬城市:"},
                                                            {"邮编:", "郵編:"},
                                                            {"电话:", "電話:"}}};
inline constexpr BothTexts kOnlyWithEntries = {"限定：已发生[往来帐目]的客户",
                                               "限定：已發生[往来帳目]的客戶"};
inline constexpr BothTexts kTypeRule = {"<供销商>可任意归入\n\n----<供应商> <销售商> <代销商>",
                                        "<供銷商>可任意歸入\n\n----<供應商> <銷售商> <代銷商>"};
inline constexpr BothTexts kCurrency = {"币种", "幣種"};
inline constexpr BothTexts kRate = {"汇率", "匯率"};
/// Around the number of entries that bear a typed voucher number.
inline constexpr BothTexts kNumberUse = {"已有 ", "已有 "};
inline constexpr BothTexts kNumberUseEnd = {" 笔用此票号", " 筆用此票號"};
inline constexpr BothTexts kChangedMeanwhile = {
    "该帐目已被他人修改或审核，现已重新显示，请核对后再操作！",
    "該帳目已被他人修改或審核，現已重新顯示，請核對後再操作！"};
/// Before the number of entries without an amount, and before the voucher of the first one.
inline constexpr BothTexts kMissingAmounts = {
    "帐目金额为空，无法列出帐目，请先更正数据！空金额帐目笔数: ",
    "帳目金額為空，無法列出帳目，請先更正數據！空金額帳目筆數: "};
inline constexpr BothTexts kFirstOfThem = {"第一笔: ", "第一筆: "};
/// Behind the names of what is unsaved, each in brackets.
inline constexpr BothTexts kNotSaved = {"尚未存盘，放弃所键入的内容 ?",
                                        "尚未保存，放棄所鍵入的內容 ?"};
// Why a button cannot be pressed.
inline constexpr BothTexts kEntryIsChecked = {"帐目已审核，须先反审核", "帳目已審核，須先反審核"};
inline constexpr BothTexts kNothingToSave = {"正在查看帐目，没有可存盘的内容",
                                             "正在查看帳目，沒有可保存的內容"};
inline constexpr BothTexts kDetailUnchanged = {"详情没有改动，无须存盘", "詳情沒有改動，無須保存"};
inline constexpr BothTexts kNoPermission = {"您没有此项功能的权限", "您沒有此項功能的權限"};
inline constexpr BothTexts kNoTaskComponent = {"联系记录组件 [qvTask] 未安装 !",
                                               "聯系記錄組件 [qvTask] 未安裝 !"};

}  // namespace qvzj::form_text
