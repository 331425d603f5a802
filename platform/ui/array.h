#pragma once

#include <cassert>
#include <memory>
#include <string>
#include <vector>

#include "platform/ui/control.h"

namespace qvzj::ui {

/// A control array: controls of one kind and name, told apart by an index from `first` to `last`.
/// Elements are reached as on the form, `txtAcnt2(4)`; begin() and end() walk them in order.
template <class T>
class Array {
 public:
  Array(Form& form, const std::string& name, int first, int last, Control* container = nullptr,
        int page = -1)
      : first_(first) {
    for (int i = first; i <= last; ++i) {
      controls_.push_back(std::make_unique<T>(form, name, i, container, page));
    }
  }

  T& operator()(int index) {
    assert(index >= First() && index <= Last());
    return *controls_[static_cast<size_t>(index - first_)];
  }
  const T& operator()(int index) const { return const_cast<Array&>(*this)(index); }
  int First() const { return first_; }
  int Last() const { return first_ + static_cast<int>(controls_.size()) - 1; }
  int Count() const { return static_cast<int>(controls_.size()); }

 private:
  std::vector<std::unique_ptr<T>> controls_;
  int first_;
};

}  // namespace qvzj::ui
