#include "platform/advice.h"

#include <new>

#include "platform/basic/errors.h"

namespace qvzj {
namespace {

/// By language: simplified, traditional.
struct Words {
  const char* reason[2];
  const char* remedy[2];
};

constexpr Words kUnknown{
    {"数据库或程序报告了一个未分类的错误。", "資料庫或程式報告了一個未分類的錯誤。"},
    {"请记下下面的系统报告，重试一次；若再次出现，请交给系统管理员。",
     "請記下下面的系統報告，重試一次；若再次出現，請交給系統管理員。"}};
constexpr Words kClosed{
    {"数据库连接已关闭，可能是随另一个窗口一起关闭的。",
     "資料庫連接已關閉，可能是隨另一個視窗一起關閉的。"},
    {"请关闭本窗口，再从主程序重新打开。", "請關閉本視窗，再從主程式重新打開。"}};
constexpr Words kNoFile{{"数据文件不存在，或数据路径有误。", "資料檔案不存在，或資料路徑有誤。"},
                        {"请检查数据路径及移动盘、网络盘是否已连接；新帐套须先由管理员建立。",
                         "請檢查資料路徑及移動碟、網路碟是否已連接；新帳套須先由管理員建立。"}};
constexpr Words kNoDatabase{
    {"该文件不是数据库文件，或已加密。", "該檔案不是資料庫檔案，或已加密。"},
    {"请检查数据路径；若文件曾被其它程序改写，请从备份恢复。",
     "請檢查資料路徑；若檔案曾被其它程式改寫，請從備份恢復。"}};
constexpr Words kDamaged{
    {"数据文件已损坏。", "資料檔案已損壞。"},
    {"请停止使用并保留该文件的副本，请管理员检查（qvdb check）或从备份恢复。",
     "請停止使用並保留該檔案的副本，請管理員檢查（qvdb check）或從備份恢復。"}};
constexpr Words kMissing{{"数据库缺少所需的数据表或字段，可能由早期版本建立。",
                          "資料庫缺少所需的資料表或欄位，可能由早期版本建立。"},
                         {"请检查是否选对了数据库；若确为早期版本，请由管理员升级（qvdb init）。",
                          "請檢查是否選對了資料庫；若確為早期版本，請由管理員升級（qvdb init）。"}};
constexpr Words kDiskFull{{"磁盘空间不足，数据未能写入。", "磁碟空間不足，資料未能寫入。"},
                          {"请清理磁盘或扩大配额后重试。", "請清理磁碟或擴大配額後重試。"}};
constexpr Words kDiskFailed{{"读写磁盘时出错。", "讀寫磁碟時出錯。"},
                            {"请检查磁盘及网络盘是否正常，再重试；请尽快备份。",
                             "請檢查磁碟及網路碟是否正常，再重試；請儘快備份。"}};
constexpr Words kReadOnly{{"数据库是只读的，不能写入。", "資料庫是唯讀的，不能寫入。"},
                          {"请检查数据文件、所在文件夹及磁盘的写权限；服务器数据库请找管理员。",
                           "請檢查資料檔案、所在資料夾及磁碟的寫權限；伺服器資料庫請找管理員。"}};
constexpr Words kNoRights{{"当前用户没有所需的权限。", "目前用戶沒有所需的權限。"},
                          {"请管理员授予对数据文件及其文件夹（或服务器上数据表）的读写权限。",
                           "請管理員授予對資料檔案及其資料夾（或伺服器上資料表）的讀寫權限。"}};
constexpr Words kLocked{{"数据正被其它程序或用户占用。", "資料正被其它程式或用戶佔用。"},
                        {"请稍候重试；若一直如此，请查找占用数据的程序（如备份、导入）。",
                         "請稍候重試；若一直如此，請查找佔用資料的程式（如備份、匯入）。"}};
constexpr Words kReplaced{
    {"打开的数据文件已被替换、移动或删除。", "打開的資料檔案已被替換、移動或刪除。"},
    {"本次操作没有写入。请关闭本窗口，确认数据文件无误后重新打开，并核对最近的帐目。",
     "本次操作沒有寫入。請關閉本視窗，確認資料檔案無誤後重新打開，並核對最近的帳目。"}};
constexpr Words kNoServer{
    {"无法连接数据库服务器，或连接已中断。", "無法連接資料庫伺服器，或連接已中斷。"},
    {"请检查服务器地址、端口及网络，并确认服务器正在运行。",
     "請檢查伺服器位址、連接埠及網路，並確認伺服器正在運行。"}};
constexpr Words kLoginRefused{{"数据库服务器拒绝登录。", "資料庫伺服器拒絕登錄。"},
                              {"请检查数据库用户名及密码。", "請檢查資料庫用戶名及密碼。"}};
constexpr Words kNoServerData{{"服务器上没有该名称的数据库。", "伺服器上沒有該名稱的資料庫。"},
                              {"请检查缺省数据库的名称；新帐套须先由管理员建立。",
                               "請檢查預設資料庫的名稱；新帳套須先由管理員建立。"}};
constexpr Words kNoDriver{
    {"本机没有所需的数据库驱动程序或数据源。", "本機沒有所需的資料庫驅動程式或資料來源。"},
    {"请管理员安装该服务器的 ODBC 驱动程序，并检查服务器连接信息。",
     "請管理員安裝該伺服器的 ODBC 驅動程式，並檢查伺服器連接資訊。"}};
constexpr Words kTimedOut{
    {"数据库服务器在限定时间内没有答复。", "資料庫伺服器在限定時間內沒有答覆。"},
    {"请刷新核对后再决定是否重做；若一直如此，请找服务器管理员。",
     "請重新整理核對後再決定是否重做；若一直如此，請找伺服器管理員。"}};
constexpr Words kDuplicate{
    {"相同的记录已经存在，不能重复存入。", "相同的記錄已經存在，不能重複存入。"},
    {"可能已有其他用户先行处理，请刷新核对。", "可能已有其他用戶先行處理，請重新整理核對。"}};
constexpr Words kOverflow{
    {"数值超出允许的范围。", "數值超出允許的範圍。"},
    {"请检查所填的数值及主程序传入的设置。", "請檢查所填的數值及主程式傳入的設定。"}};
constexpr Words kMismatch{
    {"某项内容不是有效的数字或日期。", "某項內容不是有效的數字或日期。"},
    {"请检查所填的内容，或数据表中相应的字段。", "請檢查所填的內容，或資料表中相應的欄位。"}};
constexpr Words kNoText{{"缺少当前语言的文字。", "缺少目前語言的文字。"},
                        {"请检查主程序设置的语言（Language 为 0 或 1）。",
                         "請檢查主程式設定的語言（Language 為 0 或 1）。"}};
constexpr Words kMemory{
    {"内存不足。", "記憶體不足。"},
    {"请关闭其它程序，或缩小查询范围后重试。", "請關閉其它程式，或縮小查詢範圍後重試。"}};

const Words& WordsOf(DataCause cause) {
  switch (cause) {
    case DataCause::Closed:
      return kClosed;
    case DataCause::NoFile:
      return kNoFile;
    case DataCause::NoDatabase:
      return kNoDatabase;
    case DataCause::Damaged:
      return kDamaged;
    case DataCause::Missing:
      return kMissing;
    case DataCause::DiskFull:
      return kDiskFull;
    case DataCause::DiskFailed:
      return kDiskFailed;
    case DataCause::ReadOnly:
      return kReadOnly;
    case DataCause::NoRights:
      return kNoRights;
    case DataCause::Locked:
      return kLocked;
    case DataCause::Replaced:
      return kReplaced;
    case DataCause::NoServer:
      return kNoServer;
    case DataCause::LoginRefused:
      return kLoginRefused;
    case DataCause::NoServerData:
      return kNoServerData;
    case DataCause::NoDriver:
      return kNoDriver;
    case DataCause::TimedOut:
      return kTimedOut;
    case DataCause::Duplicate:
      return kDuplicate;
    case DataCause::Unknown:
      break;
  }
  return kUnknown;
}

const Words& WordsOf(const std::exception& error) {
  if (const auto* data = dynamic_cast<const DataError*>(&error)) return WordsOf(data->Cause());
  if (dynamic_cast<const OverflowError*>(&error)) return kOverflow;
  if (dynamic_cast<const TypeMismatchError*>(&error)) return kMismatch;
  if (dynamic_cast<const ResourceNotFoundError*>(&error)) return kNoText;
  if (dynamic_cast<const std::bad_alloc*>(&error)) return kMemory;
  return kUnknown;
}

}  // namespace

std::string Advice(const std::exception& error, Language language) {
  const size_t place = language == Language::Traditional ? 1 : 0;
  const Words& words = WordsOf(error);
  const char* const reported[2] = {"系统报告：", "系統報告："};
  const char* const remedy[2] = {"处理：", "處理："};
  return std::string("原因：") + words.reason[place] + "\n" + remedy[place] + words.remedy[place] +
         "\n" + reported[place] + error.what();
}

}  // namespace qvzj
