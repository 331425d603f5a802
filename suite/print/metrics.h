#pragma once

#include "platform/pages.h"

namespace qvzj::print {

/// A typewriter for tests and for printers without fonts: Chinese characters one em wide, ASCII
/// half an em.
class FixedMetrics : public TextMetrics {
 public:
  double Width(std::string_view text) const override;
};

}  // namespace qvzj::print
