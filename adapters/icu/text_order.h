#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/basic/text_order.h"

struct UCollator;

namespace qvzj {

/// Chinese order of texts through ICU; ASCII case does not count.
class IcuTextOrder final : public basic::TextOrder {
 public:
  /// By pinyin, as simplified Chinese readers expect. Throws Error when ICU lacks the order.
  static IcuTextOrder Pinyin();
  /// By number of strokes, as traditional Chinese readers expect.
  static IcuTextOrder Stroke();
  IcuTextOrder(IcuTextOrder&&) noexcept;
  ~IcuTextOrder() override;

  std::string SortKey(std::string_view text) const override;
  /// Negative, 0 or positive as `a` comes before, with or after `b`; agrees with SortKey. Codes
  /// and numbers, which are plain ASCII, are told apart without ICU.
  int Compare(std::string_view a, std::string_view b) const;

 private:
  explicit IcuTextOrder(const char* locale);
  void RankAscii();
  int CompareByIcu(std::string_view a, std::string_view b) const;

  struct Closer {
    void operator()(UCollator* collator) const;
  };
  std::unique_ptr<UCollator, Closer> collator_;
  std::array<uint8_t, 256> ascii_rank_{};  // place of a byte's character in the order; 0: ask ICU
};

}  // namespace qvzj
