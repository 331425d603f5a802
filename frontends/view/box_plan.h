#pragma once

#include <string_view>

#include "frontends/view/look.h"
#include "frontends/view/texts.h"
#include "platform/boxes.h"

namespace qvzj::view {

/// A round sign beside a box's text; no mark for a plain box.
struct BoxSign {
  Color color = 0;
  std::string_view mark;
};

/// What a message box of a style shows beside its text, and what its buttons mean.
struct BoxPlan {
  BoxSign sign;
  std::string_view accept;  ///< the button that Enter presses
  std::string_view reject;  ///< the button that Esc presses; "" when there is but one
  Answer accepted = Answer::Ok;
  Answer rejected = Answer::Ok;  ///< also when the box is closed otherwise
};

/// The style of a question of the window's own that is answered with Yes or No.
inline constexpr int kQuestionYesNo = 36;

/// `style` as in platform/boxes.h.
BoxPlan PlanBox(int style, const Texts& texts);

}  // namespace qvzj::view
