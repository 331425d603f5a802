#pragma once

#include <cstdint>

namespace qvzj::view {

/// Follows what an input method composes in a field. While something stands there that has not
/// been handed over, every key belongs to it: Enter chooses a word, it does not walk on.
class Composition {
 public:
  /// The input method shows a preedit text of this length; 0 when there is none any more.
  void Preedit(int64_t length) { under_way_ = length > 0; }
  /// The field has lost the focus, and with it whatever was composed.
  void FocusLost() { under_way_ = false; }
  bool UnderWay() const { return under_way_; }

 private:
  bool under_way_ = false;
};

}  // namespace qvzj::view
