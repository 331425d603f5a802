#pragma once

#include <cstdint>
#include <string>

namespace qvzj::print {

/// The words that a printed page adds to what the form hands over, by language.
struct PrintWords {
  const char* print_date;
  const char* made_by;
  const char* page_before;   ///< before the page's number
  const char* page_between;  ///< between it and the number of pages
  const char* page_after;
  const char* count_before;  ///< before the number of records
  const char* count_after;
  const char* amount_in_words;  ///< before the total that is meant, in brackets
};

inline const PrintWords& WordsOf(int16_t language) {
  static constexpr PrintWords kSimplified{"打印日期: ", "制表人: ", "第 ", " 页 共 ",
                                          " 页",        "共 ",      " 条", "人民币大写"};
  static constexpr PrintWords kTraditional{"打印日期: ", "製表人: ", "第 ", " 頁 共 ",
                                           " 頁",        "共 ",      " 條", "人民幣大寫"};
  return language == 1 ? kTraditional : kSimplified;
}

}  // namespace qvzj::print
