#pragma once

#include <cstdint>

/// Ids of the string table's texts that the module uses; each bears the simplified text.
namespace qvzj::text_id {

inline constexpr int16_t kCustomer = 5;          ///< 客户
inline constexpr int16_t kAccount = 6;           ///< 帐户
inline constexpr int16_t kEntry = 7;             ///< 帐目
inline constexpr int16_t kAmount = 8;            ///< 金额
inline constexpr int16_t kBalance = 9;           ///< 余额
inline constexpr int16_t kReceivable = 10;       ///< 应收
inline constexpr int16_t kPayable = 11;          ///< 应付
inline constexpr int16_t kReceived = 12;         ///< 实收
inline constexpr int16_t kPaid = 13;             ///< 实付
inline constexpr int16_t kCustomerLedger = 14;   ///< 往来总帐
inline constexpr int16_t kFunds = 15;            ///< 资金
inline constexpr int16_t kSave = 16;             ///< 存盘
inline constexpr int16_t kContact = 17;          ///< 联系
inline constexpr int16_t kList = 19;             ///< 列表
inline constexpr int16_t kSort = 20;             ///< 排序
inline constexpr int16_t kDetail = 21;           ///< 详情
inline constexpr int16_t kExit = 22;             ///< 退出
inline constexpr int16_t kSearch = 23;           ///< 查询
inline constexpr int16_t kAdd = 24;              ///< 新增
inline constexpr int16_t kChange = 25;           ///< 修改
inline constexpr int16_t kDelete = 26;           ///< 删除
inline constexpr int16_t kPrint = 27;            ///< 打印
inline constexpr int16_t kConfirm = 28;          ///< 确定
inline constexpr int16_t kCancel = 29;           ///< 取消
inline constexpr int16_t kRefresh = 30;          ///< 刷新
inline constexpr int16_t kSearchPage = 31;       ///< 条件查询
inline constexpr int16_t kAll = 32;              ///< 全部
inline constexpr int16_t kSelected = 33;         ///< 选入
inline constexpr int16_t kSingle = 34;           ///< 单个
inline constexpr int16_t kFromDate = 35;         ///< 起始日期
inline constexpr int16_t kToDate = 36;           ///< 终止日期
inline constexpr int16_t kVoucher = 37;          ///< 票号
inline constexpr int16_t kDocument = 38;         ///< 单号
inline constexpr int16_t kOrder = 39;            ///< 订单号
inline constexpr int16_t kCheckedState = 40;     ///< 已审核
inline constexpr int16_t kUncheckedState = 41;   ///< 未审核
inline constexpr int16_t kManage = 42;           ///< 管理
inline constexpr int16_t kRegion = 43;           ///< 地区
inline constexpr int16_t kCity = 44;             ///< 城市
inline constexpr int16_t kOpening = 45;          ///< 期初金额
inline constexpr int16_t kIn = 46;               ///< 进帐
inline constexpr int16_t kOut = 47;              ///< 出帐
inline constexpr int16_t kAccountLedger = 48;    ///< 进出总帐
inline constexpr int16_t kDone = 49;             ///< 执行完毕
inline constexpr int16_t kBy = 50;               ///< 按
inline constexpr int16_t kCode = 51;             ///< 编号
inline constexpr int16_t kSummary = 53;          ///< 摘要
inline constexpr int16_t kUnit = 55;             ///< 单位
inline constexpr int16_t kAccountNumber = 56;    ///< 帐号
inline constexpr int16_t kPostcode = 57;         ///< 邮编
inline constexpr int16_t kTelephone = 58;        ///< 电话
inline constexpr int16_t kFax = 59;              ///< 传真
inline constexpr int16_t kHandler = 60;          ///< 经办人
inline constexpr int16_t kUser = 61;             ///< 登录人
inline constexpr int16_t kChecker = 62;          ///< 审核人
inline constexpr int16_t kCheck = 63;            ///< 审核
inline constexpr int16_t kUncheck = 64;          ///< 反审
inline constexpr int16_t kDate = 65;             ///< 日期
inline constexpr int16_t kCustomersTitle = 101;  ///< 客户往来帐管理系统
inline constexpr int16_t kAccountsTitle = 102;   ///< 资金帐户管理系统
inline constexpr int16_t kNoRight = 105;         ///< 您无权进行
inline constexpr int16_t kDigitsOnly = 130;      ///< 只能输入数字,请删除其它字符!
inline constexpr int16_t kTooLong = 140;         ///< 数值超出最大范围!
inline constexpr int16_t kNoQuotes = 183;  ///< 文本错误: 文本中不可含有<引号>或<单引号> !

}  // namespace qvzj::text_id
