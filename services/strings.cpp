#include "services/strings.h"

#include <algorithm>
#include <iterator>

#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "services/context.h"

namespace qvzj {
namespace {

// Distance of the traditional text's id from the simplified one's.
constexpr int16_t kTraditional = 10000;

struct Row {
  int16_t id;
  const char* simplified;
  const char* traditional;  // null where the table has none
};

// In order of the ids. The texts are the screen's and the messages' to the character: half- and
// full-width punctuation, blanks before commas and simplified characters within traditional texts
// are kept as users know them. 121 to 140 are the suite's task-alarm vocabulary, which the input
// checks share.
// clang-format off
constexpr Row kTable[] = {
    {0, "0", "1"},
    {5, "客户", "客戶"},
    {6, "帐户", "帳戶"},
    {7, "帐目", "帳目"},
    {8, "金额", "金额"},
    {9, "余额", "余额"},
    {10, "应收", "應收"},
    {11, "应付", "應付"},
    {12, "实收", "實收"},
    {13, "实付", "實付"},
    {14, "往来总帐", "往来总帳"},
    {15, "资金", "資金"},
    {16, "存盘", "保存"},
    {17, "联系", "聯系"},
    {18, "用户", "用戶"},
    {19, "列表", "列表"},
    {20, "排序", "排序"},
    {21, "详情", "詳情"},
    {22, "退出", "退出"},
    {23, "查询", "查詢"},
    {24, "新增", "新增"},
    {25, "修改", "修改"},
    {26, "删除", "刪除"},
    {27, "打印", "打印"},
    {28, "确定", "确定"},
    {29, "取消", "取消"},
    {30, "刷新", "刷新"},
    {31, "条件查询", "條件查詢"},
    {32, "全部", "全部"},
    {33, "选入", "選入"},
    {34, "单个", "單一"},
    {35, "起始日期", "起始日期"},
    {36, "终止日期", "終止日期"},
    {37, "票号", "票號"},
    {38, "单号", "單號"},
    {39, "订单号", "訂單號"},
    {40, "已审核", "已審核"},
    {41, "未审核", "未審核"},
    {42, "管理", "管理"},
    {43, "地区", "地區"},
    {44, "城市", "城市"},
    {45, "期初金额", "期初金额"},
    {46, "进帐", "进帳"},
    {47, "出帐", "出帳"},
    {48, "进出总帐", "进出总帳"},
    {49, "执行完毕", "執行完畢"},
    {50, "按", "按"},
    {51, "编号", "編號"},
    {52, "税号", "稅號"},
    {53, "摘要", "摘要"},
    {54, "姓名", "姓名"},
    {55, "单位", "單位"},
    {56, "帐号", "帳號"},
    {57, "邮编", "郵編"},
    {58, "电话", "電話"},
    {59, "传真", "傳真"},
    {60, "经办人", "經辦人"},
    {61, "登录人", "登錄人"},
    {62, "审核人", "審核人"},
    {63, "审核", "審核"},
    {64, "反审", "反審"},
    {65, "日期", "日期"},
    {66, "错误", "錯誤"},
    {101, "客户往来帐管理系统", "客戶往来帳管理系統"},
    {102, "资金帐户管理系统", "資金帳戶管理系統"},
    {103, "终止日期不能小于起始日期,请更改!", "終止日期不能小于起始日期 , 請更改!"},
    {105, "您无权进行", "您無權進行"},
    {109, "输入有误!", "輸入有誤!"},
    {110, "已有存在!", "已有存在!"},
    {111, "已不存在!", "已不存在!"},
    {121, "该任务此前已有完成: 是[Y] - 删除该事件的所有任务;否[N] - 仅删除所有未完成之任务?", "該任務此前已有完成: 是[Y] - 刪除該事件的所有任務;否[N] - 僅刪除所有未完成之任務?"},
    {122, "开始生成任务...", nullptr},
    {125, "[报警范围]中[天]的不能为空!", "[報警范圍]中[天]的不能為空!"},
    {126, "注意：[设置人]若为空,则任何人均可修改或删除任务?", "注意：[設置人]若為空,則任何人均可修改或刪除任務?"},
    {127, "注意：[执行人]若为空,则任何人均可“执行完成”该任务?", "注意：[執行人]若為空,則任何人均可“執行完成”該任務?"},
    {129, "确认: 您已经完成了任务", "确認: 您已經完成了任務"},
    {130, "只能输入数字,请删除其它字符!", "只能輸入數字 , 請刪除其它字符!"},
    {131, "不能输入单引号,请删除!", "不能輸入單引號 , 請刪除!"},
    {132, "任务未找到，请查证!", "任務未找到 , 請查証!"},
    {133, "未有任务!", "未有任務!"},
    {134, "自启动报警器", "自啟動報警器"},
    {135, "读取网络任务时间间隔", "讀取网絡任務時間間隔"},
    {136, "今日任务报警", "今日任務報警"},
    {137, "日前未完成任务报警", "日前未完成任務報警"},
    {138, "桌面数据路径", "桌面數据路徑"},
    {139, "(目前第     次)", "(目前第     次)"},
    {140, "数值超出最大范围!", "超出最大范圍!"},
    {183, "文本错误: 文本中不可含有<引号>或<单引号> !", "文本錯誤: 文本中不可含有<引號>或<單引號> !"},
};
// clang-format on

const char* Find(int16_t key) {
  if (key < 0 || key >= 2 * kTraditional) return nullptr;
  const auto id = static_cast<int16_t>(key % kTraditional);
  const Row* row = std::lower_bound(std::begin(kTable), std::end(kTable), id,
                                    [](const Row& r, int16_t wanted) { return r.id < wanted; });
  if (row == std::end(kTable) || row->id != id) return nullptr;
  return key < kTraditional ? row->simplified : row->traditional;
}

}  // namespace

std::string LoadText(int16_t id) {
  const int16_t key = basic::AddInt16(basic::MultiplyInt16(Shared().Language, kTraditional), id);
  const char* text = Find(key);
  if (!text) throw ResourceNotFoundError(key);
  return text;
}

std::string LoadText(const BothTexts& texts) {
  return CurrentLanguage() == Language::Traditional ? texts.traditional : texts.simplified;
}

}  // namespace qvzj
