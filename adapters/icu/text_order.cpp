#include "adapters/icu/text_order.h"

#include <unicode/ucol.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "platform/basic/errors.h"

namespace qvzj {
namespace {

void Check(UErrorCode status) {
  if (U_FAILURE(status)) throw Error(std::string("text order: ") + u_errorName(status));
}

}  // namespace

void IcuTextOrder::Closer::operator()(UCollator* collator) const { ucol_close(collator); }

IcuTextOrder::IcuTextOrder(const char* locale) {
  UErrorCode status = U_ZERO_ERROR;
  collator_.reset(ucol_open(locale, &status));
  Check(status);
  ucol_setStrength(collator_.get(), UCOL_SECONDARY);  // the third level is case
  RankAscii();
}

void IcuTextOrder::RankAscii() {
  std::map<std::string, uint8_t> ranks;
  for (char c = ' '; c <= '~'; ++c) ranks[SortKey({&c, 1})] = 0;
  uint8_t rank = 0;
  for (auto& entry : ranks) entry.second = ++rank;
  for (char c = ' '; c <= '~'; ++c) ascii_rank_[static_cast<uint8_t>(c)] = ranks[SortKey({&c, 1})];
}

IcuTextOrder::IcuTextOrder(IcuTextOrder&&) noexcept = default;
IcuTextOrder::~IcuTextOrder() = default;

IcuTextOrder IcuTextOrder::Pinyin() { return IcuTextOrder("zh-u-co-pinyin"); }
IcuTextOrder IcuTextOrder::Stroke() { return IcuTextOrder("zh-Hant-u-co-stroke"); }

std::string IcuTextOrder::SortKey(std::string_view text) const {
  // A sort asks for a million keys: the room to make them in is kept.
  thread_local std::u16string wide;
  thread_local std::vector<uint8_t> key(256);
  if (wide.size() < text.size()) wide.resize(text.size());
  UErrorCode status = U_ZERO_ERROR;
  int32_t length = 0;
  u_strFromUTF8WithSub(wide.data(), static_cast<int32_t>(wide.size()), &length, text.data(),
                       static_cast<int32_t>(text.size()), 0xFFFD, nullptr, &status);
  Check(status);
  const auto fill = [&] {
    return ucol_getSortKey(collator_.get(), wide.data(), length, key.data(),
                           static_cast<int32_t>(key.size()));
  };
  int32_t needed = fill();
  if (needed > static_cast<int32_t>(key.size())) {
    key.resize(static_cast<size_t>(needed));
    needed = fill();
  }
  // Without the closing zero.
  return {key.begin(), key.begin() + std::max(needed - 1, 0)};
}

int IcuTextOrder::Compare(std::string_view a, std::string_view b) const {
  const auto rank = [this](std::string_view text, size_t at) {
    return ascii_rank_[static_cast<uint8_t>(text[at])];
  };
  // Every character of the ASCII range has a place of its own, so the first that differs decides,
  // unless the next one could combine with it.
  const auto settled = [&rank](std::string_view text, size_t at) {
    return at >= text.size() || rank(text, at) != 0;
  };
  const size_t common = std::min(a.size(), b.size());
  size_t at = 0;
  while (at < common && rank(a, at) == rank(b, at) && rank(a, at) != 0) ++at;
  const bool both_settled =
      settled(a, at) && settled(b, at) && settled(a, at + 1) && settled(b, at + 1);
  if (both_settled) {
    const int place_a = at < a.size() ? rank(a, at) : 0;
    const int place_b = at < b.size() ? rank(b, at) : 0;
    return place_a - place_b;
  }
  return CompareByIcu(a, b);
}

int IcuTextOrder::CompareByIcu(std::string_view a, std::string_view b) const {
  UErrorCode status = U_ZERO_ERROR;
  const int order = ucol_strcollUTF8(collator_.get(), a.data(), static_cast<int32_t>(a.size()),
                                     b.data(), static_cast<int32_t>(b.size()), &status);
  Check(status);
  return order;
}

}  // namespace qvzj
