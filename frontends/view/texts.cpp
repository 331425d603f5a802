#include "frontends/view/texts.h"

namespace qvzj::view {
namespace {

constexpr Texts kSimplified{
    .ok = "确定",
    .cancel = "取消",
    .yes = "是",
    .no = "否",
    .show_detail = "详情(&D) >>",
    .hide_detail = "<< 详情(&D)",
    .save = "保存(&S)",
    .folder = "文件夹:",
    .file_name = "文件名:",
    .file_type = "类型:",
    .undo = "撤消(&U)",
    .redo = "重做(&R)",
    .cut = "剪切(&T)",
    .copy = "复制(&C)",
    .paste = "粘贴(&P)",
    .erase = "删除",
    .select_all = "全选",
    .copy_rows = "复制所选行(&C)",
    .find = "查找(&F)…",
    .find_next = "查找下一个(&N)",
    .export_grid = "导出(&E)…",
    .print = "打印(&P)",
    .reset_columns = "恢复列宽和列序(&R)",
    .other_type = "文件名以 .%1 结尾，所选类型却是“%2”。\n要保存为“%3”吗？",
    .selected = "已选 %1 行",
    .sum = "%1 合计 %2",
    .find_here = "查找",
    .not_found = "没有找到",
    .exporting = "正在导出…",
    .excel_file = "Excel 工作簿",
    .csv_utf8_file = "CSV 文件，UTF-8",
    .csv_gb_file = "CSV 文件，GB18030",
    .exported = "已导出 %1 行：\n%2",
    .sheets = "一个工作表放不下，分在 %1 个工作表中。",
    .not_exported = "没有导出，原有的文件没有改动。\n%1",
    .lost = "有 %1 个字符无法用该编码保存，已写成“?”。",
    .shortened = "放不下或不能录入的文字没有录入。",
};

constexpr Texts kTraditional{
    .ok = "確定",
    .cancel = "取消",
    .yes = "是",
    .no = "否",
    .show_detail = "詳情(&D) >>",
    .hide_detail = "<< 詳情(&D)",
    .save = "保存(&S)",
    .folder = "資料夾:",
    .file_name = "檔名:",
    .file_type = "類型:",
    .undo = "復原(&U)",
    .redo = "重做(&R)",
    .cut = "剪下(&T)",
    .copy = "複製(&C)",
    .paste = "貼上(&P)",
    .erase = "刪除",
    .select_all = "全選",
    .copy_rows = "複製所選行(&C)",
    .find = "尋找(&F)…",
    .find_next = "尋找下一個(&N)",
    .export_grid = "匯出(&E)…",
    .print = "打印(&P)",
    .reset_columns = "恢復欄寬和欄序(&R)",
    .other_type = "檔名以 .%1 結尾，所選類型卻是「%2」。\n要保存為「%3」嗎？",
    .selected = "已選 %1 行",
    .sum = "%1 合計 %2",
    .find_here = "尋找",
    .not_found = "沒有找到",
    .exporting = "正在匯出…",
    .excel_file = "Excel 活頁簿",
    .csv_utf8_file = "CSV 檔案，UTF-8",
    .csv_gb_file = "CSV 檔案，GB18030",
    .exported = "已匯出 %1 行：\n%2",
    .sheets = "一個工作表放不下，分在 %1 個工作表中。",
    .not_exported = "沒有匯出，原有的檔案沒有改動。\n%1",
    .lost = "有 %1 個字元無法用該編碼保存，已寫成「?」。",
    .shortened = "放不下或不能輸入的文字沒有輸入。",
};

constexpr PreviewTexts kSimplifiedPreview{
    .print = "打印(&P)",
    .pdf = "存为 PDF(&S)",
    .close = "关闭(&C)",
    .first = "首页",
    .previous = "上一页",
    .next = "下一页",
    .last = "末页",
    .page = "页码",
    .of_pages = "/ %1 页",
    .smaller = "缩小",
    .larger = "放大",
    .width = "适合宽度(&W)",
    .whole = "整页(&F)",
    .real_size = "实际大小",
    .save_pdf = "存为 PDF",
    .laying_out = "正在排版…",
    .painting = "正在生成 PDF…",
    .printing = "正在打印…",
    .saved = "已存为 %1",
    .cancelled = "已取消",
    .printed = "已打印 %1 页",
    .not_printed = "打印没有成功。\n%1",
    .not_written = "没有写成，原有的文件没有改动。\n%1",
};

constexpr PreviewTexts kTraditionalPreview{
    .print = "打印(&P)",
    .pdf = "存為 PDF(&S)",
    .close = "關閉(&C)",
    .first = "首頁",
    .previous = "上一頁",
    .next = "下一頁",
    .last = "末頁",
    .page = "頁碼",
    .of_pages = "/ %1 頁",
    .smaller = "縮小",
    .larger = "放大",
    .width = "適合寬度(&W)",
    .whole = "整頁(&F)",
    .real_size = "實際大小",
    .save_pdf = "存為 PDF",
    .laying_out = "正在排版…",
    .painting = "正在產生 PDF…",
    .printing = "正在打印…",
    .saved = "已存為 %1",
    .cancelled = "已取消",
    .printed = "已打印 %1 頁",
    .not_printed = "打印沒有成功。\n%1",
    .not_written = "沒有寫成，原有的檔案沒有改動。\n%1",
};

}  // namespace

const Texts& TextsOf(bool traditional) { return traditional ? kTraditional : kSimplified; }

const PreviewTexts& PreviewTextsOf(bool traditional) {
  return traditional ? kTraditionalPreview : kSimplifiedPreview;
}

std::string Fill(std::string_view text, std::initializer_list<std::string_view> values) {
  std::string filled;
  for (size_t i = 0; i < text.size(); ++i) {
    const bool place = text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' &&
                       static_cast<size_t>(text[i + 1] - '1') < values.size();
    if (place) {
      filled += *(values.begin() + (text[++i] - '1'));
    } else {
      filled += text[i];
    }
  }
  return filled;
}

}  // namespace qvzj::view
