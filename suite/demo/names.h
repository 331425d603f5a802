#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>

#include "suite/demo/dice.h"

namespace qvzj::demo_data {

/// `number` with zeros before it up to `width` digits, after `prefix`.
std::string Numbered(std::string_view prefix, int64_t number, int width);

/// A place with what an address needs.
struct Town {
  std::string_view province;
  std::string_view city;
  std::string_view postcode;
  std::string_view area_code;
};

/// Makes up Chinese names, numbers and remarks that look like a trading company's.
class Names {
 public:
  explicit Names(Dice& dice) : dice_(dice) {}

  /// Family name and one or two characters.
  std::string Person();
  /// A place to live at.
  const Town& Place();
  /// A company of that place; never the same twice from one object.
  std::string Company(const Town& place);
  /// A bank branch of that place.
  std::string Bank(const Town& place);
  std::string Digits(int count);
  std::string Telephone(const Town& place);
  /// Something that is bought and sold.
  std::string_view Goods();
  /// A remark on a customer; "" for most of them.
  std::string_view Remark();

 private:
  Dice& dice_;
  std::unordered_set<std::string> companies_;
};

}  // namespace qvzj::demo_data
