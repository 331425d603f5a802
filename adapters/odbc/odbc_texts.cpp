#include "adapters/odbc/odbc_texts.h"

#include "platform/basic/text.h"

namespace qvzj::odbc_texts {
namespace {

/// A text in both languages.
using Text = const char* [2];

constexpr Text kOutcomeUnknown{
    "与数据库服务器的连接在存盘时中断，无法确定这次修改是否已经保存。请先刷新核对，再决定是否重做"
    "。",
    "與資料庫伺服器的連線在存檔時中斷，無法確定這次修改是否已經儲存。請先重新整理核對，"
    "再決定是否重做。",
};
constexpr Text kReadStopped{
    "数据库服务器在 {} 秒内没有给出答复，这次查询已经停止。请稍后再试。",
    "資料庫伺服器在 {} 秒內沒有給出答覆，這次查詢已經停止。請稍後再試。",
};
constexpr Text kWriteStopped{
    "数据库服务器在 {} 秒内没有完成存盘，这次修改已经撤销，没有保存。请稍后重做。",
    "資料庫伺服器在 {} 秒內沒有完成存檔，這次修改已經撤銷，沒有儲存。請稍後重做。",
};
constexpr Text kReadGivenUp{
    "数据库服务器在 {} 秒内没有答复，连接已经放弃。请稍后再试。",
    "資料庫伺服器在 {} 秒內沒有答覆，連線已經放棄。請稍後再試。",
};
constexpr Text kWriteGivenUp{
    "数据库服务器在 {} 秒内没有答复，连接已经放弃，不知是否已存。请先刷新核对，再决定是否重做。",
    "資料庫伺服器在 {} 秒內沒有答覆，連線已經放棄，不知是否已存。請先重新整理核對，"
    "再決定是否重做。",
};
std::string WithSeconds(const char* text, std::chrono::milliseconds limit) {
  const auto seconds = std::chrono::ceil<std::chrono::seconds>(limit).count();
  return basic::Replace(text, "{}", std::to_string(seconds));
}

}  // namespace

std::string OutcomeUnknown(int language) { return kOutcomeUnknown[language]; }

std::string ReadStopped(int language, std::chrono::milliseconds limit) {
  return WithSeconds(kReadStopped[language], limit);
}

std::string WriteStopped(int language, std::chrono::milliseconds limit) {
  return WithSeconds(kWriteStopped[language], limit);
}

std::string ReadGivenUp(int language, std::chrono::milliseconds limit) {
  return WithSeconds(kReadGivenUp[language], limit);
}

std::string WriteGivenUp(int language, std::chrono::milliseconds limit) {
  return WithSeconds(kWriteGivenUp[language], limit);
}

}  // namespace qvzj::odbc_texts
