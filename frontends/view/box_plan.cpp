#include "frontends/view/box_plan.h"

namespace qvzj::view {
namespace {

constexpr int kIconMask = 0x70;
constexpr int kOkCancel = 1;
constexpr int kYesNo = 4;

BoxSign SignOf(int style) {
  switch (style & kIconMask) {
    case 16:
      return {0xc0272d, "×"};
    case 32:
      return {0x2563b8, "?"};
    case 48:
      return {0xb7791f, "!"};
    case 64:
      return {0x2563b8, "i"};
    default:
      return {};
  }
}

}  // namespace

BoxPlan PlanBox(int style, const Texts& texts) {
  const BoxSign sign = SignOf(style);
  switch (style & box::kButtonsMask) {
    case kOkCancel:
      return {sign, texts.ok, texts.cancel, Answer::Ok, Answer::Cancel};
    case kYesNo:
      return {sign, texts.yes, texts.no, Answer::Yes, Answer::No};
    default:
      return {sign, texts.ok, {}, Answer::Ok, Answer::Ok};
  }
}

}  // namespace qvzj::view
