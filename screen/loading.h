#pragma once

#include "platform/ui/form.h"
#include "platform/ui/grid.h"

namespace qvzj {

/// The form's pointer is an hourglass while this lives, and what it was before afterwards,
/// whatever ended the work.
class Hourglass {
 public:
  explicit Hourglass(ui::Form& form) : form_(form), before_(form.GetMousePointer()) {
    form_.SetMousePointer(ui::MousePointer::Hourglass);
  }
  ~Hourglass() { form_.SetMousePointer(before_); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  ui::Form& form_;
  const ui::MousePointer before_;
};

/// A grid is emptied and out of sight until it is whole, for whoever fills it; a work that fails
/// half-way leaves it empty and in sight.
class GridFilling {
 public:
  explicit GridFilling(ui::Grid& grid) : grid_(grid) {
    grid_.SetRowCount(0);
    grid_.SetVisible(false);
  }
  ~GridFilling() {
    if (!whole_) grid_.SetRowCount(0);
    grid_.SetVisible(true);
  }
  GridFilling(const GridFilling&) = delete;
  GridFilling& operator=(const GridFilling&) = delete;

  /// The grid is whole.
  void Show() {
    whole_ = true;
    grid_.SetVisible(true);
  }

 private:
  ui::Grid& grid_;
  bool whole_ = false;
};

}  // namespace qvzj
