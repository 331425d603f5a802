#include "frontends/qt/print/preview_texts.h"

namespace qvzj::qt {
namespace {

PreviewTexts Simplified() {
  PreviewTexts texts;
  texts.print = "打印(&P)";
  texts.pdf = "存为 PDF(&S)";
  texts.close = "关闭(&C)";
  texts.first = "首页";
  texts.previous = "上一页";
  texts.next = "下一页";
  texts.last = "末页";
  texts.page = "页码";
  texts.of_pages = "/ %1 页";
  texts.smaller = "缩小";
  texts.larger = "放大";
  texts.width = "适合宽度(&W)";
  texts.whole = "整页(&F)";
  texts.real_size = "实际大小";
  texts.save_pdf = "存为 PDF";
  texts.laying_out = "正在排版…";
  texts.painting = "正在生成 PDF…";
  texts.printing = "正在打印…";
  texts.saved = "已存为 %1";
  texts.cancelled = "已取消";
  texts.printed = "已打印 %1 页";
  texts.not_printed = "打印没有成功。\n%1";
  texts.not_written = "没有写成，原有的文件没有改动。\n%1";
  return texts;
}

PreviewTexts Traditional() {
  PreviewTexts texts;
  texts.print = "打印(&P)";
  texts.pdf = "存為 PDF(&S)";
  texts.close = "關閉(&C)";
  texts.first = "首頁";
  texts.previous = "上一頁";
  texts.next = "下一頁";
  texts.last = "末頁";
  texts.page = "頁碼";
  texts.of_pages = "/ %1 頁";
  texts.smaller = "縮小";
  texts.larger = "放大";
  texts.width = "適合寬度(&W)";
  texts.whole = "整頁(&F)";
  texts.real_size = "實際大小";
  texts.save_pdf = "存為 PDF";
  texts.laying_out = "正在排版…";
  texts.painting = "正在產生 PDF…";
  texts.printing = "正在打印…";
  texts.saved = "已存為 %1";
  texts.cancelled = "已取消";
  texts.printed = "已打印 %1 頁";
  texts.not_printed = "打印沒有成功。\n%1";
  texts.not_written = "沒有寫成，原有的檔案沒有改動。\n%1";
  return texts;
}

}  // namespace

const PreviewTexts& PreviewTextsOf(bool traditional) {
  static const PreviewTexts simplified_texts = Simplified();
  static const PreviewTexts traditional_texts = Traditional();
  return traditional ? traditional_texts : simplified_texts;
}

}  // namespace qvzj::qt
